// The schema: its tables in their order, the kinds of their columns, and the test that a file must pass.
#include "StoreFixture.h"
#include "store/AdoErrors.h"
#include "store/rows/ColumnKinds.h"

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

TEST_F(SchemaTest, TheTablesAndTheirFieldsStandInTheirOrder)
{
    const QList<QStringList> names = LoadTblFldNames();
    ASSERT_EQ(names.size(), 31);
    const auto numbered = [](const QString &name, int last) {
        QString fields;
        for (int number = 1; number <= last; ++number)
            fields += u' ' + name + QString::number(number);
        return fields;
    };
    const QString savedUrls = u"Date MaskName Url"_s;
    const QString foundUrls = u"Date SSIndex MaskName Url"_s;
    const QString series = u"Date Url StartNumber IncrNum IncrStep"_s;
    const QString criteria = u"Date MaskName"_s + numbered(u"Item-"_s, 40);
    const QString sites = u"Date SiteName CnvHex UrlLen Group"_s + numbered(u"Url-"_s, 5) +
                          numbered(u"BeginUrl-"_s, 5) + numbered(u"EndUrl-"_s, 5) + numbered(u"UrlMC-"_s, 5) +
                          numbered(u"UrlMNC-"_s, 5) + numbered(u"BUrlCol-"_s, 5) + numbered(u"EUrlCol-"_s, 5);
    const QList<std::pair<QString, QString>> expected{
        {u"RPgUrlsA"_s, savedUrls},
        {u"RPgUrlsB"_s, savedUrls},
        {u"RPgUrlsC"_s, savedUrls},
        {u"RPgUrlsD"_s, savedUrls},
        {u"RPgUrlsE"_s, savedUrls},
        {u"SiteSummary"_s, u"Date Title Url FullPage Picture"_s},
        {u"EmailAddress"_s, u"Date SSIndex Address Url"_s},
        {u"ANSelectUrls"_s, u"Date Url Note"_s},
        {u"MC"_s, criteria},
        {u"MNC"_s, criteria},
        {u"Block"_s, u"UrlsContent EmailContent"_s},
        {u"MNUrlsA"_s, u"Url LastUrl"_s},
        {u"MNUrlsB"_s, u"Url LastUrl"_s},
        {u"MNUrlsC"_s, u"Url LastUrl"_s},
        {u"MNUrlsD"_s, u"Url LastUrl"_s},
        {u"MNUrlsE"_s, u"Url LastUrl"_s},
        {u"MNSelectUrls"_s, u"Date Url Note"_s},
        {u"UrlsCache"_s, foundUrls},
        {u"MNUrlFilters"_s, u"Date FilterOne FilterTwo MCMNCIndex ServerOne ServerTwo"_s},
        {u"PhoneNumber"_s, u"Date SSIndex Number Type Url"_s},
        {u"SearchSites"_s, sites},
        {u"PassUrlsA"_s, foundUrls},
        {u"PassUrlsB"_s, foundUrls},
        {u"PassUrlsC"_s, foundUrls},
        {u"PassUrlsD"_s, foundUrls},
        {u"PassUrlsE"_s, foundUrls},
        {u"AutoTextA"_s, series},
        {u"AutoTextB"_s, series},
        {u"AutoTextC"_s, series},
        {u"AutoTextD"_s, series},
        {u"AutoTextE"_s, series}};
    auto database = created();
    for (qsizetype table = 0; table < names.size(); ++table) {
        const auto &[name, fields] = expected[table];
        QStringList row = QStringList{name, u"Index"_s} + fields.split(u' ');
        Recordset rows = database->GetRecordset(u"SELECT * FROM "_s + name);
        ASSERT_EQ(rows.Fields().Count(), row.size() - 1);
        for (int column = 0; column < rows.Fields().Count(); ++column)
            EXPECT_EQ(rows.Fields()[column].Name(), row[column + 1]);
        row.resize(44);
        EXPECT_EQ(names[table], row);
    }
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
