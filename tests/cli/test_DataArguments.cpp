// Exports and imports on the command line: what is understood, and what is refused with one clear line.
#include "cli/Arguments.h"
#include "cli/DataWork.h"
#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {
QString refusal(const QString &words)
{
    try {
        static_cast<void>(parseArguments(words.split(u' ')));
    } catch (const RuntimeError &error) {
        return error.description();
    }
    return u"accepted"_s;
}

class DataCommandLineTest : public ProgramTest
{
  protected:
    DataCommandLineTest()
    {
        settings.SaveSetting(u"SecFrmSearch"_s, u"SearchKeyTxtSaveLocation Text"_s, folder.path() + u'/');
        makeDatabase(mine, log, folder.path());
        settings.SaveSetting(u"mStartUp"_s, u"DatabaseName"_s, u"Trawlex-0.mdb"_s);
        EXPECT_TRUE(QDir(folder.path()).mkdir(u"other"_s));
        makeDatabase(other, log, folder.filePath(u"other"_s));
    }
    [[nodiscard]] bool run(const QString &words)
    {
        Program data(
            {pump, dialogs, desktop, clipboard, settings, place, menus, side, pictures, browsers, folder.path()});
        QObject::connect(&data.status, &StatusLine::told, &data.form,
                         [this](const QString &text) { statuses.append(text); });
        return runDataCommand(data, parseArguments(words.split(u' ')).data);
    }
    RecordingLog log;
    DatabaseHolder mine, other;
};
} // namespace

TEST(DataArgumentsTest, AnExportNamesTableFormAndFile)
{
    const DataArguments data = parseArguments({u"--export"_s, u"emailaddress"_s, u"--format=csv"_s, u"--where"_s,
                                               u"Url=a=b"_s, u"--to"_s, u"x"_s})
                                   .data;
    EXPECT_EQ(data.exported, u"EmailAddress"_s);
    EXPECT_EQ(data.format->word, "csv"_L1);
    EXPECT_EQ(data.where->field, u"Url"_s);
    EXPECT_EQ(data.where->text, u"a=b"_s);
    EXPECT_EQ(data.to, u"x"_s);
}

TEST(DataArgumentsTest, WhatIsMissingOrDoesNotGoTogetherIsRefused)
{
    const std::pair<QString, QString> refused[] = {
        {u"--export Nowhere"_s, u"there is no table"_s},
        {u"--export Block --format doc"_s, u"is none of html, comma"_s},
        {u"--export Block --format csv"_s, u"wants --format and --to"_s},
        {u"--export Block --format csv --to x --where Url=1"_s, u"has no field"_s},
        {u"--export Block --format csv --to x --where Url"_s, u"FIELD=TEXT"_s},
        {u"--export Block --format csv --to x --auto"_s, u"without a run"_s},
        {u"--auto --data"_s, u"belong to --import"_s},
        {u"--auto --to x"_s, u"belong to --export"_s},
        {u"--import /none --data"_s, u"no such file"_s},
        {u"--import /proc/version"_s, u"--import wants"_s},
        {u"--import /proc/version --data --table Block"_s, u"--import wants"_s},
        {u"--import /proc/version --field a=b"_s, u"TABLE.FIELD"_s},
        {u"--import /proc/version --field a.b=Block.None"_s, u"there is no field"_s},
        {u"--import /proc/version --field a.b=Block.Index"_s, u"Index fields can not be imported"_s},
        {u"--import /proc/version --data --export Block --format csv --to x"_s, u"exclude each other"_s}};
    for (const auto &[words, why] : refused)
        EXPECT_TRUE(refusal(words).contains(why)) << qPrintable(words + u": "_s + refusal(words));
    EXPECT_EQ(refusal(u"--import /proc/version --data --settings"_s), u"accepted"_s);
}

TEST_F(DataCommandLineTest, AnExportNeedsNoBrowserAndRefusesATakenName)
{
    addRow(*mine, u"Block"_s, {{u"UrlsContent"_s, u"ads"_s}});
    const QString command = u"--export Block --format csv --to "_s + folder.filePath(u"out.csv"_s);
    EXPECT_TRUE(run(command));
    QFile file(folder.filePath(u"out.csv"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "\xEF\xBB\xBFIndex,UrlsContent,EmailContent\r\n1,ads,\r\n");
    EXPECT_FALSE(run(command));
    EXPECT_FALSE(run(u"--export MC --format csv --to "_s + folder.filePath(u"mc.csv"_s)));
    EXPECT_EQ(lastStatus(), u"No records in recordset"_s);
    EXPECT_TRUE(browsers.running->navigated.isEmpty());
}

TEST_F(DataCommandLineTest, AnImportDoesSettingsThenData)
{
    addRow(*other, u"Block"_s, {{u"UrlsContent"_s, u"ads"_s}});
    addRow(*other, u"EmailAddress"_s, {{u"Address"_s, u"a@b.com"_s}});
    EXPECT_TRUE(run(u"--import "_s + other->DatabasePath() + u" --data --settings"_s));
    EXPECT_EQ(column(*mine, u"Block"_s, u"UrlsContent"_s), QStringList{u"ads"_s});
    EXPECT_EQ(column(*mine, u"EmailAddress"_s, u"Address"_s), QStringList{u"a@b.com"_s});
    EXPECT_EQ(lastStatus(), u"Data Imported"_s);
    EXPECT_LT(statuses.indexOf(u"Settings Imported"_s), statuses.indexOf(u"Importing all data"_s));
    EXPECT_TRUE(run(u"--import "_s + other->DatabasePath() + u" --field EmailAddress.Address=MNUrlsA.Url"_s));
    EXPECT_EQ(column(*mine, u"MNUrlsA"_s, u"Url"_s), QStringList{u"a@b.com"_s});
}

TEST_F(DataCommandLineTest, TheOpenDatabaseAndAnotherSystemsFileAreRefused)
{
    EXPECT_FALSE(run(u"--import "_s + mine->DatabasePath() + u" --data"_s));
    EXPECT_EQ(lastStatus(), u"Can't import loaded database"_s);
    addRow(*other, u"Block"_s, {{u"UrlsContent"_s, u"ads"_s}});
    EXPECT_FALSE(run(u"--import /proc/version --table Block"_s));
    EXPECT_EQ(lastStatus(), u"Not an Trawlex database"_s);
}
