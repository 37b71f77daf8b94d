#include "engine/WebEngineSetup.h"
#include "engine/BrowserSwitches.h"
#include "engine/Platform.h"

#include <QCoreApplication>

namespace {

constexpr const char *switchesVariable = "QTWEBENGINE_CHROMIUM_FLAGS";
constexpr const char *sandboxVariable = "QTWEBENGINE_DISABLE_SANDBOX";

// A page that no window shows, or whose window is covered, works on at full speed; the browser asks nobody anything on
// its own account; an address is opened as it was given; what goes wrong inside it is not told on our standard error.
const QStringList ownSwitches{
    QStringLiteral("--disable-background-timer-throttling"),
    QStringLiteral("--disable-backgrounding-occluded-windows"),
    QStringLiteral("--disable-renderer-backgrounding"),
    QStringLiteral("--disable-background-networking"),
    QStringLiteral("--disable-domain-reliability"),
    QStringLiteral("--disable-features=HttpsUpgrades"),
    QStringLiteral("--no-pings"),
    QStringLiteral("--log-level=3"),
};

bool drawsInSoftware()
{
    const QString platform = qEnvironmentVariable("QT_QPA_PLATFORM").section(u':', 0, 0);
    return platform == u"offscreen" || platform == u"minimal" || !Platform::hasGraphicsProcessor();
}

// The variable is parted at blanks; a value with blanks stands in quotes, and a quote itself cannot be written.
QString asVariable(const QStringList &switches)
{
    QStringList quoted;
    for (QString each : switches)
        quoted.append(u'"' + each.remove(u'"') + u'"');
    return quoted.join(u' ');
}

} // namespace

WebEnginePreparation prepareWebEngine(const QStringList &userSwitches)
{
    WebEnginePreparation result;
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QStringList own = ownSwitches;
    if (drawsInSoftware())
        own.append(QStringLiteral("--disable-gpu"));
    const QStringList standing = BrowserSwitches::split(qEnvironmentVariable(switchesVariable));
    result.switches = BrowserSwitches::joined(BrowserSwitches::joined(own, standing), userSwitches);
    qputenv(switchesVariable, asVariable(result.switches).toUtf8());

    if (Platform::runsAsRoot())
        qputenv(sandboxVariable, "1");
    result.sandboxOff = qEnvironmentVariableIsSet(sandboxVariable);
    return result;
}
