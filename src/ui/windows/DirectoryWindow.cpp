#include "ui/windows/DirectoryWindow.h"

#include "ui/look/Icons.h"
#include "ui_DirectoryWindow.h"

#include <QDir>
#include <QEvent>
#include <QScrollBar>
#include <QStorageInfo>
#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {
QString withSeparator(const QString &path)
{
    const QString native = QDir::toNativeSeparators(path);
    return native.endsWith(QDir::separator()) ? native : native + QDir::separator();
}

/// Below these folders the system mounts what users plug in.
bool isForUsers(const QString &path)
{
    static const QStringList roots{u"/media/"_s, u"/run/media/"_s, u"/mnt/"_s};
    return std::any_of(roots.begin(), roots.end(), [&path](const QString &root) { return path.startsWith(root); });
}
} // namespace

DirectoryWindow::DirectoryWindow(QWidget *main) : QDialog(main), mUi(std::make_unique<Ui::DirectoryWindow>())
{
    mUi->setupUi(this);
    setObjectName(u"frmDirSel"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    mUi->drvDirSelect->addItems(drives());
    mFolders.setIconProvider(&mIcons);
    mFolders.setFilter(QDir::AllDirs | QDir::NoDotAndDotDot);
    mFolders.setRootPath(QString());
    mUi->dirDirSelect->setModel(&mFolders);
    for (int column = 1; column < mFolders.columnCount(); ++column)
        mUi->dirDirSelect->hideColumn(column);
    connect(&mFolders, &QFileSystemModel::directoryLoaded, this, &DirectoryWindow::keepInSight);
    for (QObject *const part : std::initializer_list<QObject *>{mUi->dirDirSelect, mUi->dirDirSelect->viewport(),
                                                                mUi->dirDirSelect->verticalScrollBar()})
        part->installEventFilter(this);
    connect(mUi->drvDirSelect, &QComboBox::activated, this, &DirectoryWindow::chooseDrive);
    connect(mUi->dirDirSelect->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &now) {
                if (now.isValid())
                    takeDirectory(mFolders.filePath(now));
            });
    connect(mUi->cmdDirList_0, &QPushButton::clicked, this, &QDialog::accept);
    connect(mUi->cmdDirList_1, &QPushButton::clicked, this, &QDialog::reject);
    connect(this, &QDialog::finished, this, &DirectoryWindow::finish);
    InitDir(QString());
}

DirectoryWindow::~DirectoryWindow() = default;

QStringList DirectoryWindow::drives()
{
    QStringList paths{QDir::homePath(), QDir::rootPath()};
    for (const QStorageInfo &volume : QStorageInfo::mountedVolumes()) {
        if (isForUsers(volume.rootPath()) || QDir::rootPath() != "/"_L1)
            paths.append(volume.rootPath());
    }
    paths.removeDuplicates();
    return paths;
}

void DirectoryWindow::InitDir(const QString &directory)
{
    takeDirectory(!directory.isEmpty() && QDir(directory).exists() ? directory : QDir::homePath());
    mGoodDrive = driveOf(mDirectory);
    mUi->drvDirSelect->setCurrentIndex(mGoodDrive);
    showInTree();
}

/// The one that leads to it on the shortest way.
int DirectoryWindow::driveOf(const QString &directory) const
{
    int nearest = 0;
    qsizetype shared = 0;
    for (int i = 0; i < mUi->drvDirSelect->count(); ++i) {
        const QString drive = withSeparator(mUi->drvDirSelect->itemText(i));
        if (drive.size() > shared && directory.startsWith(drive)) {
            nearest = i;
            shared = drive.size();
        }
    }
    return nearest;
}

/// A drive that cannot be read is not taken: the list goes back to the last good one.
void DirectoryWindow::chooseDrive(int index)
{
    const QString path = mUi->drvDirSelect->itemText(index);
    if (!QDir(path).isReadable())
        return mUi->drvDirSelect->setCurrentIndex(mGoodDrive);
    mGoodDrive = index;
    takeDirectory(path);
    showInTree();
}

void DirectoryWindow::takeDirectory(const QString &path)
{
    mDirectory = withSeparator(path);
    mUi->txtDir->setText(mDirectory);
}

void DirectoryWindow::showInTree()
{
    const QModelIndex index = mFolders.index(QDir::cleanPath(mDirectory));
    mUi->dirDirSelect->setCurrentIndex(index);
    mUi->dirDirSelect->expand(index);
    mUi->dirDirSelect->scrollTo(index, QAbstractItemView::PositionAtCenter);
    mAwaited.clear();
    for (QModelIndex above = index; above.isValid(); above = above.parent())
        mAwaited.append(mFolders.filePath(above));
}

/// The folders above come one after the other, and each moves what is below it.
void DirectoryWindow::keepInSight(const QString &loaded)
{
    if (mAwaited.removeAll(loaded) > 0)
        mUi->dirDirSelect->scrollTo(mUi->dirDirSelect->currentIndex(), QAbstractItemView::PositionAtCenter);
}

/// Whoever scrolls or opens folders meanwhile is looking at something else.
bool DirectoryWindow::eventFilter(QObject *watched, QEvent *event)
{
    static constexpr std::array moves{QEvent::MouseButtonPress, QEvent::Wheel, QEvent::KeyPress};
    if (std::ranges::find(moves, event->type()) != moves.end())
        mAwaited.clear();
    return QDialog::eventFilter(watched, event);
}

void DirectoryWindow::finish(int result)
{
    Q_EMIT DirSelectionChanged(result == Accepted ? mDirectory : QString());
}
