// A program without a window: what would be asked answers itself, what would be shown is one line on standard error.
#include "cli/ConsolePorts.h"
#include "cli/ErrorLine.h"

#include "app/MenuTables.h"
#include "util/QtPrint.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
class ConsoleTest : public testing::Test
{
  protected:
    /// What `body` prints on standard error.
    template <class Body> [[nodiscard]] static QString printed(Body &&body)
    {
        testing::internal::CaptureStderr();
        body();
        return QString::fromLocal8Bit(testing::internal::GetCapturedStderr().c_str());
    }

    ConsoleDialogs dialogs;
};
} // namespace

TEST_F(ConsoleTest, AMessageIsOneLine)
{
    EXPECT_EQ(printed([this] { dialogs.tell(u"* ERROR *"_s, u"It is gone:\r\n/x/y.mdb"_s); }),
              u"* ERROR *: It is gone: /x/y.mdb\n"_s);
}

TEST_F(ConsoleTest, WhatAPageSendsDoesNothingToTheTerminal)
{
    const QString line = printed([] { printError(u"1/2 http://a.com/\x1b]0;title\a\u202e"_s); });
    EXPECT_FALSE(line.contains(u'\x1b'));
    EXPECT_FALSE(line.contains(u'\a'));
    EXPECT_FALSE(line.contains(u'\u202e'));
    EXPECT_TRUE(line.startsWith("1/2 http://a.com/"_L1));
    EXPECT_EQ(line.count(u'\n'), 1);
}

TEST_F(ConsoleTest, AQuestionIsAnsweredAsTheAskerWantsItWithoutAWindow)
{
    for (const auto answer : {UserDialogs::Answer::Yes, UserDialogs::Answer::No}) {
        const QString line = printed([&] {
            EXPECT_EQ(dialogs.ask(u"File exists"_s, u"Replace it?"_s, UserDialogs::Icon::Question, answer), answer);
        });
        EXPECT_EQ(line, u"File exists: Replace it?\n"_s);
    }
}

TEST_F(ConsoleTest, AnErrorIsPrintedAndTheRunGoesOn)
{
    const QString line = printed([this] {
        EXPECT_EQ(dialogs.askAboutError(u"Error"_s, u"Module=x: Err#=5"_s, u"Open the log?"_s),
                  UserDialogs::Answer::No);
    });
    EXPECT_EQ(line, u"Module=x: Err#=5\n"_s);
}

TEST_F(ConsoleTest, NothingCanBeTypedOrPicked)
{
    const QString line = printed([this] {
        EXPECT_EQ(dialogs.input(u"Name"_s, u"New set"_s, u"Criteria-0"_s), QString());
        EXPECT_EQ(dialogs.chooseFile(u"/x"_s, u"Programs (*)|*|"_s, u"Locate"_s), QString());
        EXPECT_EQ(dialogs.chooseFileToAppend(u"/x/list.txt"_s, {}, {}), u"/x/list.txt"_s) << "the proposal is taken";
    });
    EXPECT_EQ(line, QString());
}

TEST_F(ConsoleTest, WhatWouldBeOpenedIsTold)
{
    ConsoleDesktop desktop;
    EXPECT_EQ(printed([&] { desktop.open(u"/x/export.html"_s); }), u"Not opened without a desktop: /x/export.html\n"_s);
}

TEST_F(ConsoleTest, ThereIsNoWindowAndNoClipboard)
{
    NoClipboard clipboard;
    clipboard.setText(u"a"_s);
    EXPECT_EQ(clipboard.text(), QString());
    EXPECT_TRUE(NoWindow().place().isNull());
    NoSideWindows side;
    EXPECT_FALSE(side.chooseDirectory(u"/"_s, [](const QString &) { FAIL() << "nobody chooses"; }));
}
