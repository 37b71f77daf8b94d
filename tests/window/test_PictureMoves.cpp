// Files that are moved and deleted: names that are taken, other file systems, full ones, and a kill at any moment.
#include "window/side/PictureMoves.h"

#include "PictureFolderFixture.h"
#include "util/Errors.h"

#include <QDateTime>
#include <QFileInfo>
#include <QStorageInfo>
#include <QThread>
#include <random>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

class PictureMovesTest : public PictureFolderTest
{
};

namespace {
qint64 errorOf(const std::function<void()> &action)
{
    try {
        action();
    } catch (const RuntimeError &error) {
        return error.number();
    }
    return 0;
}
} // namespace

TEST_F(PictureMovesTest, TheNumberOfATakenNameIsRaised)
{
    struct Case
    {
        const char *name, *next, *afterThat;
    };
    const Case cases[] = {
        {"a.jpg", "a-1.jpg", "a-2.jpg"},
        {"boats7.jpg", "boats-8.jpg", "boats-9.jpg"},
        {"009.gif", "010.gif", "011.gif"},
        {"a-.bmp", "a--1.bmp", "a--2.bmp"},
        {"1 of 3.jpg", "2- of 3.jpg", "3- of 3.jpg"},
        {"ä.jpg", "ä-1.jpg", "ä-2.jpg"},
    };
    for (const Case &row : cases) {
        const QString name = QString::fromUtf8(row.name);
        EXPECT_EQ(PictureMoves::vacantName(target() + name), target() + name);
        make(target() + name, "one");
        const QString next = target() + QString::fromUtf8(row.next);
        EXPECT_EQ(PictureMoves::vacantName(target() + name), next);
        make(next, "two");
        EXPECT_EQ(PictureMoves::vacantName(target() + name), target() + QString::fromUtf8(row.afterThat));
        QFile::remove(next);
    }
}

TEST_F(PictureMovesTest, AMovedFileKeepsContentTimeAndRights)
{
    const QDateTime then(QDate(2001, 2, 3), QTime(4, 5, 6));
    for (const auto &way : {&PictureMoves::copy, &PictureMoves::move}) {
        const QString picture = make(u"Boat.JPG"_s);
        QFile file(picture);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.setFileTime(then, QFile::FileModificationTime));
        ASSERT_TRUE(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup));
        file.close();
        const QString path = way(picture, target() + u"Boat.JPG"_s);
        EXPECT_EQ(content(path), "Boat.JPG");
        EXPECT_EQ(QFileInfo(path).lastModified(), then);
        EXPECT_TRUE(QFileInfo(path).permission(QFile::ReadGroup));
        EXPECT_FALSE(QFileInfo(path).permission(QFile::ReadOther));
    }
    EXPECT_EQ(names(source()), QStringList());
    EXPECT_EQ(names(target()), (QStringList{u"Boat-1.JPG"_s, u"Boat.JPG"_s}));
}

TEST_F(PictureMovesTest, WhatALinkLeadsToIsMovedAndStaysWhereItIs)
{
    const QString picture = make(target() + u"real.jpg"_s, "content");
    ASSERT_TRUE(
        QFile::link(u"../"_s + QFileInfo(target().chopped(1)).fileName() + u"/real.jpg"_s, source() + u"link.jpg"_s));
    const QString path = PictureMoves::move(source() + u"link.jpg"_s, target() + u"link.jpg"_s);
    EXPECT_FALSE(QFileInfo(path).isSymLink());
    EXPECT_EQ(content(path), "content");
    EXPECT_EQ(content(picture), "content");
    EXPECT_EQ(names(source()), QStringList());
}

TEST_F(PictureMovesTest, AFolderOfTheFilesNameIsNotTouched)
{
    ASSERT_TRUE(QDir(target()).mkdir(u"a.jpg"_s));
    EXPECT_EQ(PictureMoves::move(make(u"a.jpg"_s), target() + u"a.jpg"_s), target() + u"a-1.jpg"_s);
    EXPECT_TRUE(QFileInfo(target() + u"a.jpg"_s).isDir());
}

TEST_F(PictureMovesTest, WhatCannotBeDoneIsAnErrorAndChangesNothing)
{
    const QString picture = make(u"a.jpg"_s);
    EXPECT_EQ(errorOf([&] { PictureMoves::move(picture, target() + u"none/a.jpg"_s); }), ErrorNumber::PathAccessError);
    EXPECT_EQ(errorOf([&] { PictureMoves::move(source() + u"b.jpg"_s, target() + u"b.jpg"_s); }),
              ErrorNumber::FileNotFound);
    EXPECT_EQ(errorOf([&] { PictureMoves::kill(source() + u"b.jpg"_s); }), ErrorNumber::FileNotFound);
    EXPECT_EQ(errorOf([&] { PictureMoves::toTrash(source() + u"b.jpg"_s); }), ErrorNumber::FileNotFound);
    const QString tooLong = target() + QString(300, u'a') + u".jpg"_s;
    EXPECT_EQ(errorOf([&] { PictureMoves::move(picture, tooLong); }), ErrorNumber::PathAccessError);
    EXPECT_EQ(content(picture), "a.jpg");
    EXPECT_EQ(names(target()), QStringList());
}

TEST_F(PictureMovesTest, WhatWasPutIntoTheTrashComesBack)
{
    QTemporaryDir data;
    qputenv("XDG_DATA_HOME", data.path().toUtf8());
    const QString picture = make(u"a.jpg"_s);
    const QString inTrash = PictureMoves::toTrash(picture);
    EXPECT_FALSE(QFile::exists(picture));
    EXPECT_EQ(content(inTrash), "a.jpg");
    EXPECT_EQ(PictureMoves::fromTrash(inTrash, picture), picture);
    EXPECT_EQ(content(picture), "a.jpg");
    EXPECT_EQ(QDir(QFileInfo(inTrash).path() + u"/../info"_s).entryList(QDir::Files), QStringList());
    qunsetenv("XDG_DATA_HOME");
}

#ifdef Q_OS_UNIX
namespace {
/// A folder on another file system than that for temporary files; not valid where there is none.
std::unique_ptr<QTemporaryDir> folderElsewhere()
{
    auto elsewhere = std::make_unique<QTemporaryDir>(u"/dev/shm/trawlex-XXXXXX"_s);
    const bool differs = QStorageInfo(elsewhere->path()).device() != QStorageInfo(QDir::tempPath()).device();
    return elsewhere->isValid() && differs ? std::move(elsewhere) : nullptr;
}

/// Runs `part` in a process of its own; its exit status, or minus the signal that ended it.
int inOtherProcess(const std::function<int()> &part, unsigned killAfterMicroseconds = 0)
{
    const pid_t child = fork();
    if (child == 0)
        _exit(part());
    if (killAfterMicroseconds > 0) {
        QThread::usleep(killAfterMicroseconds);
        kill(child, SIGKILL);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
}

constexpr int pictureSize = 300'000;
QByteArray bytesOf(int picture)
{
    return QByteArray(pictureSize, static_cast<char>('a' + picture % 26)) + QByteArray::number(picture);
}
} // namespace

TEST_F(PictureMovesTest, AFileMovesToAnotherFileSystem)
{
    const auto elsewhere = folderElsewhere();
    if (!elsewhere)
        GTEST_SKIP() << "there is one file system only";
    const QString there = elsewhere->path() + u'/';
    make(there + u"a.jpg"_s, "other");
    EXPECT_EQ(PictureMoves::move(make(u"a.jpg"_s), there + u"a.jpg"_s), there + u"a-1.jpg"_s);
    EXPECT_EQ(content(there + u"a-1.jpg"_s), "a.jpg");
    EXPECT_EQ(content(there + u"a.jpg"_s), "other");
    EXPECT_EQ(names(source()), QStringList());
    EXPECT_EQ(names(there), (QStringList{u"a-1.jpg"_s, u"a.jpg"_s}));
}

TEST_F(PictureMovesTest, AFullTargetLeavesTheSourceAndNothingElse)
{
    const auto elsewhere = folderElsewhere();
    if (!elsewhere)
        GTEST_SKIP() << "there is one file system only";
    const QString picture = make(source() + u"a.jpg"_s, bytesOf(1));
    const int status = inOtherProcess([&] {
        const rlimit most{pictureSize / 2, pictureSize / 2};
        signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &most);
        return static_cast<int>(errorOf([&] { PictureMoves::move(picture, elsewhere->path() + u"/a.jpg"_s); }));
    });
    EXPECT_EQ(status, ErrorNumber::PathAccessError);
    EXPECT_EQ(content(picture), bytesOf(1));
    EXPECT_EQ(names(elsewhere->path()), QStringList());
}

TEST_F(PictureMovesTest, AKillBetweenCopyAndDeleteLosesNothing)
{
    const QString picture = make(source() + u"a.jpg"_s, bytesOf(7));
    const int status = inOtherProcess([&] {
        PictureMoves::copy(picture, target() + u"a.jpg"_s);
        return raise(SIGKILL); // where move() would delete the source
    });
    EXPECT_EQ(status, -SIGKILL);
    EXPECT_EQ(content(picture), bytesOf(7));
    EXPECT_EQ(content(target() + u"a.jpg"_s), bytesOf(7));
    EXPECT_EQ(PictureMoves::move(picture, target() + u"a.jpg"_s), target() + u"a-1.jpg"_s) << "the next start";
}

TEST_F(PictureMovesTest, AKillAtAnyMomentLosesNothingOnOneFileSystemAndAcrossTwo)
{
    constexpr int pictures = 60, kills = 15;
    const auto elsewhere = folderElsewhere();
    QStringList targets{target()};
    if (elsewhere)
        targets.append(elsewhere->path() + u'/');
    std::mt19937 random(std::random_device{}());
    for (const QString &there : std::as_const(targets)) {
        for (int picture = 0; picture < pictures; ++picture)
            make(source() + u"p%1.jpg"_s.arg(picture), bytesOf(picture));
        for (int round = 0; round < kills; ++round) {
            inOtherProcess(
                [&] {
                    for (const QString &name : names(source()))
                        PictureMoves::move(source() + name, there + name);
                    return 0;
                },
                1 + static_cast<unsigned>(random() % 4000));
            for (int picture = 0; picture < pictures; ++picture) {
                const QString name = u"p%1.jpg"_s.arg(picture);
                const QByteArray here = content(source() + name), moved = content(there + name);
                ASSERT_TRUE(here == bytesOf(picture) || moved == bytesOf(picture)) << "lost: " << picture;
                ASSERT_TRUE(moved == "(not there)" || moved == bytesOf(picture)) << "half there: " << picture;
            }
        }
        for (const QString &name : names(source()))
            QFile::remove(source() + name);
    }
}
#endif
