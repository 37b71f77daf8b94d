#include "engine/chromium/ChromiumProgram.h"
#include "util/ProgramParts.h"

#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::Literals::StringLiterals;

namespace ChromiumProgram {

const QStringList &names()
{
    static const QStringList all{
        u"chromium"_s,
        u"google-chrome"_s,
        u"microsoft-edge"_s,
        u"brave-browser"_s,
        u"chromium-browser"_s,
        u"google-chrome-stable"_s,
        u"microsoft-edge-stable"_s,
        u"brave-browser-stable"_s,
        u"chrome"_s,
        u"msedge"_s,
        u"brave"_s,
        u"chromium.exe"_s,
        u"chrome.exe"_s,
        u"msedge.exe"_s,
        u"brave.exe"_s,
    };
    return all;
}

bool isKnown(const QString &path)
{
    return names().contains(QFileInfo(path).fileName(), Qt::CaseInsensitive);
}

QString find()
{
    for (const QString &name : names()) {
        QString path = QStandardPaths::findExecutable(name);
        if (!path.isEmpty())
            return path;
    }
    return {};
}

QString holder()
{
    return cUtility::programPart(u"trawlex-browser-holder"_s);
}

} // namespace ChromiumProgram
