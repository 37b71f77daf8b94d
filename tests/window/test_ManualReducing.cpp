// The commands of the manual lists that take long or change many items at once: reducing, files, cancelling.
#include "window/ManualCommandsFixture.h"

#include <QDir>

using namespace Qt::StringLiterals;

TEST_F(ManualCommandsTest, EscapeInALongCommandKeepsTheListAndItsSelection)
{
    QStringList many;
    for (int i = 0; i < 500; ++i)
        many.append(u"http://www.site%1.com/"_s.arg(i));
    for (const auto name : {"mnuMNReduceToServer"_L1, "mnuMNUniqueServersOnly"_L1, "mnuMNRem(0)"_L1, "mnuMNRem(1)"_L1,
                            "mnuMNRem(2)"_L1, "mnuMNRem(3)"_L1, "mnuMNRem(4)"_L1, "mnuMNRem(5)"_L1}) {
        fill(many, {7}, 7);
        dialogs.inputAnswers = {u"site1"_s};
        pump.after(0, [this] { program->longWork.cancel(); }); // in the first turn of the loop
        click(name);
        EXPECT_EQ(lastStatus(), u"500 loaded. Cancelled"_s) << name.data();
        EXPECT_EQ(list().items(), many) << name.data();
        EXPECT_TRUE(list().isSelected(7)) << name.data();
        EXPECT_TRUE(form().lists.cboMNList.isEnabled()) << "the controls came back";
    }
}

TEST_F(ManualCommandsTest, WhatJoinsTheListInALongCommandIsNotLost)
{
    for (const auto name : {"mnuMNRem(0)"_L1, "mnuMNRem(2)"_L1, "mnuMNRem(4)"_L1, "mnuMNUniqueServersOnly"_L1}) {
        fill({u"http://www.a.com/1"_s, u"http://www.a.com/1"_s});
        dialogs.inputAnswers = {u"a.com"_s};
        // The turn is let in behind the first look at the list.
        pump.after(0, [this] { pump.after(0, [this] { list().addItem(u"http://www.collected.com/"_s); }); });
        click(name);
        pump.finish();
        EXPECT_EQ(list().items().constLast(), u"http://www.collected.com/"_s) << name.data();
    }
}

TEST_F(ManualCommandsTest, ServersAreUniqueAsTheListOfThemSays)
{
    fill({u"no server"_s, u"http://www.a.com/1"_s, u"other"_s, u"HTTP://WWW.A.com/2"_s, u"more"_s, u"  "_s});
    click("mnuMNUniqueServersOnly"_L1);
    EXPECT_EQ(list().items(), (QStringList{u"http://www.a.com/1"_s, u"other"_s}));
    fill({u"no server"_s, u"none"_s});
    click("mnuMNUniqueServersOnly"_L1);
    EXPECT_EQ(list().listCount(), 0);
}

TEST_F(ManualCommandsTest, TruncatingAtATextOfNoItemLosesTheSelectionAlone)
{
    const QStringList items{u"http://www.a.com/"_s, u"b"_s};
    fill(items, {1}, 1);
    dialogs.inputAnswers = {u"tea"_s};
    click("mnuMNRem(2)"_L1);
    EXPECT_EQ(list().items(), items);
    EXPECT_EQ(list().selCount(), 0);
    EXPECT_EQ(list().listIndex(), -1);
    fill({u"tea"_s, u"TEA"_s});
    dialogs.inputAnswers = {u"tea"_s};
    click("mnuMNRem(3)"_L1);
    EXPECT_EQ(list().listCount(), 0) << "items that became empty vanish";
}

TEST_F(ManualCommandsTest, NoSecondCommandRunsInsideALongOne)
{
    fill({u"http://www.a.com/1"_s, u"http://www.a.com/2"_s});
    pump.after(0, [this] { item("mnuMNClear"_L1).click(); });
    click("mnuMNReduceToServer"_L1);
    EXPECT_EQ(list().items(), QStringList{u"http://www.a.com"_s});
}

TEST_F(ManualCommandsTest, ItemsAreReducedInEachWay)
{
    const QStringList items{u"http://www.a.com/1"_s, u"http://www.a.com/1"_s, u"HTTP://www.a.com/2/"_s,
                            u"http://www.b.com/x"_s, u"short"_s};
    const auto left = [&](QLatin1StringView name, const QString &answer = {}) {
        fill(items);
        dialogs.inputAnswers = {answer};
        click(name);
        return list().items();
    };
    EXPECT_EQ(left("mnuMNRem(0)"_L1), (QStringList{items[0], items[2], items[3], items[4]}));
    EXPECT_EQ(statuses, (QStringList{u"Working"_s, u"4 loaded"_s}));
    EXPECT_EQ(left("mnuMNRem(1)"_L1),
              (QStringList{u"www.a.com/1"_s, u"www.a.com/1"_s, u"www.a.com/2"_s, u"www.b.com/x"_s}));
    EXPECT_EQ(statuses.constFirst(), u"Removing http://"_s);
    EXPECT_EQ(left("mnuMNRem(2)"_L1, u"A.com/"_s), (QStringList{u"1"_s, u"1"_s, u"2/"_s, items[3], items[4]}));
    EXPECT_EQ(statuses.constFirst(), u"Removing Left after A.com/"_s);
    EXPECT_EQ(settings.of("TruncLeft"), u"A.com/"_s);
    EXPECT_EQ(left("mnuMNRem(3)"_L1, u".com"_s),
              (QStringList{u"http://www.a"_s, u"http://www.a"_s, u"HTTP://www.a"_s, u"http://www.b"_s, u"short"_s}));
    EXPECT_EQ(dialogs.inputs.constLast().title, u"Urls will be truncated at text"_s);
    EXPECT_EQ(left("mnuMNRem(4)"_L1, u"A.COM"_s), (QStringList{items[3], items[4]}));
    EXPECT_EQ(left("mnuMNRem(5)"_L1, u"A.COM"_s), (QStringList{items[0], items[1], items[2]}));
    EXPECT_EQ(dialogs.inputs.constLast().text, u"Remove items Not containing text"_s);
    EXPECT_EQ(left("mnuMNUniqueServersOnly"_L1), (QStringList{items[0], items[3], items[4]}))
        << "items without a server are one of their own";
    EXPECT_EQ(left("mnuMNReduceToServer"_L1), (QStringList{u"http://www.a.com"_s, u"http://www.b.com"_s, u"mailto:"_s}))
        << "what has no server is left with its protocol";
}

TEST_F(ManualCommandsTest, AnEmptyAnswerKeepsTheListAndTheSetting)
{
    settings.preset("FnRemove", u"old"_s);
    settings.preset("TruncLeft", u"old"_s);
    fill({u"a"_s, u"b"_s}, {1}, 1);
    for (const auto name : {"mnuMNRem(2)"_L1, "mnuMNRem(3)"_L1, "mnuMNRem(4)"_L1, "mnuMNRem(5)"_L1}) {
        click(name);
        EXPECT_TRUE(statuses.isEmpty());
    }
    EXPECT_EQ(list().listCount(), 2);
    EXPECT_EQ(settings.of("FnRemove"), u"old"_s);
    EXPECT_EQ(settings.of("TruncLeft"), u"old"_s);
    EXPECT_EQ(dialogs.inputs.constLast().prompt, u"b"_s) << "the selected item is proposed";
    fill({u"a"_s, u"b"_s});
    click("mnuMNRem(4)"_L1);
    EXPECT_EQ(dialogs.inputs.constLast().prompt, u"old"_s) << "none is selected";
}

TEST_F(ManualCommandsTest, LinksOfAFileAreLoaded)
{
    dialogs.fileAnswer = folder.filePath(u"list.txt"_s);
    write(dialogs.fileAnswer, "http://a.com\nno\nhttp://a.com\n");
    click("mnuMNLoadLinksFile"_L1);
    EXPECT_EQ(statuses.constFirst(), u"Please Wait"_s);
    EXPECT_EQ(lastStatus(), u"1 loaded"_s);
    EXPECT_EQ(settings.of("FileNFileName"), dialogs.fileAnswer);
    write(dialogs.fileAnswer, "nothing\r\nof use\r\n");
    click("mnuMNLoadLinksFile"_L1);
    EXPECT_EQ(lastStatus(), u"1 loaded. InValid Url"_s);
    dialogs.fileAnswer.clear();
    click("mnuMNLoadLinksFile"_L1);
    EXPECT_EQ(lastStatus(), u"1 loaded"_s) << "cancelled";
}

TEST_F(ManualCommandsTest, AListGoesToAFileUnderAProposedName)
{
    form().places.txtSFMNDir.setText(folder.path() + u'/');
    fill({u"http://www.tea.com/1"_s, u"b"_s}, {0}, 0);
    click("mnuMNSaveAsFile"_L1);
    EXPECT_EQ(dialogs.files.constLast().prompt, folder.filePath(u"httpwwwtea-0.txt"_s));
    EXPECT_EQ(dialogs.files.constLast().title, u"Select File"_s);
    EXPECT_FALSE(QFile::exists(folder.filePath(u"httpwwwtea-0.txt"_s))) << "cancelled";
    fill({u"http://www.tea.com/1"_s, u"http://www.milk.com/2"_s}, {1}, 0);
    click("mnuMNSaveAsFile"_L1);
    EXPECT_EQ(dialogs.files.constLast().prompt, folder.filePath(u"httpwwwmilk-0.txt"_s))
        << "the selected item, not the one with the focus";
    fill({u"http://www.tea.com/1"_s, u"b"_s}, {0}, 0);
    QDir(folder.path()).mkdir(u"sub"_s);
    dialogs.fileAnswer = folder.filePath(u"sub/mine.txt"_s);
    write(dialogs.fileAnswer, "old\r\n");
    click("mnuMNSaveAsFile"_L1);
    QFile file(dialogs.fileAnswer);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), QByteArray("old\r\nhttp://www.tea.com/1\r\nb\r\n")) << "added to, not overwritten";
    EXPECT_EQ(form().places.txtSFMNDir.text(), folder.filePath(u"sub/"_s));
    EXPECT_EQ(settings.of("txtFNSaveLocation"), folder.filePath(u"sub/"_s));
}
