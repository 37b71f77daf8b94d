#include "ui/look/FileIcons.h"

#include <QFileInfo>
#include <QMimeDatabase>

QIcon FileIcons::icon(const QFileInfo &file) const
{
    if (file.isRoot())
        return icon(Drive);
    return icon(file.isDir() ? Folder : File);
}

QString FileIcons::type(const QFileInfo &file) const
{
    return QMimeDatabase().mimeTypeForFile(file, QMimeDatabase::MatchExtension).comment();
}
