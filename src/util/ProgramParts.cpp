#include "util/ProgramParts.h"

#include <QCoreApplication>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {
QString ownFolder()
{
    if (QCoreApplication::instance() != nullptr)
        return QCoreApplication::applicationDirPath();
    return QFileInfo(QFileInfo(u"/proc/self/exe"_s).symLinkTarget()).path();
}
} // namespace

QString cUtility::programPart(const QString &name)
{
    const QString own = ownFolder();
    for (const QLatin1StringView folder : {"/"_L1, "/../libexec/trawlex/"_L1}) {
        QString path = own + folder + name;
        if (QFileInfo(path).isFile())
            return path;
    }
    return {};
}
