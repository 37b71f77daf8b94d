#include "app/frmFoto.h"

#include "util/Text.h"

#include <QDir>
#include <algorithm>

void frmFoto::show()
{
    mOpen = true;
    Q_EMIT shown();
}

void frmFoto::unload()
{
    mOpen = false;
    mActiveDirectory.clear();
    Q_EMIT unloaded();
}

void frmFoto::setCaption(const QString &caption)
{
    mCaption = caption;
    Q_EMIT changed();
}

void frmFoto::setNotice(const QString &notice)
{
    mNotice = notice;
    Q_EMIT changed();
}

void frmFoto::setMoveToDirectory(const QString &directory)
{
    mMoveToDirectory = directory;
    Q_EMIT changed();
}

void frmFoto::setPictures(const QString &directory, const QStringList &files)
{
    mActiveDirectory = directory;
    mFiles = files;
    QStringList names;
    names.reserve(files.size());
    for (const QString &file : files)
        names.append(cUtility::lowered(file));
    lstFoto.setItems(names);
    Q_EMIT changed();
}

void frmFoto::addPicture(const QString &file)
{
    mFiles.append(file);
    lstFoto.addItem(QDir::fromNativeSeparators(file).section(u'/', -1));
}

void frmFoto::insertPicture(int index, const QString &file)
{
    const qsizetype at = std::clamp<qsizetype>(index, 0, mFiles.size());
    QStringList names = lstFoto.items();
    names.insert(at, cUtility::lowered(file));
    mFiles.insert(at, file);
    lstFoto.setItems(names);
}

void frmFoto::removePicture(int index)
{
    lstFoto.removeItem(index);
    mFiles.removeAt(index);
}

void frmFoto::choosePicture(int index)
{
    std::vector<bool> selected(static_cast<std::size_t>(lstFoto.listCount()));
    if (index >= 0)
        selected.at(static_cast<std::size_t>(index)) = true;
    lstFoto.choose(index, selected);
}

QString frmFoto::picturePath(int index) const
{
    if (mActiveDirectory.isEmpty() || index < 0 || index >= mFiles.size())
        return {};
    // A path that begins at the root stays as it is.
    return QDir(mActiveDirectory).filePath(mFiles.at(index));
}
