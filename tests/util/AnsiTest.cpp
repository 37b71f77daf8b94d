#include "util/Ansi.h"

#include "PlainLanguage.h"
#include "QtPrint.h"

using namespace Qt::StringLiterals;

namespace {
TEST(CodePage, HoldsItsUpperControls)
{
    EXPECT_EQ(Ansi::Chr(0x80), u'\u20AC');
    EXPECT_EQ(Ansi::Chr(0x9F), u'\u0178');
    EXPECT_EQ(Ansi::Chr(0xE9), u'\u00E9');
    EXPECT_EQ(Ansi::Asc(u'\u20AC'), 0x80);
}

TEST(CodePage, WhatItDoesNotHoldIsAQuestionMark)
{
    for (const quint8 code : {0x81, 0x8D, 0x8F, 0x90, 0x9D})
        EXPECT_EQ(Ansi::Chr(code), u'?') << int(code);
    for (const char16_t unit : {u'\u0081', u'\u0100', u'\u4E2D', char16_t(0xD83D), u'\0'})
        EXPECT_EQ(Ansi::Asc(unit), unit == 0 ? 0 : '?') << int(unit);
}

TEST(CodePage, EqualsThePlainVersionForEveryCodeAndUnit)
{
    for (int code = 0; code < 256; ++code)
        ASSERT_EQ(QChar(Ansi::Chr(quint8(code))), plain::Chr(code)) << code;
    for (int unit = 0; unit <= 0xFFFF; ++unit)
        ASSERT_EQ(int(Ansi::Asc(char16_t(unit))), plain::Asc(QString(QChar(char16_t(unit))))) << unit;
}

TEST(CodePage, TextsComeBackAsTheyWere)
{
    const QString text = u"caf\u00E9 \u201Cquoted\u201D"_s;
    EXPECT_EQ(Ansi::decode(Ansi::encode(text)), text);
    EXPECT_EQ(Ansi::encode(u"a\u4E2D"), QByteArray("a?"));
    EXPECT_EQ(Ansi::decode("\x93x\x94"), u"\u201Cx\u201D"_s);
}
} // namespace
