#include "window/ProgramFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

QString dataFolder()
{
    QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/trawlex"_s;
    if (!QFileInfo::exists(folder) && QDir().mkpath(folder))
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return folder;
}

QString programFolder()
{
    const QString own = QCoreApplication::applicationDirPath();
    return QFileInfo(own).isWritable() ? own : dataFolder();
}

bool hasDisplay()
{
#ifdef Q_OS_UNIX
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
#else
    return true;
#endif
}
