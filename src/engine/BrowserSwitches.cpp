#include "engine/BrowserSwitches.h"

#include <QProcess>
#include <algorithm>
#include <array>

namespace BrowserSwitches {
namespace {

constexpr std::array listSwitches{
    QLatin1StringView("--enable-features"),
    QLatin1StringView("--disable-features"),
    QLatin1StringView("--enable-blink-features"),
    QLatin1StringView("--disable-blink-features"),
};

QString nameOf(const QString &text)
{
    return text.section(u'=', 0, 0);
}

bool isList(const QString &text)
{
    const QString name = nameOf(text);
    return text.contains(u'=') && std::find(listSwitches.begin(), listSwitches.end(), name) != listSwitches.end();
}

QStringList valuesOf(const QString &text)
{
    return text.section(u'=', 1).split(u',', Qt::SkipEmptyParts);
}

} // namespace

QStringList split(const QString &text)
{
    return QProcess::splitCommand(text);
}

QStringList ofUser(const QStringList &commandLine)
{
    return split(qEnvironmentVariable("TRAWLEX_BROWSER_ARGS")) + commandLine;
}

QStringList joined(const QStringList &own, const QStringList &later)
{
    QStringList result;
    for (const QString &each : own + later) {
        if (!isList(each)) {
            result.append(each);
            continue;
        }
        QStringList values;
        result.removeIf([&](const QString &earlier) {
            const bool same = isList(earlier) && nameOf(earlier) == nameOf(each);
            if (same)
                values = valuesOf(earlier);
            return same;
        });
        values += valuesOf(each);
        values.removeDuplicates();
        result.append(nameOf(each) + u'=' + values.join(u','));
    }
    return result;
}

} // namespace BrowserSwitches
