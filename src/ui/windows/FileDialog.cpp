#include "ui/windows/FileDialog.h"

#include "ui/windows/ScreenRoom.h"

#include <QDir>

namespace {
/// Where `place` leads to: a file need not be there for its folder to be.
QString folderOf(const QString &place)
{
    const QFileInfo start(place);
    if (place.isEmpty() || start.isDir())
        return place.isEmpty() ? QDir::homePath() : place;
    return QFileInfo(start.path()).isDir() ? start.path() : QDir::homePath();
}
} // namespace

// The box looks into its first folder before it can be told how: that is one where no database lies.
FileDialog::FileDialog(QWidget *parent, const QString &title, const QString &place, const QString &filter)
    : QFileDialog(parent, title, QDir::rootPath(), filter)
{
    setOption(DontUseNativeDialog);
    setIconProvider(this);
    const QFileInfo start(place);
    setDirectory(folderOf(place));
    if (start.isFile())
        selectFile(start.fileName());
    setHistory({});
}

QString FileDialog::choose()
{
    ScreenRoom::fitOnScreen(*this, sizeHint());
    return exec() == Accepted ? selectedFiles().value(0) : QString();
}
