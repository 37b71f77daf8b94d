// Statements cut into tokens: what each is, what is none, and that nothing is lost between them.
#include "store/sql/SqlTokenizer.h"

#include "StoreFixture.h"
#include "store/AdoErrors.h"
#include "support/ErrorOf.h"

#include <random>

using namespace Qt::StringLiterals;
using Kind = SqlToken::Kind;

namespace {
struct Token
{
    Kind kind;
    QString text;
    bool operator==(const Token &) const = default;
};

void PrintTo(const Token &token, std::ostream *out)
{
    *out << static_cast<int>(token.kind) << ':' << token.text.toStdString();
}

QList<Token> tokens(const QString &statement)
{
    SqlTokenizer tokenizer(statement);
    QList<Token> all;
    for (SqlToken token = tokenizer.next(); token.kind != Kind::End; token = tokenizer.next())
        all.append({token.kind, token.text.toString()});
    return all;
}
} // namespace

TEST(SqlTokenizer, CutsAStatement)
{
    EXPECT_EQ(tokens(u"SELECT TOP 1 [Index],Url FROM MC WHERE MaskName='a, b'"_s),
              (QList<Token>{{Kind::Word, u"SELECT"_s},
                            {Kind::Word, u"TOP"_s},
                            {Kind::Number, u"1"_s},
                            {Kind::Name, u"Index"_s},
                            {Kind::Sign, u","_s},
                            {Kind::Word, u"Url"_s},
                            {Kind::Word, u"FROM"_s},
                            {Kind::Word, u"MC"_s},
                            {Kind::Word, u"WHERE"_s},
                            {Kind::Word, u"MaskName"_s},
                            {Kind::Sign, u"="_s},
                            {Kind::Text, u"a, b"_s}}));
}

TEST(SqlTokenizer, NothingIsTheEndAsOftenAsItIsAsked)
{
    SqlTokenizer tokenizer(u" \t\r\n");
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(tokenizer.next().kind, Kind::End);
}

TEST(SqlTokenizer, ANameInBracketsMayHoldAnything)
{
    EXPECT_EQ(tokens(u"[Group by 'x' -- ;]"_s), (QList<Token>{{Kind::Name, u"Group by 'x' -- ;"_s}}));
    EXPECT_EQ(tokens(u"[]"_s), (QList<Token>{{Kind::Name, QString()}}));
}

TEST(SqlTokenizer, ATextEndsAtItsFirstQuote)
{
    EXPECT_EQ(tokens(u"'a''b'"_s), (QList<Token>{{Kind::Text, u"a"_s}, {Kind::Text, u"b"_s}}))
        << "a quote inside a text has no other writing";
}

TEST(SqlTokenizer, NumbersAreWhole)
{
    for (const QString &number :
         {u"0"_s, u"12"_s, u"-3"_s, u"+4"_s, u"1.5"_s, u".5"_s, u"5."_s, u"1e3"_s, u"-2.5E-7"_s})
        EXPECT_EQ(tokens(number), (QList<Token>{{Kind::Number, number}}));
    for (const QString &none : {u"-"_s, u"."_s, u"1e"_s, u"1e+"_s, u"12x"_s, u"1.2.3"_s, u"0x1F"_s})
        EXPECT_EQ(errorOf([&] { tokens(none); }), AdoError::BadSql) << qPrintable(none);
}

TEST(SqlTokenizer, WordsAreLettersOfAnyLanguageThenDigits)
{
    EXPECT_EQ(tokens(u"Größe_2 _x1"_s), (QList<Token>{{Kind::Word, u"Größe_2"_s}, {Kind::Word, u"_x1"_s}}));
}

TEST(SqlTokenizer, WhatEndsOrJoinsStatementsIsNoToken)
{
    for (const QString &text : {u"SELECT 1; DROP TABLE MC"_s, u"a--b"_s, u"a/**/b"_s, u"\"a\""_s, u"`a`"_s, u"(1)"_s,
                                u"a||b"_s, u"?1"_s, u"@x"_s, u"'open"_s, u"[open"_s, u"a<b"_s, u"a;"_s})
        EXPECT_EQ(errorOf([&] { tokens(text); }), AdoError::BadSql) << qPrintable(text);
}

TEST(SqlTokenizer, RandomTokensComeBackFromTheTextThatTheyMake)
{
    std::mt19937 random(3);
    const auto pick = [&](const QString &characters) {
        return characters[static_cast<qsizetype>(random() % static_cast<unsigned>(characters.size()))];
    };
    const auto text = [&](const QString &first, const QString &others) {
        QString made(pick(first));
        for (unsigned i = random() % 6; i > 0; --i)
            made += pick(others);
        return made;
    };
    for (int round = 0; round < 3000; ++round) {
        QList<Token> expected;
        QString statement;
        for (unsigned i = random() % 8; i > 0; --i) {
            const auto kind = static_cast<Kind>(random() % 5);
            const QString inside = text(u"aZ ,*=0"_s, u"bY '.,-=0"_s).remove(u'\'');
            switch (kind) {
            case Kind::Word:
                expected.append({kind, text(u"abXY_ä"_s, u"abXY_ä09"_s)});
                statement += expected.constLast().text;
                break;
            case Kind::Name:
                expected.append({kind, inside});
                statement += u'[' + inside + u']';
                break;
            case Kind::Text:
                expected.append({kind, inside});
                statement += u'\'' + inside + u'\'';
                break;
            case Kind::Number:
                expected.append({kind, text(u"0123"_s, u"456"_s)});
                statement += expected.constLast().text;
                break;
            default:
                expected.append({Kind::Sign, QString(pick(u"*,="_s))});
                statement += expected.constLast().text;
            }
            statement += text(u" \t\r\n"_s, u" \n"_s);
        }
        ASSERT_EQ(tokens(statement), expected) << statement.toStdString();
    }
}
