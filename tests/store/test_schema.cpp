// The schema: its tables in their order, the kinds of their columns, and the test that a file must pass.
#include "StoreFixture.h"
#include "store/AdoErrors.h"
#include "store/ColumnKinds.h"

#include <QFile>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {
class SchemaTest : public StoreTest
{
  protected:
    // Changes the file as another program would.
    void change(const QString &name, const char *statement)
    {
        sqlite3 *handle = nullptr;
        ASSERT_EQ(sqlite3_open(pathOf(name).toUtf8().constData(), &handle), SQLITE_OK);
        EXPECT_EQ(sqlite3_exec(handle, statement, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(handle);
        sqlite3_close(handle);
    }
    [[nodiscard]] qint64 pragma(const QString &name, const char *statement)
    {
        sqlite3 *handle = nullptr;
        sqlite3_stmt *prepared = nullptr;
        sqlite3_open(pathOf(name).toUtf8().constData(), &handle);
        sqlite3_prepare_v2(handle, statement, -1, &prepared, nullptr);
        const qint64 value = sqlite3_step(prepared) == SQLITE_ROW ? sqlite3_column_int64(prepared, 0) : -1;
        sqlite3_finalize(prepared);
        sqlite3_close(handle);
        return value;
    }
    [[nodiscard]] bool passesAfter(const char *statement)
    {
        created(u"t.mdb"_s)->CloseConnection();
        change(u"t.mdb"_s, statement);
        const bool passes = declared(u"t.mdb"_s)->TestDatabase(true);
        QFile::remove(pathOf(u"t.mdb"_s));
        return passes;
    }
};
} // namespace

TEST_F(SchemaTest, TheTablesStandInTheirOrder)
{
    const QList<QStringList> names = LoadTblFldNames();
    ASSERT_EQ(names.size(), 31);
    QStringList tables;
    for (const QStringList &row : names) {
        EXPECT_EQ(row.size(), 44);
        EXPECT_EQ(row[1], u"Index"_s);
        tables.append(row[0]);
    }
    EXPECT_EQ(tables.join(u' '),
              u"RPgUrlsA RPgUrlsB RPgUrlsC RPgUrlsD RPgUrlsE SiteSummary EmailAddress ANSelectUrls MC MNC Block "
              "MNUrlsA MNUrlsB MNUrlsC MNUrlsD MNUrlsE MNSelectUrls UrlsCache MNUrlFilters PhoneNumber SearchSites "
              "PassUrlsA PassUrlsB PassUrlsC PassUrlsD PassUrlsE AutoTextA AutoTextB AutoTextC AutoTextD AutoTextE"_s);
    EXPECT_EQ(names[8].mid(0, 5), (QStringList{u"MC"_s, u"Index"_s, u"Date"_s, u"MaskName"_s, u"Item-1"_s}));
    EXPECT_EQ(names[9][43], u"Item-40"_s);
    EXPECT_EQ(names[20][7], u"Url-1"_s);
    EXPECT_EQ(names[20][12], u"BeginUrl-1"_s);
    EXPECT_EQ(names[20][41], u"EUrlCol-5"_s);
    EXPECT_EQ(names[20][42], u""_s);
    EXPECT_EQ(names[10].mid(0, 5), (QStringList{u"Block"_s, u"Index"_s, u"UrlsContent"_s, u"EmailContent"_s, u""_s}));
    EXPECT_EQ(names[11].mid(0, 5), (QStringList{u"MNUrlsA"_s, u"Index"_s, u"Url"_s, u"LastUrl"_s, u""_s}));
    EXPECT_EQ(QString(rowMarker).size(), 15);
    EXPECT_EQ(recordElement("Url"_L1, u"x"_s), u"Url<~+-Trawlex-+~>x"_s);
}

TEST_F(SchemaTest, AColumnsKindFollowsFromItsName)
{
    const QList<std::pair<QString, int>> cases{
        {u"Index"_s, 3},  {u"SSIndex"_s, 3},    {u"MCMNCIndex"_s, 3}, {u"ssindex"_s, 3},   {u"xINDEXx"_s, 3},
        {u"Date"_s, 7},   {u"date"_s, 130},     {u"Picture"_s, 205},  {u"picture"_s, 130}, {u"FullPage"_s, 203},
        {u"Memo"_s, 203}, {u"fullpage"_s, 130}, {u"Indexes"_s, 130},  {u"index"_s, 130},   {u"IndexIndex"_s, 130},
        {u"Url"_s, 130},  {u"UrlLen"_s, 130},   {u"DateX"_s, 130}};
    for (const auto &[name, kind] : cases)
        EXPECT_EQ(columnKindOf(name), kind) << name.toStdString();
}

TEST_F(SchemaTest, EveryKindComesBackFromTheWordThatDeclaresIt)
{
    for (const int kind : {2, 3, 4, 5, 6, 7, 11, 17, 72, 128, 130, 131, 203, 205})
        EXPECT_EQ(kindOfDeclaredType(declaredType(kind)), kind);
    EXPECT_EQ(kindOfDeclaredType("varchar(20)"), 130);
    EXPECT_EQ(kindOfDeclaredType("BIGINT"), 3);
    EXPECT_EQ(kindOfDeclaredType("blob"), 205);
    EXPECT_EQ(kindOfDeclaredType("text"), 203);
    EXPECT_EQ(kindOfDeclaredType("real"), 5);
    EXPECT_EQ(kindOfDeclaredType(""), 130);
}

TEST_F(SchemaTest, TheFileIsMarkedAndKeepsALog)
{
    created()->CloseConnection();
    EXPECT_EQ(pragma(u"Trawlex-0.mdb"_s, "PRAGMA application_id"), 0x54524C58);
    EXPECT_EQ(pragma(u"Trawlex-0.mdb"_s, "PRAGMA user_version"), 1);
    EXPECT_EQ(pragma(u"Trawlex-0.mdb"_s, "SELECT count(*) FROM sqlite_schema WHERE sql LIKE 'CREATE INDEX%'"), 36);
    EXPECT_EQ(pragma(u"Trawlex-0.mdb"_s,
                     "SELECT count(*) FROM sqlite_schema s, pragma_table_info(s.name) c WHERE s.type='table' AND "
                     "s.name NOT LIKE 'sqlite_%' AND (c.type LIKE '%TEXT%') AND instr(s.sql, '['||c.name||'] '||c.type "
                     "||' COLLATE NOCASE')=0"),
              0)
        << "a text column that tells case apart";
}

TEST_F(SchemaTest, AMatchingFilePasses)
{
    EXPECT_TRUE(passesAfter("SELECT 1"));
}

TEST_F(SchemaTest, AFileWithAnotherTableFails)
{
    EXPECT_FALSE(passesAfter("CREATE TABLE Extra(x)"));
    EXPECT_FALSE(passesAfter("CREATE VIEW Extra AS SELECT 1"));
}

TEST_F(SchemaTest, SystemTablesDoNotCount)
{
    EXPECT_TRUE(passesAfter("CREATE TABLE SysThings(x); CREATE TABLE MSysAccessObjects(x); ANALYZE"));
    EXPECT_FALSE(passesAfter("CREATE TABLE MSysOther(x)"));
}

TEST_F(SchemaTest, AFileThatLacksAColumnOrATableFails)
{
    EXPECT_FALSE(passesAfter("ALTER TABLE SiteSummary DROP COLUMN Title"));
    EXPECT_FALSE(passesAfter("ALTER TABLE SiteSummary RENAME COLUMN Title TO TITLE"));
    EXPECT_FALSE(passesAfter("DROP TABLE Block"));
    EXPECT_FALSE(passesAfter("ALTER TABLE Block RENAME TO block2"));
}

TEST_F(SchemaTest, AColumnOfAnotherTypePasses)
{
    EXPECT_TRUE(passesAfter("DROP TABLE Block; CREATE TABLE Block([Index] TEXT, UrlsContent BLOB, EmailContent REAL)"));
}

TEST_F(SchemaTest, AFileWithAnExtraColumnFailsAndIsLeftClosed)
{
    created(u"t.mdb"_s)->CloseConnection();
    change(u"t.mdb"_s, "ALTER TABLE Block ADD COLUMN More TEXT");
    auto database = declared(u"t.mdb"_s);
    EXPECT_FALSE(database->TestDatabase(true));
    EXPECT_EQ(database->connection(), nullptr);
    EXPECT_FALSE(add(*database, u"Block"_s, {{"UrlsContent"_L1, u"x"_s}}));
    EXPECT_TRUE(mLog.holds(3709, "Function AddRecord"_L1));
}

TEST_F(SchemaTest, ATestThatShallNotOpenLeavesTheConnectionAsItIs)
{
    auto database = created();
    const auto before = database->connection();
    EXPECT_TRUE(database->TestDatabase(false));
    EXPECT_EQ(database->connection(), before);
    auto other = declared(u"Trawlex-0.mdb"_s);
    EXPECT_TRUE(other->TestDatabase(false));
    EXPECT_EQ(other->connection(), nullptr);
}
