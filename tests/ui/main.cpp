// The skin's tests run without a display. A Qt warning that nobody expects fails the test in which it comes.
#include "engine/BrowserSwitches.h"
#include "engine/WebEngineSetup.h"

#include <QApplication>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
/// Of the display stand-in, not of ours.
const QStringList expectedWarnings{u"This plugin does not support"_s, u"XDG_RUNTIME_DIR"_s,
                                   u"No suitable graphics backend"_s, u"Release of profile requested"_s};
QtMessageHandler usualHandler = nullptr;

void onMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    usualHandler(type, context, text);
    const bool expected = std::any_of(expectedWarnings.begin(), expectedWarnings.end(),
                                      [&text](const QString &part) { return text.contains(part); });
    if (type == QtWarningMsg && !expected && qstrncmp(context.category, "js", 2) != 0)
        ADD_FAILURE() << "warning: " << qUtf8Printable(text);
}
} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Without a display there is no graphics card either.
    qputenv("QT_QUICK_BACKEND", "software");
    qunsetenv("TRAWLEX_THEME");
    testing::InitGoogleTest(&argc, argv);
    prepareWebEngine(BrowserSwitches::ofUser({}));
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    usualHandler = qInstallMessageHandler(onMessage);
    return RUN_ALL_TESTS();
}
