// Blocked texts: two lists that share the rows of one table.
#include "lists/Blocking.h"
#include "support/FormWithDatabase.h"
#include "util/Arrays.h"

#include <QElapsedTimer>

using namespace Qt::StringLiterals;

namespace {
using Kind = Blocking::Kind;

class BlockingTest : public FormDatabaseTest
{
  protected:
    void addBlock(const QString &url, const QString &email)
    {
        addRow(*database, u"Block"_s, {{u"UrlsContent"_s, url}, {u"EmailContent"_s, email}});
    }
    /// The table's rows as "link|address".
    QStringList table()
    {
        const QStringList urls = rows(u"Block"_s, u"UrlsContent"_s);
        const QStringList emails = rows(u"Block"_s, u"EmailContent"_s);
        QStringList all;
        for (int i = 0; i < urls.size(); ++i)
            all.append(urls[i] + u'|' + emails[i]);
        return all;
    }
    void reload() { blocking.LoadBlocked(); }
    void choose(ListBox &list, int index)
    {
        std::vector<bool> selected(static_cast<std::size_t>(list.listCount()));
        selected[static_cast<std::size_t>(index)] = true;
        list.choose(index, selected);
    }

    Blocking blocking{context, form.blocking, database, browser};
};
} // namespace

TEST_F(BlockingTest, BothListsAreFilledInRowOrder)
{
    addBlock(u"ads"_s, {});
    addBlock({}, u"spam"_s);
    addBlock(u"banner"_s, u"noreply"_s);
    reload();
    EXPECT_EQ(form.blocking.urls.items.items(), (QStringList{u"ads"_s, u"banner"_s}));
    EXPECT_EQ(form.blocking.email.items.items(), (QStringList{u"spam"_s, u"noreply"_s}));
}

TEST_F(BlockingTest, AnAddedTextTakesTheFirstRowThatHasRoom)
{
    blocking.add(Kind::Url, u"ads"_s);
    EXPECT_EQ(lastStatus(), u"ads added"_s);
    blocking.add(Kind::Email, u"spam"_s);
    blocking.add(Kind::Email, u"noreply"_s);
    blocking.add(Kind::Url, u"banner"_s);
    EXPECT_EQ(table(), (QStringList{u"ads|spam"_s, u"banner|noreply"_s}));
    EXPECT_EQ(form.blocking.urls.items.items(), (QStringList{u"ads"_s, u"banner"_s}));
    EXPECT_EQ(form.blocking.urls.items.listIndex(), 0);
}

TEST_F(BlockingTest, CommasAreTakenOutAndNothingLeftAddsNothing)
{
    blocking.add(Kind::Url, u"a,b"_s);
    EXPECT_EQ(form.blocking.urls.items.items(), QStringList{u"ab"_s});
    blocking.add(Kind::Url, u",,"_s);
    EXPECT_EQ(table().size(), 1);
}

TEST_F(BlockingTest, ATextIsAddedOnceButMayDifferInCase)
{
    blocking.add(Kind::Url, u"ads"_s);
    blocking.add(Kind::Url, u"ads"_s);
    EXPECT_EQ(lastStatus(), u"ads exists"_s);
    blocking.add(Kind::Url, u"ADS"_s);
    EXPECT_EQ(form.blocking.urls.items.items(), (QStringList{u"ads"_s, u"ADS"_s}));
}

TEST_F(BlockingTest, AsksForATextAndProposesThePagesServerForLinks)
{
    window().show(u"http://www.ads.com/x"_s);
    dialogs.inputAnswers = {u"ads.com"_s, u"@spam"_s};
    blocking.add(Kind::Url);
    blocking.add(Kind::Email);
    ASSERT_EQ(dialogs.inputs.size(), 2);
    EXPECT_EQ(dialogs.inputs[0].title, u"Urls Must Not contain"_s);
    EXPECT_EQ(dialogs.inputs[0].text, u"Enter new item"_s);
    EXPECT_EQ(dialogs.inputs[0].prompt, u"www.ads.com"_s);
    EXPECT_EQ(dialogs.inputs[1].title, u"Emails Must Not contain"_s);
    EXPECT_EQ(dialogs.inputs[1].prompt, QString());
    EXPECT_EQ(table(), QStringList{u"ads.com|@spam"_s});
}

TEST_F(BlockingTest, TheFirstTextDoesNotInItselfTurnBlockingOn)
{
    blocking.add(Kind::Url, u"ads"_s);
    EXPECT_EQ(form.blocking.urls.on.value(), 0);
    settings.preset("chkUrlBlocking", u"1"_s); // the user turns it on
    blocking.add(Kind::Url, u"banner"_s);
    EXPECT_EQ(form.blocking.urls.on.value(), 1);
}

TEST_F(BlockingTest, RemovingALinkTextKeepsTheAddressTextOfItsRow)
{
    addBlock(u"ads"_s, u"spam"_s);
    addBlock(u"banner"_s, {});
    reload();
    choose(form.blocking.urls.items, 0);
    blocking.RemoveBlocked(Kind::Url);
    EXPECT_EQ(lastStatus(), u"ads removed"_s);
    EXPECT_EQ(table(), (QStringList{u"|spam"_s, u"banner|"_s}));
    EXPECT_EQ(form.blocking.urls.items.items(), QStringList{u"banner"_s});
    EXPECT_EQ(form.blocking.urls.items.listIndex(), 0);
}

TEST_F(BlockingTest, ARowSharedByBothGoesWithItsSecondText)
{
    addBlock(u"ads"_s, u"spam"_s);
    reload();
    choose(form.blocking.email.items, 0);
    blocking.RemoveBlocked(Kind::Email);
    EXPECT_EQ(table(), QStringList{u"ads|"_s});
    choose(form.blocking.urls.items, 0);
    blocking.RemoveBlocked(Kind::Url);
    EXPECT_TRUE(table().isEmpty());
}

TEST_F(BlockingTest, AnEarlierRowWithAnAddressTextAloneGoesWithALinkTextUntilTheNextLoad)
{
    addBlock({}, u"spam"_s);
    addBlock(u"ads"_s, {});
    addBlock({}, u"later"_s);
    reload();
    choose(form.blocking.urls.items, 0);
    blocking.RemoveBlocked(Kind::Url);
    EXPECT_EQ(table(), QStringList{u"|later"_s});
    EXPECT_EQ(form.blocking.email.items.items(), (QStringList{u"spam"_s, u"later"_s}));
    reload();
    EXPECT_EQ(form.blocking.email.items.items(), QStringList{u"later"_s});
}

TEST_F(BlockingTest, AnEarlierRowWithALinkTextAloneStaysWhenAnAddressTextGoes)
{
    addBlock(u"ads"_s, {});
    addBlock({}, u"spam"_s);
    reload();
    choose(form.blocking.email.items, 0);
    blocking.RemoveBlocked(Kind::Email);
    EXPECT_EQ(table(), QStringList{u"ads|"_s});
}

TEST_F(BlockingTest, RemovingTheLastTextClearsTheBoxAndItStaysOff)
{
    blocking.add(Kind::Url, u"ads"_s);
    form.blocking.urls.on.setValue(1);
    choose(form.blocking.urls.items, 0);
    blocking.RemoveBlocked(Kind::Url);
    EXPECT_EQ(form.blocking.urls.on.value(), 0);
    blocking.add(Kind::Url, u"banner"_s);
    EXPECT_EQ(form.blocking.urls.on.value(), 0);
}

TEST_F(BlockingTest, AllSelectedTextsAreRemoved)
{
    for (const auto *text : {"a", "b", "c", "d"})
        blocking.add(Kind::Url, QString::fromLatin1(text));
    form.blocking.urls.items.choose(0, {true, false, true, true});
    blocking.RemoveBlocked(Kind::Url);
    EXPECT_EQ(form.blocking.urls.items.items(), QStringList{u"b"_s});
    EXPECT_EQ(table(), QStringList{u"b|"_s});
}

TEST_F(BlockingTest, ClearingEmptiesTheListAndItsColumn)
{
    addBlock(u"ads"_s, u"spam"_s);
    addBlock(u"banner"_s, {});
    reload();
    blocking.ClearBlockedList(Kind::Url);
    EXPECT_EQ(form.blocking.urls.items.listCount(), 0);
    EXPECT_FALSE(table().join(u',').contains(u"ads"_s) || table().join(u',').contains(u"banner"_s));
}

TEST_F(BlockingTest, ClearingAnEmptyListDoesNothing)
{
    statuses.clear();
    blocking.ClearBlockedList(Kind::Email);
    EXPECT_TRUE(statuses.isEmpty());
}

TEST_F(BlockingTest, BlockingAPartOfAWordDropsALinkThatEndsInAnotherCase)
{
    EXPECT_EQ(cUtility::FilterArray({u"http://a.com/Downloads/x"_s, u"http://a.com/y"_s}, {u"ads"_s}),
              QStringList{u"http://a.com/y"_s});
}

TEST_F(BlockingTest, ATextLongerThanAColumnIsCutAtEntryAndCanBeRemoved)
{
    blocking.add(Kind::Url, QString(300, u'a'));
    const QString cut(255, u'a');
    EXPECT_EQ(form.blocking.urls.items.items(), QStringList{cut});
    EXPECT_EQ(table(), QStringList{cut + u'|'});
    choose(form.blocking.urls.items, 0);
    blocking.RemoveBlocked(Kind::Url);
    EXPECT_TRUE(table().isEmpty());
    EXPECT_EQ(form.blocking.urls.items.listCount(), 0);
}

TEST_F(BlockingTest, LineBreaksInATypedTextBecomeOneBlank)
{
    dialogs.inputAnswers = {u"two\r\nlines"_s};
    blocking.add(Kind::Email);
    EXPECT_EQ(form.blocking.email.items.items(), QStringList{u"two lines"_s});
}

TEST_F(BlockingTest, ADropAddsEachNewLineWhateverEndsIt)
{
    blocking.add(Kind::Url, u"ads"_s);
    blocking.drop(Kind::Url, u"one\r\n\r\nADS\ntwo,three\rOne"_s);
    EXPECT_EQ(form.blocking.urls.items.items(), (QStringList{u"ads"_s, u"one"_s, u"twothree"_s}));
    EXPECT_EQ(table(), (QStringList{u"ads|"_s, u"one|"_s, u"twothree|"_s}));
    EXPECT_EQ(lastStatus(), u"twothree added"_s);
}

TEST_F(BlockingTest, ADroppedTextOfOneLineIsAddedAsIfItHadBeenTyped)
{
    blocking.drop(Kind::Email, u"spam"_s);
    blocking.drop(Kind::Email, u"SPAM"_s);
    blocking.drop(Kind::Email, u"spam"_s);
    EXPECT_EQ(lastStatus(), u"spam exists"_s);
    blocking.drop(Kind::Email, u"Spam\r\n"_s); // with a line end it stands there already, whatever its case
    blocking.drop(Kind::Email, QString());
    EXPECT_EQ(form.blocking.email.items.items(), (QStringList{u"spam"_s, u"SPAM"_s}));
    EXPECT_TRUE(dialogs.inputs.isEmpty());
}

TEST_F(BlockingTest, WhatTheTableRefusesIsNeitherShownNorTold)
{
    addBlock(u"ads"_s, {});
    reload();
    choose(form.blocking.urls.items, 0);
    statuses.clear();
    database->CloseConnection();
    blocking.RemoveBlocked(Kind::Url);
    blocking.add(Kind::Url, u"banner"_s);
    blocking.ClearBlockedList(Kind::Url);
    EXPECT_EQ(form.blocking.urls.items.items(), QStringList{u"ads"_s});
    EXPECT_TRUE(statuses.isEmpty());
}

TEST_F(BlockingTest, ListsOfAHundredThousandTextsStayUsable)
{
    QStringList lines;
    for (int i = 0; i < 100'000; ++i)
        lines.append(u"text%1"_s.arg(i));
    QElapsedTimer time;
    time.start();
    blocking.drop(Kind::Url, lines.join(u'\n'));
    EXPECT_EQ(form.blocking.urls.items.listCount(), 100'000);
    blocking.ClearBlockedList(Kind::Url);
    EXPECT_EQ(form.blocking.urls.items.listCount(), 0);
    EXPECT_TRUE(table().isEmpty());
    EXPECT_LT(time.elapsed(), 20'000);
}
