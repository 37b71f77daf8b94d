#include "util/ProgramParts.h"

#include "util/Errors.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibrary>

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
    return programPart(name, ownFolder());
}

QString cUtility::programPart(const QString &name, const QString &own)
{
    const QString installed = QDir::cleanPath(own + "/" TRAWLEX_PARTS_FROM_BIN ""_L1);
    for (const QString &folder : {own, installed}) {
        QString path = folder + u'/' + name;
        if (QFileInfo(path).isFile())
            return path;
    }
    throw RuntimeError(ErrorNumber::FileNotFound,
                       u"%1 is not installed: it is neither in %2 nor in %3."_s.arg(name, own, installed));
}

QFunctionPointer cUtility::functionOfPart(const QString &name, const char *function)
{
    QLibrary file(programPart(name));
    const QFunctionPointer found = file.resolve(function);
    if (found == nullptr)
        throw RuntimeError(ErrorNumber::FileNotFound, name + u": "_s + file.errorString());
    return found;
}
