// trawlex-browser-holder SOCKET PROGRAM [ARGUMENT]...: starts a browser that is driven over a pipe, and offers the pipe
// on the socket for as long as the browser runs. Started by the programs themselves, for a browser with a window.
#include "engine/Platform.h"
#include "engine/holder/PipeHolder.h"
#include "util/Errors.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QProcess>
#include <cstdio>
#include <thread>

namespace {
constexpr int wordsAtLeast = 3;
constexpr std::chrono::seconds endLimit{5};
constexpr std::chrono::milliseconds betweenLooks{20};

/// The browser has let go of its pipe: it ends with us, so it is given the time to write what it has to.
void leaveBehind(qint64 browser)
{
    QDeadlineTimer ending(endLimit);
    while (Platform::isRunning(browser) && !ending.hasExpired())
        std::this_thread::sleep_for(betweenLooks);
    QCoreApplication::quit();
}
} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() < wordsAtLeast) {
        std::fputs("usage: trawlex-browser-holder SOCKET PROGRAM [ARGUMENT]...\n", stderr);
        return 2;
    }
    try {
        const Platform::PipedProcess started =
            Platform::startPiped(words[2], words.mid(wordsAtLeast), QProcess::systemEnvironment());
        auto browser = std::make_unique<QLocalSocket>();
        browser->setSocketDescriptor(started.socket);
        PipeHolder holder(std::move(browser));
        QObject::connect(&holder, &PipeHolder::ended, &application, [&started] { leaveBehind(started.pid); });
        // Without a socket nobody can drive the browser: it ends as the pipe does.
        return holder.listen(words[1]) ? QCoreApplication::exec() : 1;
    } catch (const RuntimeError &error) {
        std::fprintf(stderr, "%s\n", error.description().toLocal8Bit().constData());
        return 1;
    }
}
