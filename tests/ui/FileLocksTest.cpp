// A file that this process opens and closes loses the locks that the process holds on it. What lies beside a database
// has no ending that says what it is, so boxes that choose files and folders must not look into it.
#include "WindowFixture.h"
#include "ui/look/FileIcons.h"
#include "ui/windows/DirectoryWindow.h"
#include "ui/windows/FileDialog.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {
struct FileLocks : WindowFixture
{
    FileLocks()
    {
        EXPECT_TRUE(shared.open(QIODevice::ReadWrite) && shared.write(QByteArray(100, 24)) == 100 && shared.flush());
        struct flock lock = {};
        lock.l_type = F_WRLCK;
        EXPECT_EQ(fcntl(shared.handle(), F_SETLK, &lock), 0);
        EXPECT_TRUE(isLocked());
    }
    /// The system's own word for it: a process does not meet its own locks.
    [[nodiscard]] bool isLocked() const
    {
        struct stat file = {};
        EXPECT_EQ(fstat(shared.handle(), &file), 0);
        QFile list(u"/proc/locks"_s);
        EXPECT_TRUE(list.open(QIODevice::ReadOnly));
        const QByteArray mark = ":" + QByteArray::number(quint64(file.st_ino)) + " ";
        const QList<QByteArray> lines = list.readAll().split('\n');
        return std::any_of(lines.begin(), lines.end(), [&](const QByteArray &line) {
            return line.contains(mark) && line.contains(" " + QByteArray::number(getpid()) + " ");
        });
    }

    QTemporaryDir folder;
    QFile shared{folder.filePath(u"Trawlex-0.mdb-shm"_s)};
};
} // namespace

TEST_F(FileLocks, AnOpenedAndClosedFileLosesThem)
{
    QFile again(shared.fileName());
    ASSERT_TRUE(again.open(QIODevice::ReadOnly));
    again.close();
    EXPECT_FALSE(isLocked()) << "the tests below could not fail";
}

TEST_F(FileLocks, AreKeptWhereAFileIsChosen)
{
    FileDialog dialog(&window, u"Select File"_s, folder.path(), u"all (*)"_s);
    dialog.setViewMode(QFileDialog::Detail);
    dialog.show();
    auto &list = *dialog.findChild<QTreeView *>(u"treeView"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return list.model()->rowCount(list.rootIndex()) == 1; }, 5000));
    QTest::qWait(300);
    EXPECT_TRUE(isLocked());
}

TEST_F(FileLocks, AreKeptWhereAFolderIsChosen)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"below"_s));
    QPointer<DirectoryWindow> chooser(new DirectoryWindow(&window));
    chooser->show();
    chooser->InitDir(folder.path());
    auto &tree = *chooser->findChild<QTreeView *>(u"dirDirSelect"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return tree.model()->rowCount(tree.currentIndex()) == 1; }, 5000));
    QTest::qWait(300);
    EXPECT_TRUE(isLocked());
    chooser->close();
}

TEST_F(FileLocks, KindsAreToldByName)
{
    const FileIcons icons;
    EXPECT_FALSE(icons.type(QFileInfo(shared)).isEmpty());
    EXPECT_FALSE(icons.icon(QFileInfo(folder.path())).isNull());
    EXPECT_TRUE(isLocked());
}
