// The statements of the system and what is none of them.
#include "StoreFixture.h"
#include "store/AdoErrors.h"
#include "store/sql/SqlTranslator.h"

using namespace Qt::StringLiterals;

namespace {
// A statement in one line, so that cases read like a table.
QString summary(const SqlStatement &statement)
{
    QString text = statement.verb == SqlStatement::Verb::Delete ? u"delete"_s : u"select"_s;
    if (statement.top >= 0)
        text += u" top %1"_s.arg(statement.top);
    text += u" {%1} from {%2}"_s.arg(statement.fields.join(u'|'), statement.table);
    if (statement.condition)
        text += u" where {%1} %2 {%3}"_s.arg(
            statement.condition->field,
            statement.condition->comparison == SqlStatement::Comparison::Like ? u"like"_s : u"="_s,
            statement.condition->value);
    return text;
}

struct GoodCase
{
    QString text;
    QString summary;
};

class GoodStatements : public testing::TestWithParam<GoodCase>
{
};

class BadStatements : public testing::TestWithParam<QString>
{
};
} // namespace

TEST_P(GoodStatements, AreRead)
{
    EXPECT_EQ(summary(parseStatement(GetParam().text)), GetParam().summary);
}

INSTANTIATE_TEST_SUITE_P(
    Translator, GoodStatements,
    testing::Values(
        GoodCase{u"SELECT * FROM SearchSites"_s, u"select {} from {SearchSites}"_s},
        GoodCase{u"select*from MC"_s, u"select {} from {MC}"_s},
        GoodCase{u"SELECT Index,Url FROM SiteSummary"_s, u"select {Index|Url} from {SiteSummary}"_s},
        GoodCase{u"SELECT Index,Date,Title,Url FROM SiteSummary"_s,
                 u"select {Index|Date|Title|Url} from {SiteSummary}"_s},
        GoodCase{u"SELECT Group FROM SearchSites"_s, u"select {Group} from {SearchSites}"_s},
        GoodCase{u"SELECT [Url-1], [Item-40] FROM MC"_s, u"select {Url-1|Item-40} from {MC}"_s},
        GoodCase{u"SELECT TOP 1 SiteName FROM SearchSites"_s, u"select top 1 {SiteName} from {SearchSites}"_s},
        GoodCase{u"SELECT Top FROM MC"_s, u"select {TOP} from {MC}"_s},
        GoodCase{u"SELECT TOP 2 * FROM MC"_s, u"select top 2 {} from {MC}"_s},
        GoodCase{u"SELECT * FROM SiteSummary WHERE Url='http://a.de/?q=\"x\"--;/*'"_s,
                 u"select {} from {SiteSummary} where {Url} = {http://a.de/?q=\"x\"--;/*}"_s},
        GoodCase{u"SELECT * FROM SiteSummary WHERE Url=''"_s, u"select {} from {SiteSummary} where {Url} = {}"_s},
        GoodCase{u"SELECT * FROM MC WHERE MaskName='SELECT * FROM MC WHERE 1=1'"_s,
                 u"select {} from {MC} where {MaskName} = {SELECT * FROM MC WHERE 1=1}"_s},
        GoodCase{u"SELECT FullPage FROM SiteSummary WHERE Index=12"_s,
                 u"select {FullPage} from {SiteSummary} where {Index} = {12}"_s},
        GoodCase{u"SELECT * FROM T WHERE A=-1.5e+3"_s, u"select {} from {T} where {A} = {-1.5e+3}"_s},
        GoodCase{u"SELECT * FROM T WHERE [Url-1] LIKE '%a%'"_s, u"select {} from {T} where {Url-1} like {%a%}"_s},
        GoodCase{u"DELETE * FROM Block"_s, u"delete {} from {Block}"_s},
        GoodCase{u"DELETE FROM Block"_s, u"delete {} from {Block}"_s},
        GoodCase{u"DELETE * FROM MC WHERE MaskName='ä [x] 😀'"_s, u"delete {} from {MC} where {MaskName} = {ä [x] 😀}"_s},
        GoodCase{u"\r\n\tSELECT  *  FROM [Where] WHERE [From]='x' "_s,
                 u"select {} from {Where} where {From} = {x}"_s}));

TEST_P(BadStatements, AreRefused)
{
    try {
        static_cast<void>(parseStatement(GetParam()));
        FAIL() << GetParam().toStdString();
    } catch (const RuntimeError &error) {
        EXPECT_EQ(error.number(), -2147217900);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Translator, BadStatements,
    testing::Values(
        u""_s, u" "_s, u"SELECT"_s, u"SELECT * FROM"_s, u"SELECT FROM MC"_s, u"SELECT * MC"_s, u"SELECT a b FROM MC"_s,
        u"SELECT a, FROM MC"_s, u"SELECT *, a FROM MC"_s, u"SELECT Url-1 FROM MC"_s, u"SELECT [] FROM MC"_s,
        u"SELECT [a FROM MC"_s, u"SELECT TOP -1 a FROM MC"_s, u"SELECT TOP 1.5 a FROM MC"_s, u"SELECT * FROM MC;"_s,
        u"SELECT * FROM MC; DELETE * FROM MC"_s, u"SELECT * FROM MC -- x"_s, u"SELECT * FROM MC /* x */"_s,
        u"SELECT * FROM MC, MNC"_s, u"SELECT * FROM MC AS x"_s, u"SELECT * FROM MC WHERE"_s,
        u"SELECT * FROM MC WHERE a"_s, u"SELECT * FROM MC WHERE a="_s, u"SELECT * FROM MC WHERE a=b"_s,
        u"SELECT * FROM MC WHERE a=1 OR 1=1"_s, u"SELECT * FROM MC WHERE a=1 AND b=2"_s,
        u"SELECT * FROM MC WHERE a>1"_s, u"SELECT * FROM MC WHERE a=1x"_s, u"SELECT * FROM MC WHERE a=1.2.3"_s,
        u"SELECT * FROM MC WHERE a=0x10"_s, u"SELECT * FROM MC WHERE a=1e"_s, u"SELECT * FROM MC WHERE a=-"_s,
        u"SELECT * FROM MC WHERE a=."_s, u"SELECT * FROM MC WHERE a LIKE 5"_s, u"SELECT * FROM MC WHERE a='"_s,
        u"SELECT * FROM MC WHERE a='x''"_s, u"SELECT * FROM MC WHERE a='x''y'"_s,
        u"SELECT * FROM MC WHERE a='x' OR 'y'='y'"_s, u"SELECT * FROM MC WHERE a='x' 'y'"_s,
        u"SELECT * FROM MC WHERE a='x' --'"_s, u"SELECT * FROM MC WHERE a=\"x\""_s, u"SELECT max(a) FROM MC"_s,
        u"SELECT * FROM (SELECT * FROM MC)"_s, u"INSERT INTO MC VALUES(1)"_s, u"UPDATE MC SET a=1"_s,
        u"DROP TABLE MC"_s, u"ATTACH 'x' AS y"_s, u"PRAGMA writable_schema=1"_s, u"CREATE TABLE x(y)"_s, u"VACUUM"_s,
        u"DELETE a FROM MC"_s, u"DELETE"_s, QString(u"SELECT * FROM MC"_s + QChar(u'\0'))));

TEST(Translator, AValueWithAQuoteIsRefusedWhateverTheQuoteWouldMake)
{
    const QStringList parts{u"'"_s, u"x"_s, u" "_s, u" OR 1=1"_s, u"--"_s, u";"_s, u"="_s, u"[a]"_s};
    for (const QString &one : parts) {
        for (const QString &two : parts) {
            for (const QString &three : parts) {
                const QString value = one + two + three;
                const QString text = u"SELECT * FROM MC WHERE MaskName='"_s + value + u"'"_s;
                if (value.contains(u'\''))
                    EXPECT_THROW(static_cast<void>(parseStatement(text)), RuntimeError) << text.toStdString();
                else
                    EXPECT_EQ(parseStatement(text).condition->value, value);
            }
        }
    }
}

TEST(Translator, ANameGoesIntoAStatementInBracketsOnlyIfItHoldsNone)
{
    EXPECT_EQ(bracketed(u"Url-1"_s), "[Url-1]");
    EXPECT_THROW(static_cast<void>(bracketed(u"a]b"_s)), RuntimeError);
    EXPECT_THROW(static_cast<void>(bracketed(QString(QChar(u'\0')))), RuntimeError);
}
