// Fetches a series of files as a run with no pause between them does: fetch_series FOLDER ADDRESS...
// Prints the seconds that it took. bench_transfer.py sets it against curl.
#include "transfer/cInetWS.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <cstdio>

namespace {
class StandardError : public ErrorReceiver
{
  public:
    void ErrorLogger(qint64 number, const QString &description, const QString &, const QString &location) override
    {
        std::fprintf(stderr, "fetch_series: %lld %s (%s)\n", static_cast<long long>(number),
                     qUtf8Printable(description), qUtf8Printable(location));
    }
};

/// A turn of the event loop as the programs make it.
void waitForEvents(qint64 milliseconds)
{
    QTimer deadline;
    deadline.setSingleShot(true);
    deadline.setTimerType(Qt::PreciseTimer);
    deadline.start(int(milliseconds));
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}
} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    StandardError errors;
    Transfers transfers(waitForEvents);
    cInetWS inet(transfers, errors);
    QElapsedTimer clock;
    clock.start();
    for (const QString &address : words.sliced(2)) {
        const QString name = address.sliced(address.lastIndexOf(u'/') + 1);
        if (inet.DownLoad(address, words[1] + u'/' + name, 0).file.isEmpty())
            return 1;
    }
    std::printf("%.6f\n", double(clock.nsecsElapsed()) / 1e9);
    return 0;
}
