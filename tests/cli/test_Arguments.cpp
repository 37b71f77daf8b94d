// The command line of trawlex-harvest: what it means, and one clear line for each thing that means nothing.
#include "cli/Arguments.h"

#include "support/Fakes.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTemporaryFile>

using namespace Qt::StringLiterals;

namespace {
/// What a refused command line is told; "" for one that is understood.
QString refusal(const QStringList &words)
{
    try {
        static_cast<void>(parseArguments(words));
    } catch (const RuntimeError &error) {
        return error.description();
    }
    return {};
}

struct BadCase
{
    QStringList words;
    QString line;
};

class BadArguments : public testing::TestWithParam<BadCase>
{
};
} // namespace

TEST_P(BadArguments, AreToldInOneLine)
{
    EXPECT_EQ(refusal(GetParam().words), GetParam().line);
    EXPECT_FALSE(refusal(GetParam().words).contains(u'\n'));
}

INSTANTIATE_TEST_SUITE_P(
    Arguments, BadArguments,
    testing::Values(
        BadCase{{}, u"one of --auto, --manual, --browse, --list-..., --export and --import is wanted (see --help)"_s},
        BadCase{{u"--json"_s},
                u"one of --auto, --manual, --browse, --list-..., --export and --import is wanted (see --help)"_s},
        BadCase{{u"--auto"_s, u"--manual"_s}, u"--auto, --manual and --browse exclude each other"_s},
        BadCase{{u"--list-print"_s, u"--export"_s, u"MNUrlsA"_s, u"--format"_s, u"csv"_s, u"--to"_s, u"x.csv"_s},
                u"--export and --import go without a run and without a list"_s},
        BadCase{{u"--list-print"_s, u"--open"_s, u"http://a.com/"_s}, u"--open wants a run"_s},
        BadCase{{u"--list-file"_s}, u"--list-file wants a value"_s},
        BadCase{{u"--list-file"_s, u"/no/such/list.txt"_s}, u"--list-file: no such file: /no/such/list.txt"_s},
        BadCase{{u"--list-file"_s, u"/"_s}, u"--list-file: no such file: /"_s},
        BadCase{{u"--list-db=A"_s}, u"--list-db takes no value"_s},
        BadCase{{u"--auto"_s, u"--quick"_s}, u"unknown argument: --quick (see --help)"_s},
        BadCase{{u"--auto"_s, u"word"_s}, u"unknown argument: word (see --help)"_s},
        BadCase{{u"--auto"_s, u""_s}, u"unknown argument:  (see --help)"_s},
        BadCase{{u"--auto"_s, u"--open"_s}, u"--open wants a value"_s},
        BadCase{{u"--auto"_s, u"--set"_s}, u"--set wants a value"_s},
        BadCase{{u"--auto=1"_s}, u"--auto takes no value"_s},
        BadCase{{u"--auto"_s, u"--headless=yes"_s}, u"--headless takes no value"_s},
        BadCase{{u"--auto"_s, u"--browser"_s, u"lynx"_s},
                u"--browser: \"lynx\" is neither \"internal\" nor \"iexplore\""_s},
        BadCase{{u"--auto"_s, u"--set"_s, u"chkSaveSummary"_s},
                u"--set: \"chkSaveSummary\" is not of the form NAME=VALUE"_s},
        BadCase{{u"--auto"_s, u"--set"_s, u"=1"_s}, u"--set: \"=1\" is not of the form NAME=VALUE"_s},
        BadCase{{u"--auto"_s, u"--database-dir"_s, u"/no/such/folder"_s},
                u"--database-dir: no such folder: /no/such/folder"_s}),
    [](const auto &row) { return "row" + std::to_string(row.index); });

TEST(Arguments, AllThatCanBeSaid)
{
    const QTemporaryDir folder;
    const Arguments arguments = parseArguments(
        {u"--database-dir"_s, folder.path(), u"--browser"_s, u"Internal"_s, u"--headless"_s, u"--browser-arg"_s,
         u"--lang=en"_s, u"--browser-arg=--mute"_s, u"--open"_s, u"http://a.com/?x=1"_s, u"--set"_s, u"chkSMA(9)=1"_s,
         u"--set"_s, u"txtANStartTag=a=b"_s, u"--until-loaded"_s, u"--auto"_s, u"--json"_s});
    EXPECT_EQ(arguments.databaseDir, folder.path() + u'/');
    EXPECT_EQ(arguments.browser, 0);
    EXPECT_TRUE(arguments.headless);
    EXPECT_EQ(arguments.browserArgs, (QStringList{u"--lang=en"_s, u"--mute"_s}));
    EXPECT_EQ(arguments.open, u"http://a.com/?x=1"_s);
    ASSERT_EQ(arguments.settings.size(), 2);
    EXPECT_EQ(arguments.settings[0].control, u"chkSMA(9)"_s);
    EXPECT_EQ(arguments.settings[0].value, u"1"_s);
    EXPECT_EQ(arguments.settings[1].control, u"txtANStartTag"_s);
    EXPECT_EQ(arguments.settings[1].value, u"a=b"_s);
    EXPECT_TRUE(arguments.untilLoaded);
    EXPECT_EQ(arguments.run, Arguments::Run::Auto);
    EXPECT_TRUE(arguments.json);
}

TEST(Arguments, WhatIsNotSaidIsTheStoredState)
{
    const Arguments arguments = parseArguments({u"--manual"_s});
    EXPECT_EQ(arguments.run, Arguments::Run::Manual);
    EXPECT_EQ(arguments.databaseDir, QString());
    EXPECT_FALSE(arguments.browser.has_value());
    EXPECT_FALSE(arguments.untilLoaded || arguments.headless || arguments.json || arguments.help);
}

TEST(Arguments, ARelativeFolderBecomesAWholePath)
{
    const Arguments arguments = parseArguments({u"--auto"_s, u"--database-dir=."_s});
    EXPECT_EQ(arguments.databaseDir, QDir::currentPath() + u'/');
}

TEST(Arguments, TheSameRunTwiceIsNoContradiction)
{
    EXPECT_EQ(refusal({u"--auto"_s, u"--auto"_s}), QString());
}

TEST(Arguments, HelpNeedsNothingElseAndNamesEveryArgument)
{
    EXPECT_TRUE(parseArguments({u"--help"_s}).help);
    for (const auto *name :
         {"--database-dir", "--browser", "--headless", "--browser-arg", "--open", "--set", "--until-loaded", "--auto",
          "--manual", "--browse", "--list-file", "--list-db", "--list-save", "--list-print", "--json", "--help"})
        EXPECT_TRUE(usage().contains(QLatin1StringView(name))) << name;
}

TEST(Arguments, AListNeedsNoRunAndItsFileIsAWholePath)
{
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    const Arguments arguments = parseArguments({u"--list-file"_s, QDir::current().relativeFilePath(file.fileName()),
                                                u"--list-db"_s, u"--list-save"_s, u"--list-print"_s});
    EXPECT_EQ(arguments.listFile, file.fileName());
    EXPECT_TRUE(arguments.listDb && arguments.listSave && arguments.listPrint);
    EXPECT_FALSE(arguments.run.has_value());
    for (const auto &word : {u"--list-db"_s, u"--list-save"_s, u"--list-print"_s}) {
        EXPECT_TRUE(parseArguments({word}).hasListWork());
        EXPECT_TRUE(parseArguments({word, u"--manual"_s}).hasListWork());
    }
    EXPECT_FALSE(parseArguments({u"--manual"_s}).hasListWork());
}
