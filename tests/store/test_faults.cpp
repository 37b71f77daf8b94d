// What can befall a file: it is no database, it is cut off, it cannot be written, the disk is full, its folder goes, it
// is locked. Each ends in a logged error; the program lives, and what was reported as written is there.
#include "FaultFixture.h"
#include "OtherProcess.h"
#include "store/sqlite/Connection.h"

#include <QElapsedTimer>
#include <algorithm>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

TEST_F(FaultTest, AFileThatIsNoDatabaseIsRefusedAndLeftAlone)
{
    write(pathOf(u"a.mdb"_s), QByteArray(10'000, 'x'));
    expectRefused(u"a.mdb"_s);
    write(pathOf(u"b.mdb"_s), QByteArray("SQLite format 3\0", 16) + QByteArray(5000, '\7'));
    expectRefused(u"b.mdb"_s);
    write(pathOf(u"c.mdb"_s), QByteArray("\0\1\0\0Standard Jet DB\0", 20) + QByteArray(5000, '\0'));
    expectRefused(u"c.mdb"_s);
}

TEST_F(FaultTest, AnEmptyFileFailsTheTest)
{
    write(pathOf(u"a.mdb"_s), {});
    EXPECT_FALSE(declared(u"a.mdb"_s)->TestDatabase(true));
    EXPECT_EQ(read(pathOf(u"a.mdb"_s)), QByteArray());
}

TEST_F(FaultTest, ATruncatedFileNeverTakesTheProgramDown)
{
    const QByteArray whole = read(filled(500));
    for (const qsizetype length : {whole.size() - 5000, whole.size() / 2, qsizetype(4096), qsizetype(100)}) {
        write(pathOf(u"cut.mdb"_s), whole.left(length));
        auto database = declared(u"cut.mdb"_s);
        if (database->TestDatabase(true)) {
            static_cast<void>(database->GetFieldData(u"UrlsContent"_s, u"Block"_s));
            static_cast<void>(add(*database, u"Block"_s, {{"UrlsContent"_L1, u"x"_s}}));
        }
        EXPECT_FALSE(mLog.entries.isEmpty()) << length;
        mLog.entries.clear();
        database.reset();
        for (const QString &name : QDir(mFolder.path()).entryList({u"cut*"_s}))
            QFile::remove(pathOf(name));
    }
}

TEST_F(FaultTest, ADamagedFileNeverTakesTheProgramDown)
{
    const QByteArray whole = read(filled(300));
    for (int round = 0; round < 40; ++round) {
        QByteArray bytes = whole;
        for (int hit = 0; hit < 50; ++hit)
            bytes[100 + (round * 7919 + hit * 104'729) % (bytes.size() - 100)] = static_cast<char>(round + hit * 31);
        write(pathOf(u"cut.mdb"_s), bytes);
        auto database = declared(u"cut.mdb"_s);
        if (!database->TestDatabase(true))
            continue;
        for (const QStringList &table : LoadTblFldNames())
            static_cast<void>(database->GetFieldData(u"Url"_s, table[0]));
        static_cast<void>(add(*database, u"Block"_s, {{"UrlsContent"_L1, u"x"_s}}));
        database->DeleteRecords(u"Block"_s, u""_s, u""_s, false);
    }
    EXPECT_TRUE(std::any_of(mLog.entries.begin(), mLog.entries.end(), [](const auto &entry) {
        return entry.number == AdoError::Engine;
    })) << "the damage was never met";
}

TEST_F(FaultTest, ADamagedTableIsALoggedErrorAndNothing)
{
    const QString path = filled(3);
    sqlite3 *handle = nullptr;
    sqlite3_stmt *root = nullptr;
    ASSERT_EQ(sqlite3_open(path.toUtf8().constData(), &handle), SQLITE_OK);
    sqlite3_prepare_v2(handle, "SELECT rootpage FROM sqlite_schema WHERE name='Block'", -1, &root, nullptr);
    ASSERT_EQ(sqlite3_step(root), SQLITE_ROW);
    const int page = sqlite3_column_int(root, 0);
    sqlite3_finalize(root);
    sqlite3_close(handle);
    constexpr qsizetype pageSize = 4096;
    QByteArray bytes = read(path);
    write(path, bytes.replace((page - 1) * pageSize, pageSize, QByteArray(pageSize, '\xEE')));
    auto database = declared(u"Trawlex-0.mdb"_s);
    ASSERT_TRUE(database->TestDatabase(true)) << "names alone are tested";
    EXPECT_TRUE(mLog.entries.isEmpty()) << mLog.text();
    EXPECT_TRUE(database->GetRecordset(u"SELECT * FROM Block"_s).isNothing());
    EXPECT_TRUE(mLog.holds(AdoError::Engine, "Function GetRecordset"_L1)) << mLog.text();
    mLog.entries.clear();
    database->DeleteRecords(u"Block"_s, u"UrlsContent"_s, u"x"_s, false);
    EXPECT_TRUE(mLog.holds(AdoError::Engine, "Function GetRecordset"_L1)) << mLog.text();
    EXPECT_EQ(database->GetFieldData(u"UrlsContent"_s, u"Block"_s), QStringList{u""_s});
    EXPECT_TRUE(mLog.holds(91, "Function GetFieldData"_L1)) << mLog.text();
    EXPECT_FALSE(add(*database, u"Block"_s, {{"UrlsContent"_L1, u"x"_s}}));
    EXPECT_TRUE(mLog.holds(AdoError::Engine, "Function AddRecord"_L1)) << mLog.text();
    EXPECT_TRUE(add(*database, u"SiteSummary"_s, {{"Url"_L1, u"x"_s}})) << "the other tables are whole";
}

TEST_F(FaultTest, AReadOnlyFileIsReadAndEveryWriteIsAnError)
{
    const QString path = filled(3);
    openToAll();
    QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    {
        const auto user = asAnotherUser();
        auto database = declared(u"Trawlex-0.mdb"_s);
        EXPECT_TRUE(database->TestDatabase(true)) << mLog.text();
        EXPECT_EQ(count(*database, u"SELECT * FROM Block"_s), 3);
        EXPECT_FALSE(add(*database, u"Block"_s, {{"UrlsContent"_L1, u"x"_s}}));
        EXPECT_TRUE(mLog.holds(AdoError::Engine, "Function AddRecord"_L1)) << mLog.text();
        Recordset rows = database->GetRecordset(u"SELECT * FROM Block"_s);
        EXPECT_THROW(rows.AddNew(), RuntimeError);
        Transaction page(*database);
        EXPECT_FALSE(page.commit());
        database->DeleteRecords(u"Block"_s, u""_s, u""_s, false);
        EXPECT_EQ(count(*database, u"SELECT * FROM Block"_s), 3);
    }
}

TEST_F(FaultTest, AFileInAFolderThatCannotBeWrittenIsStillImportedFrom)
{
    const QString path = filled(3);
    openToAll();
    QFile::setPermissions(mFolder.path(), QFile::Permissions(0x5555));
    {
        const auto user = asAnotherUser();
        cAdoMdb database(mLog);
        Recordset rows = database.GetRecordSetFromExternalDB(path, u"SELECT * FROM Block"_s);
        ASSERT_FALSE(rows.isNothing()) << mLog.text();
        EXPECT_EQ(rows.RecordCount(), 3);
        auto own = declared(u"Trawlex-0.mdb"_s);
        EXPECT_FALSE(own->CreateDatabase(true)) << "the old file stays";
        EXPECT_TRUE(mLog.holds(75, "CreateDatabase"_L1)) << mLog.text();
    }
    QFile::setPermissions(mFolder.path(), QFile::Permissions(0x7777));
    EXPECT_TRUE(declared(u"Trawlex-0.mdb"_s)->TestDatabase(false));
}

TEST_F(FaultTest, OnAFullDiskNothingIsReportedThatIsNotKept)
{
    int reported = 0;
    const QString path = filled(0);
    {
        auto database = declared(u"Trawlex-0.mdb"_s);
        ASSERT_TRUE(database->TestDatabase(true));
        const FullDisk disk(600'000);
        bool failed = false;
        for (int page = 0; page < 60; ++page) {
            Transaction transaction(*database);
            for (int row = 0; row < 5; ++row)
                static_cast<void>(add(*database, u"SiteSummary"_s,
                                      {{"Url"_L1, QString::number(page)}, {"FullPage"_L1, QString(5000, u'x')}}));
            if (transaction.commit())
                ++reported;
            else
                failed = true;
        }
        EXPECT_TRUE(failed) << "the disk was never full";
        EXPECT_GT(reported, 0);
        EXPECT_FALSE(mLog.entries.isEmpty());
    }
    mLog.entries.clear();
    auto database = declared(u"Trawlex-0.mdb"_s);
    ASSERT_TRUE(database->TestDatabase(true)) << mLog.text();
    EXPECT_EQ(count(*database, u"SELECT * FROM SiteSummary"_s), reported * 5);
    EXPECT_TRUE(add(*database, u"SiteSummary"_s, {{"Url"_L1, u"after"_s}})) << mLog.text();
}

TEST_F(FaultTest, ADatabaseThatCannotBeMadeOnAFullDiskLeavesNothing)
{
    auto database = declared(u"Trawlex-0.mdb"_s);
    {
        const FullDisk disk(20'000);
        EXPECT_FALSE(database->CreateDatabase(false));
    }
    EXPECT_TRUE(mLog.holds(AdoError::Engine, "CreateDatabase"_L1)) << mLog.text();
    EXPECT_EQ(QDir(mFolder.path()).entryList(QDir::Files), QStringList());
    EXPECT_TRUE(database->CreateDatabase(false));
}

TEST_F(FaultTest, ASetThatCannotBeSavedLeavesTheOldFile)
{
    auto database = created();
    add(*database, u"SiteSummary"_s, {{"FullPage"_L1, QString(300'000, u'x')}});
    const Recordset set = database->GetRecordset(u"SELECT * FROM SiteSummary"_s);
    const auto errorOfSave = [&](const QString &path, Recordset::SaveFormat format) {
        try {
            set.Save(path, format);
        } catch (const RuntimeError &error) {
            return error.number();
        }
        return qint64(0);
    };
    const QString path = pathOf(u"old.dat"_s);
    write(path, "old");
    const QStringList before = QDir(mFolder.path()).entryList(QDir::Files);
    for (const auto &[format, full] : {std::pair{Recordset::SaveFormat::Binary, AdoError::Engine},
                                       std::pair{Recordset::SaveFormat::Xml, ErrorNumber::PathAccessError}}) {
        EXPECT_EQ(errorOfSave(pathOf(u"no/folder.dat"_s), format), 75);
        {
            const FullDisk disk(100'000);
            EXPECT_EQ(errorOfSave(path, format), full);
        }
        EXPECT_EQ(read(path), "old");
        EXPECT_EQ(QDir(mFolder.path()).entryList(QDir::Files), before) << "something half made is left";
    }
}

TEST_F(FaultTest, AFolderThatVanishesIsALoggedError)
{
    QDir(mFolder.path()).mkdir(u"sub"_s);
    auto database = declared(u"sub/Trawlex-0.mdb"_s);
    ASSERT_TRUE(database->CreateDatabase(false)) << mLog.text();
    ASSERT_TRUE(add(*database, u"Block"_s, {{"UrlsContent"_L1, u"x"_s}}));
    ASSERT_TRUE(QDir(pathOf(u"sub"_s)).removeRecursively());
    mLog.entries.clear();
    for (int row = 0; row < 3; ++row)
        static_cast<void>(add(*database, u"Block"_s, {{"UrlsContent"_L1, u"y"_s}}));
    database->CloseConnection();
    EXPECT_FALSE(database->TestDatabase(true));
    EXPECT_TRUE(mLog.holds(AdoError::Engine, "TestDatabase"_L1)) << mLog.text();
    EXPECT_FALSE(database->CreateDatabase(false));
    EXPECT_TRUE(mLog.holds(75, "CreateDatabase"_L1)) << mLog.text();
}

TEST_F(FaultTest, AFileThatAnotherProgramWritesToIsReadAndItsWritersWaitAndFail)
{
    auto database = created();
    ASSERT_TRUE(add(*database, u"Block"_s, {{"UrlsContent"_L1, u"a"_s}}));
    auto other = startOtherProcess(u"hold-lock"_s, database->DatabasePath());
    ASSERT_TRUE(other->waitForReadyRead(10'000));
    EXPECT_EQ(count(*database, u"SELECT * FROM Block"_s), 1) << "readers are not held up";
    {
        Transaction page(*database);
        EXPECT_FALSE(page.isActive());
        EXPECT_TRUE(mLog.holds(AdoError::Engine, "Transaction"_L1)) << mLog.text();
        EXPECT_FALSE(add(*database, u"Block"_s, {{"UrlsContent"_L1, u"b"_s}})) << "no row outside its transaction";
        other->closeWriteChannel();
        ASSERT_TRUE(other->waitForFinished(10'000));
        EXPECT_FALSE(add(*database, u"Block"_s, {{"UrlsContent"_L1, u"b"_s}}));
        EXPECT_FALSE(page.commit());
    }
    EXPECT_TRUE(add(*database, u"Block"_s, {{"UrlsContent"_L1, u"c"_s}}));
    EXPECT_EQ(database->GetFieldData(u"UrlsContent"_s, u"Block"_s), (QStringList{u"a"_s, u"c"_s}));
}

TEST_F(FaultTest, AFileThatAnotherProgramKeepsForItselfFailsTheTestInGoodTime)
{
    const QString path = filled(1);
    auto other = startOtherProcess(u"hold-file"_s, path);
    ASSERT_TRUE(other->waitForReadyRead(10'000));
    auto database = declared(u"Trawlex-0.mdb"_s);
    QElapsedTimer time;
    time.start();
    EXPECT_FALSE(database->TestDatabase(true));
    EXPECT_LT(time.elapsed(), 8000);
    EXPECT_TRUE(mLog.holds(AdoError::Engine, "TestDatabase"_L1)) << mLog.text();
    other->closeWriteChannel();
    ASSERT_TRUE(other->waitForFinished(10'000));
    EXPECT_TRUE(database->TestDatabase(true));
    EXPECT_EQ(count(*database, u"SELECT * FROM Block"_s), 1);
}

TEST_F(FaultTest, ATransactionThatTheEngineEndsTakesItsRowsAndTellsSo)
{
    auto database = created();
    ASSERT_TRUE(add(*database, u"Block"_s, {{"UrlsContent"_L1, u"before"_s}}));
    {
        Transaction page(*database);
        EXPECT_TRUE(add(*database, u"Block"_s, {{"UrlsContent"_L1, u"lost"_s}}));
        database->connection()->prepare("ROLLBACK").run();
        EXPECT_FALSE(add(*database, u"Block"_s, {{"UrlsContent"_L1, u"outside"_s}}));
        database->DeleteRecords(u"Block"_s, u""_s, u""_s, false);
        EXPECT_FALSE(page.commit());
        EXPECT_TRUE(mLog.holds(AdoError::Engine, "Transaction"_L1)) << mLog.text();
    }
    EXPECT_EQ(database->GetFieldData(u"UrlsContent"_s, u"Block"_s), QStringList{u"before"_s});
    EXPECT_TRUE(add(*database, u"Block"_s, {{"UrlsContent"_L1, u"after"_s}}));
}

TEST_F(FaultTest, ATransactionWithoutAConnectionIsALoggedErrorAndNothingMore)
{
    auto database = declared(u"Trawlex-0.mdb"_s);
    Transaction page(*database);
    EXPECT_FALSE(page.commit());
    EXPECT_TRUE(mLog.holds(3709, "Transaction"_L1));
}
