// What a value can do to the database through the statements that the system builds: nothing but be compared.
#include "StoreFixture.h"
#include "SystemStatements.h"
#include "store/sqlite/Connection.h"

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {
class HostileValues : public StoreTest, public testing::WithParamInterface<QString>
{
};
} // namespace

TEST_P(HostileValues, ChangeNoRowThatTheyDoNotEqual)
{
    const QString value = GetParam();
    auto database = created();
    SystemStatements::fillAll(*database);
    QMap<QString, QStringList> fields;
    for (const QStringList &table : LoadTblFldNames())
        fields[table[0]] = table;
    SystemStatements::Picture before = SystemStatements::pictureOf(*database);
    ASSERT_EQ(before.size(), 31);
    qsizetype queries = 0;
    for (const auto &statement : SystemStatements::with(value)) {
        Recordset rows = database->GetRecordset(statement.text);
        // Numbers and patterns may be refused for being none, or too long ones.
        const bool plain = !statement.numeric && value.size() < 50'000;
        if (plain) {
            EXPECT_EQ(rows.isOpen(), !statement.removes && !value.contains(u'\'')) << statement.text.toStdString();
        }
        // The queries come first: what they may have done shows before the first removal is tried.
        const bool lastQuery = !statement.removes && ++queries == SystemStatements::queryCount;
        if (!lastQuery && !statement.removes)
            continue;
        before = SystemStatements::expectedAfter(before, statement, value, fields[statement.table]);
        EXPECT_EQ(SystemStatements::pictureOf(*database), before) << statement.text.toStdString();
    }
    EXPECT_EQ(queries, SystemStatements::queryCount);
    EXPECT_TRUE(database->TestDatabase(false)) << mLog.text();
    EXPECT_TRUE(mLog.entries.isEmpty()) << mLog.text();
}

INSTANTIATE_TEST_SUITE_P(Values, HostileValues,
                         testing::Values(u""_s, u"1"_s, u"url1"_s, u"MaskName2"_s, u"'"_s, u"''"_s, u"' OR 1=1 --"_s,
                                         u"' OR 'a'='a"_s, u"x'; DELETE * FROM MC; --"_s, u"1 OR 1=1"_s,
                                         u"1; DROP TABLE MC"_s, u"1 UNION SELECT 1"_s, u"(SELECT 1)"_s, u"rowid"_s,
                                         u"Index"_s, u"NULL"_s, u"%"_s, u"_"_s, u"[Url]"_s, u"\""_s, u"`"_s, u"--"_s,
                                         u"/*"_s, u"*/"_s, u"?1"_s, u":a"_s, u"@a"_s, u"$a"_s, u"x'00'"_s, u"\\'"_s,
                                         u"1e999"_s, u"-1"_s, u" 2 "_s, u"\r\n2.e0\t"_s, u"2\v"_s, u"'2'"_s,
                                         u" '\v1. '\n"_s, u"2\u00A0"_s, u"inf"_s, u"0x1"_s, u"ä'ö"_s,
                                         u"\u2019 OR 1=1"_s, u"\uFF07"_s, u"a\r\nb"_s,
                                         u"a"_s + QChar(u'\0') + u"' OR 1=1"_s, QString(QChar(0xD800)),
                                         QString(100'000, u'x'), QString(60'000, u'%')));

TEST_F(StoreTest, TheConnectionItselfRefusesWhatIsNoQueryOfTheSystem)
{
    auto database = created();
    const std::string file = "'" + pathOf(u"other.db"_s).toStdString() + "'";
    for (const std::string &statement :
         {std::string("DROP TABLE MC"), "ATTACH " + file + " AS other", std::string("CREATE TABLE x(y)"),
          std::string("PRAGMA writable_schema=1"), std::string("PRAGMA journal_mode=OFF"),
          std::string("SELECT load_extension('x')"), std::string("SELECT readfile('/etc/passwd')"),
          std::string("SELECT name FROM sqlite_schema"), std::string("UPDATE sqlite_sequence SET seq=0"),
          std::string("VACUUM"), "VACUUM INTO " + file, std::string("DELETE FROM sqlite_sequence"),
          std::string("CREATE TEMP TRIGGER t AFTER INSERT ON MC BEGIN DELETE FROM MNC; END"),
          std::string("SELECT * FROM pragma_table_info('MC')"), std::string("REINDEX"), std::string("ANALYZE")})
        EXPECT_THROW({ static_cast<void>(database->connection()->prepare(statement).step()); }, RuntimeError)
            << statement;
    EXPECT_FALSE(QFileInfo::exists(pathOf(u"other.db"_s)));
    EXPECT_TRUE(database->TestDatabase(false));
}
