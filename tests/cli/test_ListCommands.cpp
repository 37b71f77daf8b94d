// The manual list on show, filled, kept and printed from a terminal.
#include "cli/ListCommands.h"

#include "cli/Outcome.h"
#include "support/ProgramFixture.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {
class ListCommandsTest : public RunTest
{
  protected:
    [[nodiscard]] ListBox &list() { return form().lists.shown(); }
    [[nodiscard]] QString file(const QByteArray &bytes)
    {
        const QString path = folder.filePath(u"list.txt"_s);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return path;
    }
    Arguments arguments;
};
} // namespace

TEST_F(ListCommandsTest, AFileComesBeforeTheDatabaseAndBothAreSaved)
{
    addRow(database(), u"MNUrlsA"_s, {{u"Url"_s, u"http://www.saved.com/"_s}});
    arguments.listFile = file("http://www.a.com/\r\nhttp://www.b.com/\nhttp://www.a.com/");
    arguments.listDb = arguments.listSave = true;
    EXPECT_TRUE(prepareList(*program, arguments));
    const QStringList items{u"http://www.a.com/"_s, u"http://www.b.com/"_s, u"http://www.saved.com/"_s};
    EXPECT_EQ(list().items(), items);
    EXPECT_EQ(rows(u"MNUrlsA"_s), (QStringList{items[2], items[0], items[1]}));
    EXPECT_EQ(statuses, (QStringList{u"Please Wait"_s, u"2 loaded"_s, u"Loading MNUrlsA"_s, u"3 loaded"_s,
                                     u"Saving MNUrlsA. Please Wait"_s, u"Saved To MNUrlsA"_s}));
}

TEST_F(ListCommandsTest, TheListIsTheOneOnShow)
{
    addRow(database(), u"MNUrlsC"_s, {{u"Url"_s, u"http://www.c.com/"_s}});
    form().lists.cboMNList.setListIndex(2);
    arguments.listDb = true;
    EXPECT_TRUE(prepareList(*program, arguments));
    EXPECT_EQ(form().lists.lstMN(2).items(), QStringList{u"http://www.c.com/"_s});
    EXPECT_EQ(form().lists.lstMN(0).listCount(), 0);
}

TEST_F(ListCommandsTest, ItBeginsAtItsRememberedPosition)
{
    list().setItems({u"http://www.a.com/"_s, u"http://www.b.com/"_s, u"http://www.c.com/"_s});
    list().choose(1, {false, true, false});
    ASSERT_TRUE(program->manual.store.saveToDatabase());
    program->manual.tables.SaveMNLastUrl(list(), u"MNUrlsA"_s, true);
    list().clear();
    arguments.listDb = true;
    EXPECT_TRUE(prepareList(*program, arguments));
    EXPECT_EQ(list().listIndex(), 1);
}

TEST_F(ListCommandsTest, AFileOfWhichNothingCanBeTakenEndsIt)
{
    arguments.listFile = file("no link\n");
    arguments.listDb = arguments.listSave = true;
    EXPECT_FALSE(prepareList(*program, arguments));
    EXPECT_EQ(statuses, (QStringList{u"Please Wait"_s, u"0 loaded. InValid Url"_s}));
    statuses.clear();
    arguments.listFile = folder.filePath(u"gone.txt"_s);
    EXPECT_FALSE(prepareList(*program, arguments));
    EXPECT_EQ(lastStatus(), u"0 loaded. No such file"_s);
}

TEST_F(ListCommandsTest, WithABaseAnyLineIsAnItem)
{
    form().series.cboMNAutoUrl.setText(u"www.a.com/"_s);
    form().control(u"mnuMNUseAutoBase"_s)->enter(u"1"_s);
    arguments.listFile = file("tea\ncoffee\n");
    EXPECT_TRUE(prepareList(*program, arguments));
    EXPECT_EQ(listText(list()), "tea\ncoffee\n");
}

TEST_F(ListCommandsTest, AListThatCannotBeKeptIsAFailure)
{
    list().addItem(u"http://www.a.com/"_s);
    database().CloseConnection();
    arguments.listSave = true;
    EXPECT_FALSE(prepareList(*program, arguments));
    EXPECT_TRUE(lastStatus().startsWith(u"Not saved"_s)) << lastStatus().toStdString();
}

TEST_F(ListCommandsTest, AListThatCannotBeReadIsAFailureAndNothingIsSaved)
{
    database().CloseConnection();
    arguments.listDb = arguments.listSave = true;
    EXPECT_FALSE(prepareList(*program, arguments));
    EXPECT_EQ(statuses, (QStringList{u"Loading MNUrlsA"_s, u"0 loaded. Not readable"_s}));
}

TEST_F(ListCommandsTest, AFileAloneIsReadWithoutABrowser)
{
    program = std::make_unique<Program>(ports());
    ASSERT_TRUE(program->startUp.load());
    EXPECT_FALSE(form().browser.mbInitialized);
    arguments.listFile = file("http://www.a.com/\n");
    arguments.listSave = true;
    EXPECT_TRUE(prepareList(*program, arguments));
    EXPECT_EQ(rows(u"MNUrlsA"_s), QStringList{u"http://www.a.com/"_s});
}

TEST_F(ListCommandsTest, TheListIsPrintedOneItemALineOrAsAMember)
{
    EXPECT_EQ(listText(list()), "");
    list().setItems({u"http://www.zo\u00eb.com/"_s, u"b"_s});
    EXPECT_EQ(listText(list()), "http://www.zo\xc3\xab.com/\nb\n");
    const Outcome outcome(*program);
    EXPECT_FALSE(QJsonDocument::fromJson(outcome.json()).object().contains(u"list"_s));
    EXPECT_EQ(QJsonDocument::fromJson(outcome.json(true)).object()[u"list"_s].toArray(),
              (QJsonArray{u"http://www.zo\u00eb.com/"_s, u"b"_s}));
}

TEST_F(ListCommandsTest, AStoredSeriesGivesWayToWhatTheCommandLineBrings)
{
    settings.preset("txtMNGenerateUrlA", u"www.a.com/7"_s);
    const auto left = [&](const QStringList &words) {
        program.reset();
        settings.preset("mnuMNStatusAutoIncrPos", u"1"_s);
        load();
        EXPECT_EQ(program->manual.desk.GetAutoIncrChecked(), 1);
        giveUpStoredSeries(*program, parseArguments(QStringList{u"--manual"_s} + words));
        return program->manual.desk.GetAutoIncrChecked();
    };
    EXPECT_EQ(left({}), 1);
    EXPECT_EQ(left({u"--set"_s, u"incMNAutoUrl=9"_s}), 1) << "it begins elsewhere";
    EXPECT_EQ(left({u"--set"_s, u"cboMNAutoUrl=www.b.com/1"_s}), 0);
    EXPECT_EQ(left({u"--set"_s, u"mnuMNStatusAutoIncrPos(1)=1"_s}), 0);
    EXPECT_EQ(left({u"--list-file"_s, file("http://www.a.com/")}), 0);
    EXPECT_EQ(left({u"--list-db"_s}), 0);
}
