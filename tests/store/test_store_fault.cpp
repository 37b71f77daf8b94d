// Which fault it was: each is told apart from the others, when a file is opened and in the middle of a page, and
// nothing is reported as kept that is not in the file at its place.
#include "FaultFixture.h"
#include "OtherProcess.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>
#include <sys/mount.h>

using namespace Qt::StringLiterals;

namespace {
class StoreFaultTest : public FaultTest
{
  protected:
    // One page of three rows. True when it is reported as kept.
    bool storePage(cAdoMdb &database, int number)
    {
        Transaction page(database, 0);
        for (int row = 0; row < 3; ++row)
            static_cast<void>(add(database, u"SiteSummary"_s,
                                  {{"Url"_L1, QString::number(number)}, {"FullPage"_L1, QString(mPageLength, u'x')}}));
        const bool kept = page.commit();
        mFault = page.fault();
        EXPECT_EQ(kept, mFault == StoreFault::None);
        return kept;
    }
    // The rows that somebody finds who opens the file.
    [[nodiscard]] qint64 rowsIn(const QString &name)
    {
        auto database = declared(name);
        EXPECT_TRUE(database->TestDatabase(true)) << mLog.text();
        return count(*database, u"SELECT Index FROM SiteSummary"_s);
    }
    [[nodiscard]] StoreFault faultOfTest(const QString &name)
    {
        auto database = declared(name);
        EXPECT_FALSE(database->TestDatabase(true));
        return database->fault();
    }

    int mPageLength = 3000;
    StoreFault mFault = StoreFault::None;
};
} // namespace

TEST_F(StoreFaultTest, EachHasItsWords)
{
    EXPECT_EQ(StoreFaults::text(StoreFault::Locked), u"Database is locked"_s);
    EXPECT_EQ(StoreFaults::text(StoreFault::Full), u"Disk is full"_s);
    EXPECT_EQ(StoreFaults::text(StoreFault::None), QString());
    QStringList words;
    for (int fault = 1; fault <= static_cast<int>(StoreFault::Failed); ++fault)
        words.append(StoreFaults::text(static_cast<StoreFault>(fault)));
    EXPECT_EQ(words.removeDuplicates(), 0);
    EXPECT_FALSE(words.contains(QString()));
    EXPECT_TRUE(StoreFaults::mayPass(StoreFault::Locked) && StoreFaults::mayPass(StoreFault::Full));
    EXPECT_FALSE(StoreFaults::mayPass(StoreFault::Gone) || StoreFaults::mayPass(StoreFault::Damaged));
    EXPECT_FALSE(StoreFaults::mayPass(StoreFault::None));
    EXPECT_EQ(StoreFaults::of(StoreError(StoreFault::Full, 1, u"x"_s)), StoreFault::Full);
    EXPECT_EQ(StoreFaults::of(RuntimeError(1, u"x"_s)), StoreFault::None);
    EXPECT_EQ(StoreFaults::of(std::bad_alloc()), StoreFault::None);
}

TEST_F(StoreFaultTest, AFileThatIsNoDatabaseOrBrokenIsDamaged)
{
    write(pathOf(u"a.mdb"_s), QByteArray(10'000, 'x'));
    EXPECT_EQ(faultOfTest(u"a.mdb"_s), StoreFault::Damaged);
    const QByteArray whole = read(filled(300));
    write(pathOf(u"b.mdb"_s), whole.left(whole.size() / 2));
    EXPECT_EQ(faultOfTest(u"b.mdb"_s), StoreFault::Damaged);
}

TEST_F(StoreFaultTest, OtherTablesAreNoFault)
{
    write(pathOf(u"a.mdb"_s), {});
    EXPECT_EQ(faultOfTest(u"a.mdb"_s), StoreFault::None);
}

TEST_F(StoreFaultTest, AFileThatIsNotThereIsGoneAndAFolderCannotBeRead)
{
    EXPECT_EQ(faultOfTest(u"none.mdb"_s), StoreFault::Gone);
    QDir(mFolder.path()).mkdir(u"sub.mdb"_s);
    cAdoMdb database(mLog);
    database.setDatabasePath(pathOf(u"no/folder.mdb"_s));
    EXPECT_EQ(database.fault(), StoreFault::Gone);
    EXPECT_EQ(StoreFaults::ofFolder(mFolder.path()), StoreFault::None);
    EXPECT_EQ(StoreFaults::ofFolder(pathOf(u"no"_s)), StoreFault::Gone);
}

TEST_F(StoreFaultTest, AFileThatMayNotBeReadOrWrittenSaysWhich)
{
    const QString path = filled(3);
    openToAll();
    QFile::setPermissions(path, {});
    {
        const auto user = asAnotherUser();
        EXPECT_EQ(faultOfTest(u"Trawlex-0.mdb"_s), StoreFault::Unreadable);
    }
    QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    const auto user = asAnotherUser();
    auto database = declared(u"Trawlex-0.mdb"_s);
    ASSERT_TRUE(database->TestDatabase(true)) << mLog.text();
    EXPECT_FALSE(storePage(*database, 1));
    EXPECT_EQ(mFault, StoreFault::ReadOnly);
}

TEST_F(StoreFaultTest, AFolderThatMayNotBeWrittenSaysSo)
{
    static_cast<void>(filled(3));
    openToAll();
    QFile::setPermissions(mFolder.path(), QFile::Permissions(0x5555));
    {
        const auto user = asAnotherUser();
        EXPECT_EQ(StoreFaults::ofFolder(mFolder.path()), StoreFault::ReadOnly);
        auto database = declared(u"Trawlex-0.mdb"_s);
        ASSERT_TRUE(database->TestDatabase(true)) << mLog.text();
        EXPECT_FALSE(storePage(*database, 1));
        EXPECT_EQ(mFault, StoreFault::ReadOnly);
        auto fresh = declared(u"Trawlex-1.mdb"_s);
        EXPECT_EQ(fresh->fault(), StoreFault::ReadOnly) << "the path is refused";
        EXPECT_FALSE(database->CreateDatabase(true));
        EXPECT_EQ(database->fault(), StoreFault::ReadOnly);
    }
    QFile::setPermissions(mFolder.path(), QFile::Permissions(0x7777));
}

// A file that is open stays writable whatever its rights become; but not on a disk that has become one to read.
TEST_F(StoreFaultTest, FilesThatBecomeReadOnlyWhileTheyAreOpenSaySo)
{
    auto database = created();
    EXPECT_TRUE(storePage(*database, 1));
    const QStringList files{database->DatabasePath(), database->DatabasePath() + u"-wal"_s};
    const auto makeWritable = qScopeGuard([&] { QProcess::execute(u"chattr"_s, QStringList(u"-i"_s) + files); });
    if (QProcess::execute(u"chattr"_s, QStringList(u"+i"_s) + files) != 0)
        GTEST_SKIP() << "only the superuser can do that to files, and not on every disk";
    EXPECT_FALSE(storePage(*database, 2));
    EXPECT_EQ(mFault, StoreFault::ReadOnly) << mLog.text();
    QProcess::execute(u"chattr"_s, QStringList(u"-i"_s) + files);
    EXPECT_TRUE(storePage(*database, 2)) << mLog.text();
    EXPECT_EQ(rowsIn(u"Trawlex-0.mdb"_s), 6);
}

TEST_F(StoreFaultTest, AFileThatAnotherProgramWritesToIsLockedAndItsHolderIsNamed)
{
    auto database = created();
    auto other = startOtherProcess(u"hold-lock"_s, database->DatabasePath());
    ASSERT_TRUE(other->waitForReadyRead(10'000));
    QElapsedTimer time;
    time.start();
    EXPECT_FALSE(storePage(*database, 1));
    EXPECT_LT(time.elapsed(), 1000) << "this page does not wait";
    EXPECT_EQ(mFault, StoreFault::Locked);
    EXPECT_EQ(database->lockHolders(), QStringList{u"test_store (%1)"_s.arg(other->processId())});
    other->closeWriteChannel();
    ASSERT_TRUE(other->waitForFinished(10'000));
    EXPECT_EQ(database->lockHolders(), QStringList());
    EXPECT_TRUE(storePage(*database, 1)) << mLog.text();
    EXPECT_EQ(count(*database, u"SELECT Index FROM SiteSummary"_s), 3);
}

TEST_F(StoreFaultTest, ALockOfSomeSecondsIsWaitedFor)
{
    auto database = created();
    auto other = startOtherProcess(u"hold-two-seconds"_s, database->DatabasePath());
    ASSERT_TRUE(other->waitForReadyRead(10'000));
    Transaction page(*database);
    EXPECT_TRUE(page.isActive()) << mLog.text();
    EXPECT_TRUE(add(*database, u"Block"_s, {{"UrlsContent"_L1, u"x"_s}}));
    EXPECT_TRUE(page.commit());
    EXPECT_EQ(page.fault(), StoreFault::None);
    ASSERT_TRUE(other->waitForFinished(10'000));
}

TEST_F(StoreFaultTest, AFileThatAnotherProgramKeepsForItselfIsLocked)
{
    const QString path = filled(1);
    auto other = startOtherProcess(u"hold-file"_s, path);
    ASSERT_TRUE(other->waitForReadyRead(10'000));
    auto database = declared(u"Trawlex-0.mdb"_s);
    EXPECT_FALSE(database->TestDatabase(true));
    EXPECT_EQ(database->fault(), StoreFault::Locked);
    EXPECT_EQ(database->lockHolders(), QStringList{u"test_store (%1)"_s.arg(other->processId())});
    other->closeWriteChannel();
    ASSERT_TRUE(other->waitForFinished(10'000));
    EXPECT_TRUE(database->TestDatabase(true));
    EXPECT_EQ(database->fault(), StoreFault::None);
}

TEST_F(StoreFaultTest, OnAFullDiskThePageIsNotKeptAndSaysWhy)
{
    auto database = created();
    int kept = 0;
    {
        const FullDisk disk(700'000);
        int page = 0;
        while (storePage(*database, ++page))
            ++kept;
        EXPECT_EQ(mFault, StoreFault::Full);
        EXPECT_FALSE(storePage(*database, page)) << "still full";
        EXPECT_EQ(mFault, StoreFault::Full);
    }
    EXPECT_GT(kept, 0);
    EXPECT_EQ(rowsIn(u"Trawlex-0.mdb"_s), kept * 3);
    EXPECT_TRUE(storePage(*database, 999)) << "there is room again" << mLog.text();
    EXPECT_EQ(rowsIn(u"Trawlex-0.mdb"_s), kept * 3 + 3);
}

TEST_F(StoreFaultTest, APageOfWhichTheFileRefusedARowIsNotKept)
{
    auto database = created();
    {
        Transaction page(*database);
        EXPECT_TRUE(add(*database, u"EmailAddress"_s, {{"Address"_L1, u"a@b.de"_s}}));
        {
            // So large that it leaves the memory before the transaction ends.
            const FullDisk disk(300'000);
            EXPECT_FALSE(add(*database, u"SiteSummary"_s, {{"FullPage"_L1, QString(30'000'000, u'x')}}));
        }
        static_cast<void>(add(*database, u"PhoneNumber"_s, {{"Number"_L1, u"1"_s}}));
        EXPECT_FALSE(page.commit()) << "there is room again, and the summary is missing";
        EXPECT_EQ(page.fault(), StoreFault::Full);
    }
    EXPECT_EQ(count(*database, u"SELECT * FROM EmailAddress"_s), 0);
    EXPECT_EQ(count(*database, u"SELECT * FROM PhoneNumber"_s), 0);
    EXPECT_TRUE(storePage(*database, 1)) << mLog.text();
}

TEST_F(StoreFaultTest, ADatabaseThatFindsNoRoomSaysSo)
{
    auto database = declared(u"Trawlex-0.mdb"_s);
    const FullDisk disk(20'000);
    EXPECT_FALSE(database->CreateDatabase(false));
    EXPECT_EQ(database->fault(), StoreFault::Full);
}

TEST_F(StoreFaultTest, OnARealFullDiskToo)
{
    const QString disk = pathOf(u"disk"_s);
    QDir().mkdir(disk);
    if (mount("tmpfs", QFile::encodeName(disk).constData(), "tmpfs", 0, "size=1500k") != 0)
        GTEST_SKIP() << "only the superuser can make a small disk; the limit of a file's size stands for it";
    const auto away = qScopeGuard([&] { umount2(QFile::encodeName(disk).constData(), MNT_DETACH); });
    auto database = created(u"disk/Trawlex-0.mdb"_s);
    int kept = 0;
    while (storePage(*database, kept + 1))
        ++kept;
    EXPECT_EQ(mFault, StoreFault::Full) << mLog.text();
    EXPECT_GT(kept, 0);
    EXPECT_EQ(StoreFaults::ofFolder(disk), StoreFault::Full);
    EXPECT_EQ(rowsIn(u"disk/Trawlex-0.mdb"_s), kept * 3);
}

namespace {
struct AwayCase
{
    const char *what;
    void (*happens)(const QDir &folder);
};

class AwayTest : public StoreFaultTest, public testing::WithParamInterface<AwayCase>
{
  protected:
    // A database in a folder of its own, with one page.
    [[nodiscard]] std::unique_ptr<cAdoMdb> opened()
    {
        QDir(mFolder.path()).mkdir(u"data"_s);
        auto database = created(u"data/a.mdb"_s);
        EXPECT_TRUE(storePage(*database, 1));
        return database;
    }
    void happens() { GetParam().happens(QDir(pathOf(u"data"_s))); }
};
} // namespace

TEST_P(AwayTest, IsNoticedBeforeAPage)
{
    auto database = opened();
    happens();
    EXPECT_FALSE(storePage(*database, 2));
    EXPECT_EQ(mFault, StoreFault::Gone) << mLog.text();
    EXPECT_FALSE(add(*database, u"Block"_s, {{"UrlsContent"_L1, u"x"_s}})) << "nor outside a transaction";
    EXPECT_EQ(database->fault(), StoreFault::Gone);
}

TEST_P(AwayTest, IsNoticedInAPage)
{
    auto database = opened();
    Transaction page(*database);
    EXPECT_TRUE(add(*database, u"Block"_s, {{"UrlsContent"_L1, u"x"_s}}));
    happens();
    EXPECT_FALSE(page.commit());
    EXPECT_EQ(page.fault(), StoreFault::Gone) << mLog.text();
}

INSTANTIATE_TEST_SUITE_P(
    Ways, AwayTest,
    testing::Values(
        AwayCase{"theFileIsMoved",
                 [](const QDir &folder) { QFile::rename(folder.filePath(u"a.mdb"_s), folder.filePath(u"b.mdb"_s)); }},
        AwayCase{"theFileIsDeleted", [](const QDir &folder) { QFile::remove(folder.filePath(u"a.mdb"_s)); }},
        AwayCase{"theFileIsReplaced",
                 [](const QDir &folder) {
                     QFile::copy(folder.filePath(u"a.mdb"_s), folder.filePath(u"b.mdb"_s));
                     QFile::remove(folder.filePath(u"a.mdb"_s));
                     QFile::rename(folder.filePath(u"b.mdb"_s), folder.filePath(u"a.mdb"_s));
                 }},
        AwayCase{"theLogIsDeleted", [](const QDir &folder) { QFile::remove(folder.filePath(u"a.mdb-wal"_s)); }},
        AwayCase{"theFolderIsMoved", [](const QDir &folder) { QDir().rename(folder.path(), folder.path() + u"2"_s); }},
        AwayCase{"theFolderIsDeleted", [](const QDir &folder) { QDir(folder.path()).removeRecursively(); }}),
    [](const auto &row) { return std::string(row.param.what); });

TEST_F(StoreFaultTest, AFileThatComesBackIsWrittenToAgain)
{
    QDir(mFolder.path()).mkdir(u"data"_s);
    auto database = created(u"data/a.mdb"_s);
    QDir().rename(pathOf(u"data"_s), pathOf(u"away"_s));
    EXPECT_FALSE(storePage(*database, 1));
    QDir().rename(pathOf(u"away"_s), pathOf(u"data"_s));
    EXPECT_TRUE(storePage(*database, 1)) << mLog.text();
    EXPECT_EQ(rowsIn(u"data/a.mdb"_s), 3);
}

TEST_F(StoreFaultTest, APathThatIsRelativeStaysTheFileThatWasOpened)
{
    const QString before = QDir::currentPath();
    const auto back = qScopeGuard([&] { QDir::setCurrent(before); });
    ASSERT_TRUE(QDir::setCurrent(mFolder.path()));
    cAdoMdb database(mLog);
    database.setDatabasePath(u"a.mdb"_s);
    declareSchema(database);
    ASSERT_TRUE(database.CreateDatabase(false));
    QDir::setCurrent(before);
    EXPECT_TRUE(storePage(database, 1)) << mLog.text();
}

TEST_F(StoreFaultTest, ATransactionInsideOneThatCouldNotBeginKnowsWhy)
{
    auto database = created();
    auto other = startOtherProcess(u"hold-lock"_s, database->DatabasePath());
    ASSERT_TRUE(other->waitForReadyRead(10'000));
    Transaction page(*database, 0);
    Transaction inner(*database, 0);
    EXPECT_FALSE(inner.commit());
    EXPECT_EQ(inner.fault(), StoreFault::Locked);
    EXPECT_EQ(page.fault(), StoreFault::Locked);
    other->closeWriteChannel();
    ASSERT_TRUE(other->waitForFinished(10'000));
}

TEST_F(StoreFaultTest, WhatIsWrongWithAStatementIsNoFaultOfTheFile)
{
    auto database = created();
    Transaction page(*database);
    EXPECT_TRUE(database->GetRecordset(u"SELECT ' FROM"_s).isOpen() == false);
    EXPECT_FALSE(database->AddRecord({u"no delimiter"_s}, -1, u"Block"_s, rowMarker));
    EXPECT_TRUE(add(*database, u"Block"_s, {{"UrlsContent"_L1, u"x"_s}}));
    EXPECT_TRUE(page.commit());
    EXPECT_EQ(page.fault(), StoreFault::None);
}

TEST_F(StoreFaultTest, FilesAreForTheirUserAlone)
{
    auto database = created();
    ASSERT_TRUE(storePage(*database, 1));
    const Recordset rows = database->GetRecordset(u"SELECT * FROM SiteSummary"_s);
    rows.Save(pathOf(u"set.dat"_s), Recordset::SaveFormat::Binary);
    rows.Save(pathOf(u"set.xml"_s), Recordset::SaveFormat::Xml);
    const QStringList names = QDir(mFolder.path()).entryList(QDir::Files);
    EXPECT_EQ(names.size(), 5) << "the file, what stands beside it, and two sets";
    constexpr auto othersRights = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    for (const QString &name : names)
        EXPECT_FALSE(QFile::permissions(pathOf(name)) & othersRights) << name.toStdString();
}
