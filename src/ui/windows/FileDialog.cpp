#include "ui/windows/FileDialog.h"

#include "ui/windows/ScreenRoom.h"

#include <QDir>

// The box looks into its first folder before it can be told how: that is one where no database lies.
FileDialog::FileDialog(QWidget *parent, const QString &title, const QString &place, const QString &filter)
    : QFileDialog(parent, title, QDir::rootPath(), filter)
{
    setOption(DontUseNativeDialog);
    setIconProvider(this);
    const QFileInfo start(place);
    setDirectory(start.isDir() ? place : start.isFile() ? start.path() : QDir::homePath());
    if (start.isFile())
        selectFile(start.fileName());
    setHistory({});
}

QString FileDialog::choose()
{
    ScreenRoom::fitOnScreen(*this, sizeHint());
    return exec() == Accepted ? selectedFiles().value(0) : QString();
}
