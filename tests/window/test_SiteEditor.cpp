// The editor of search-site records: what its boxes show, what its buttons do to a record, and when they may be used.
#include "pages/LinkStages.h"
#include "support/ProgramFixture.h"

#include <QDeadlineTimer>

using namespace Qt::StringLiterals;

namespace {
constexpr int addName = 1, deleteName = 2;
constexpr int addButton(int box)
{
    return 2 * box - 1;
}
constexpr int deleteButton(int box)
{
    return 2 * box;
}

/// The program on the tab of the editor, with one record of its own.
class SiteEditorTest : public ProgramTest
{
  protected:
    SiteEditorTest()
    {
        load();
        database().DeleteRecords(u"SearchSites"_s, {}, {}, false);
        addSite({{u"CnvHex"_s, u"1"_s},
                 {u"UrlLen"_s, u"3<~Dorv~>25"_s},
                 {u"Group"_s, u"2"_s},
                 {u"BeginUrl-1"_s, u"q="_s},
                 {u"BeginUrl-3"_s, u"u="_s},
                 {u"UrlMC-2"_s, u"hit<~Dorv~>4"_s}});
        program->siteEditing.LoadSearchSiteData(SiteEditing::allNames);
        form().frame.sstSettings.setTab(Tab::Misc);
        form().frame.sstMiscOptions.setTab(Tab::Sites);
        form().frame.sstSearch.setTab(Tab::Settings);
        statuses.clear();
    }
    SiteEditor &editor() { return form().siteEditor; }
    ComboBox &box(int number) { return editor().cboSD(number); }
    QString click(int button)
    {
        EXPECT_TRUE(editor().cmdSD(button).isEnabled()) << button;
        statuses.clear();
        editor().cmdSD(button).click();
        return lastStatus();
    }
    QString type(int number, const QString &text, int button)
    {
        box(number).setText(text);
        return click(button);
    }
    void choose() { box(1).setListIndex(0); }
    QString stored(const QString &field) { return rows(u"SearchSites"_s, field).value(0); }
};
} // namespace

TEST_F(SiteEditorTest, AChosenRecordFillsEachBoxAndSelectsItsFirstEntry)
{
    choose();
    EXPECT_EQ(box(2).text(), u"www.seek.com"_s);
    EXPECT_EQ(box(3).items(), (QStringList{u"q="_s, u"u="_s}));
    EXPECT_EQ(box(3).text(), u"q="_s);
    EXPECT_EQ(box(5).text(), u"hit"_s);
    EXPECT_EQ(box(6).listCount(), 0);
    EXPECT_EQ(editor().incSDMCMNC(0).text(), u"004"_s);
    EXPECT_EQ(editor().chkSDHex.value(), 1);
    EXPECT_EQ(editor().cboSDLen.text(), u">="_s);
    EXPECT_EQ(editor().incSDUrlLen.value(), 25);
    EXPECT_EQ(editor().cboSDGroup.text(), u"C"_s);
}

TEST_F(SiteEditorTest, ShowingARecordWritesNothingBack)
{
    addRow(database(), u"SearchSites"_s, {{u"SiteName"_s, u"Find"_s}, {u"CnvHex"_s, u"0"_s}, {u"Group"_s, u"4"_s}});
    program->siteEditing.LoadSearchSiteData(SiteEditing::allNames);
    box(1).setListIndex(1);
    box(1).setListIndex(0);
    EXPECT_EQ(rows(u"SearchSites"_s, u"CnvHex"_s), (QStringList{u"1"_s, u"0"_s}));
    EXPECT_EQ(rows(u"SearchSites"_s, u"Group"_s), (QStringList{u"2"_s, u"4"_s}));
    EXPECT_TRUE(statuses.isEmpty());
}

TEST_F(SiteEditorTest, HexAndGroupAreWrittenAtOnceAndTheLengthIsNot)
{
    choose();
    editor().chkSDHex.click();
    EXPECT_EQ(lastStatus(), u"CnvHex UpDated"_s);
    EXPECT_EQ(stored(u"CnvHex"_s), u"0"_s);
    editor().cboSDGroup.setListIndex(4);
    EXPECT_EQ(lastStatus(), u"Group UpDated"_s);
    EXPECT_EQ(stored(u"Group"_s), u"4"_s);
    editor().cboSDLen.setListIndex(1);
    editor().incSDUrlLen.setText(u"077"_s);
    EXPECT_EQ(stored(u"UrlLen"_s), u"3<~Dorv~>25"_s);
}

TEST_F(SiteEditorTest, ASixthEntryIsRefusedAndItsButtonIsOffAlready)
{
    choose();
    for (const QString &text : {u"a="_s, u"b="_s, u"c="_s})
        EXPECT_EQ(type(3, text, addButton(3)), text + u" added"_s);
    EXPECT_EQ(box(3).listCount(), 5);
    box(3).setText(u"sixth="_s);
    EXPECT_FALSE(editor().cmdSD(addButton(3)).isEnabled());
    EXPECT_EQ(program->siteEditing.ModifySearchData(SiteField::BeginUrl, SiteEditing::Change::Add), u"Not added"_s);
    EXPECT_EQ(stored(u"BeginUrl-5"_s), u"c="_s);
}

TEST_F(SiteEditorTest, ADeletedSlotLeavesTheOthersInPlaceAndIsFilledNext)
{
    choose();
    EXPECT_EQ(type(3, u"Q="_s, deleteButton(3)), u"Q= deleted"_s);
    EXPECT_EQ(stored(u"BeginUrl-1"_s), QString());
    EXPECT_EQ(stored(u"BeginUrl-3"_s), u"u="_s);
    EXPECT_EQ(program->records.GetSearchSiteData(u"Seek"_s, SiteField::BeginUrl), QStringList{u"u="_s});
    EXPECT_EQ(type(3, u"new="_s, addButton(3)), u"new= added"_s);
    EXPECT_EQ(stored(u"BeginUrl-1"_s), u"new="_s);
    EXPECT_EQ(box(3).items(), (QStringList{u"new="_s, u"u="_s}));
}

TEST_F(SiteEditorTest, AValueWithACountIsDeletedWithTheSameCountOnly)
{
    choose();
    editor().incSDMCMNC(0).setText(u"2"_s);
    EXPECT_EQ(click(deleteButton(5)), u"hit not deleted"_s);
    editor().incSDMCMNC(0).setText(u"4"_s);
    EXPECT_EQ(click(deleteButton(5)), u"hit deleted"_s);
    EXPECT_EQ(stored(u"UrlMC-2"_s), QString());
    editor().incSDMCMNC(1).setText(u"0"_s);
    EXPECT_EQ(type(6, u"ads"_s, addButton(6)), u"ads added"_s);
    EXPECT_EQ(stored(u"UrlMNC-1"_s), u"ads<~Dorv~>0"_s);
}

TEST_F(SiteEditorTest, AValueThatStandsThereIsToldAsExisting)
{
    choose();
    box(3).setText(u"U="_s);
    EXPECT_EQ(program->siteEditing.ModifySearchData(SiteField::BeginUrl, SiteEditing::Change::Add), u"U= exists"_s);
}

TEST_F(SiteEditorTest, AnAddressServesOneRecordOnly)
{
    addRow(database(), u"SearchSites"_s, {{u"SiteName"_s, u"Find"_s}, {u"Url-1"_s, u"www.find.com"_s}});
    choose();
    EXPECT_EQ(type(2, u"www.FIND.com"_s, addButton(2)), u"Exists in Find"_s);
    box(1).setText(u"New"_s);
    box(2).setText(u"www.find.com"_s);
    EXPECT_EQ(click(addName), u"www.find.com exists in Find"_s);
    EXPECT_EQ(rows(u"SearchSites"_s, u"SiteName"_s), (QStringList{u"Seek"_s, u"Find"_s}));
}

TEST_F(SiteEditorTest, TheDeleteButtonOfAStoredAddressChangesNothing)
{
    choose();
    EXPECT_EQ(click(deleteButton(2)), u"Exists in Seek"_s);
    EXPECT_EQ(stored(u"Url-1"_s), u"www.seek.com"_s);
}

TEST_F(SiteEditorTest, ANewRecordTakesTheBoxesAsTheyStand)
{
    box(1).setText(u"New"_s);
    for (const auto &[number, text] : {std::pair(2, u"www.new.com"_s),
                                       {3, u"b="_s},
                                       {4, u"&e"_s},
                                       {5, u"in"_s},
                                       {6, u"out"_s},
                                       {7, u"first"_s},
                                       {8, u"last"_s}})
        box(number).setText(text);
    editor().incSDMCMNC(0).setText(u"1"_s);
    editor().incSDMCMNC(1).setText(u"2"_s);
    editor().cboSDLen.setListIndex(2);
    editor().incSDUrlLen.setText(u"090"_s);
    editor().cboSDGroup.setListIndex(3);
    editor().chkSDHex.setValue(1);
    EXPECT_EQ(click(addName), u"Added New"_s);
    const auto last = [this](const QString &field) { return rows(u"SearchSites"_s, field).constLast(); };
    EXPECT_EQ(last(u"SiteName"_s), u"New"_s);
    EXPECT_EQ(last(u"CnvHex"_s), u"1"_s);
    EXPECT_EQ(last(u"UrlLen"_s), u"2<~Dorv~>90"_s);
    EXPECT_EQ(last(u"Group"_s), u"3"_s);
    EXPECT_EQ(last(u"Url-1"_s), u"www.new.com"_s);
    EXPECT_EQ(last(u"BeginUrl-1"_s), u"b="_s);
    EXPECT_EQ(last(u"EndUrl-1"_s), u"&e"_s);
    EXPECT_EQ(last(u"UrlMC-1"_s), u"in<~Dorv~>1"_s);
    EXPECT_EQ(last(u"UrlMNC-1"_s), u"out<~Dorv~>2"_s);
    EXPECT_EQ(last(u"BUrlCol-1"_s), u"first"_s);
    EXPECT_EQ(last(u"EUrlCol-1"_s), u"last"_s);
    EXPECT_EQ(box(1).items(), (QStringList{u"Seek"_s, u"New"_s}));
    EXPECT_EQ(click(addName), u"New exists"_s);
}

TEST_F(SiteEditorTest, ARecordWithoutNameOrAddressIsNotAdded)
{
    EXPECT_EQ(program->siteEditing.AddSearchSite(), u"No Site Name Provided"_s);
    box(1).setText(u"New"_s);
    EXPECT_EQ(click(addName), u"Url is required"_s);
    box(2).setText(u"no address"_s);
    EXPECT_EQ(click(addName), u"no address is invalid"_s);
    EXPECT_EQ(rows(u"SearchSites"_s, u"SiteName"_s), QStringList{u"Seek"_s});
}

TEST_F(SiteEditorTest, ADeletedRecordLeavesTheEditorEmpty)
{
    choose();
    EXPECT_EQ(click(deleteName), u"Seek deleted"_s);
    EXPECT_TRUE(rows(u"SearchSites"_s, u"SiteName"_s).isEmpty());
    EXPECT_EQ(box(1).listCount(), 0);
    EXPECT_EQ(box(3).listCount(), 0);
    EXPECT_EQ(editor().incSDUrlLen.text(), u"000"_s);
    EXPECT_EQ(program->siteEditing.DeleteSearchSite(), u"Nothing selected"_s);
}

TEST_F(SiteEditorTest, WithoutARecordAButtonSaysSo)
{
    box(1).setText(u"Unknown"_s);
    box(3).setText(u"x="_s);
    EXPECT_EQ(click(addButton(3)), u"Site doesn't exist"_s);
}

TEST_F(SiteEditorTest, AnEmptyBoxAddsNothingAndSaysNothing)
{
    choose();
    box(3).setText(u"fresh="_s);
    ASSERT_TRUE(editor().cmdSD(addButton(6)).isEnabled()); // once one box can add, so can those below it
    EXPECT_EQ(click(addButton(6)), QString());
}

TEST_F(SiteEditorTest, ButtonsFollowWhatStandsInTheBoxes)
{
    EXPECT_FALSE(editor().cmdSD(addName).isEnabled());
    EXPECT_FALSE(editor().cmdSD(deleteName).isEnabled());
    choose();
    EXPECT_TRUE(editor().cmdSD(addName).isEnabled() && editor().cmdSD(deleteName).isEnabled());
    EXPECT_TRUE(editor().cmdSD(deleteButton(3)).isEnabled());
    EXPECT_FALSE(editor().cmdSD(deleteButton(4)).isEnabled());
    box(3).setText(u"unsaved"_s);
    EXPECT_FALSE(editor().cmdSD(deleteButton(3)).isEnabled());
    EXPECT_TRUE(editor().cmdSD(addButton(3)).isEnabled());
}

TEST_F(SiteEditorTest, RecordsAreNotEditedDuringARun)
{
    choose();
    form().runs.mbANRunning = true;
    program->siteEditing.SetSDState(false);
    for (int number = 1; number <= 8; ++number)
        EXPECT_FALSE(box(number).isEnabled());
    for (int button = 1; button <= 16; ++button)
        EXPECT_FALSE(editor().cmdSD(button).isEnabled());
    EXPECT_FALSE(editor().cmdSDDefault.isEnabled() || editor().chkSDHex.isEnabled());
    form().runs.mbANRunning = false;
    program->siteEditing.SetSDState(false);
    EXPECT_TRUE(box(1).isEnabled() && editor().cmdSDDefault.isEnabled());
}

TEST_F(SiteEditorTest, TheDefaultsComeBackAfterAQuestion)
{
    dialogs.answer = UserDialogs::Answer::No;
    editor().cmdSDDefault.click();
    EXPECT_EQ(lastStatus(), u"User canceled"_s);
    ASSERT_EQ(dialogs.asked.size(), 1);
    EXPECT_EQ(dialogs.asked[0].title, u"All Updates Will Be Lost"_s);
    EXPECT_EQ(dialogs.asked[0].text, u"Reset Default Search Site Data?"_s);
    EXPECT_EQ(dialogs.lastIcon, UserDialogs::Icon::Critical);
    dialogs.answer = UserDialogs::Answer::Yes;
    editor().cmdSDDefault.click();
    EXPECT_EQ(lastStatus(), u"Default Site Data Reset"_s);
    EXPECT_EQ(rows(u"SearchSites"_s, u"SiteName"_s).size(), DefaultSites::count);
    EXPECT_EQ(box(1).items(), QStringList{u"Seek"_s}); // the editor shows the old list until the next load
}

TEST_F(SiteEditorTest, ADoubleClickOnTheStatusBarBeginsARecordForThePageOnShow)
{
    choose();
    browser().pages[u"http://www.find.com/a/b?q=1"_s].title = u"Find it"_s;
    browser().show(u"http://www.find.com/a/b?q=1"_s);
    form().frame.picStatus.doubleClick();
    EXPECT_EQ(box(1).text(), u"Find it"_s);
    EXPECT_EQ(box(1).items(), QStringList{u"Seek"_s});
    EXPECT_EQ(box(3).listCount(), 0);
    EXPECT_TRUE(box(2).text().startsWith(u"http://www.find"_s)) << qPrintable(box(2).text());
}

TEST_F(SiteEditorTest, BeginningAnotherRecordLeavesTheOneOnShowAsItIs)
{
    choose();
    browser().pages[u"http://www.find.com/"_s].title = u"Find it"_s;
    browser().show(u"http://www.find.com/"_s);
    form().frame.picStatus.doubleClick();
    EXPECT_EQ(editor().cboSDGroup.text(), u"A"_s);
    EXPECT_EQ(stored(u"Group"_s), u"2"_s);
}

TEST_F(SiteEditorTest, AGroupThatIsChosenIsSeenInTheMenuAfterARestart)
{
    const auto inGroup = [this](int number) {
        QStringList names;
        for (const MenuItem *item : form().menus.mnuPopUpSearchSites.children(u"mnuSearchSites(%1)"_s.arg(number)))
            names.append(item->caption());
        return names.contains(u"Seek"_s);
    };
    choose();
    editor().cboSDGroup.setListIndex(4);
    EXPECT_FALSE(inGroup(4));
    program->lifeCycle.end();
    program.reset();
    load();
    EXPECT_TRUE(inGroup(4));
}

TEST_F(SiteEditorTest, APageOfNoKnownSiteBelongsToNoRecord)
{
    browser().show(u"http://www.elsewhere.com/"_s);
    EXPECT_EQ(program->records.GetSiteNameFromUrl({}), QString());
}

TEST_F(SiteEditorTest, WhatTheDatabaseRefusesIsNotTold)
{
    choose();
    database().CloseConnection();
    EXPECT_EQ(program->siteEditing.DeleteSearchSite(), QString());
    EXPECT_EQ(program->siteEditing.ModifySearchData(SiteField::EndUrl, SiteEditing::Change::Add), QString());
    EXPECT_EQ(box(1).items(), QStringList{u"Seek"_s});
}

TEST(SeparateSD, AValueWithAnEmptyTextLosesItsCountToo)
{
    EXPECT_EQ(SeparateSD(0, u"<~Dorv~>3"_s), QString());
    EXPECT_EQ(SeparateSD(1, u"<~Dorv~>3"_s), QString());
    EXPECT_EQ(SeparateSD(1, u"text"_s), u"text"_s);
    EXPECT_EQ(SeparateSD(2, u"text<~Dorv~>3"_s), QString());
}

TEST(JoinSD, TheWholeValueFitsIntoAColumn)
{
    EXPECT_EQ(JoinSD(u"text"_s, 12), u"text<~Dorv~>12"_s);
    const QString value = JoinSD(QString(300, u'a'), 1);
    EXPECT_EQ(value.size(), 255);
    EXPECT_EQ(SeparateSD(1, value), u"1"_s);
}

TEST_F(SiteEditorTest, TheFiguresFollowWhatIsTyped)
{
    showResults({u"http://www.seek.com/"_s, u"http://www.seek.com/?u=http://a.com/hit"_s, u"http://b.com/"_s});
    const auto shown = [this] {
        QStringList captions;
        for (int figure = 1; figure <= SiteCount::figures; ++figure)
            captions.append(editor().lblSDCount(figure).caption());
        return captions.join(u' ');
    };
    /// The figures, as soon as they are those that are waited for.
    const auto becomes = [&](const QString &wanted) {
        const QDeadlineTimer limit(5000);
        while (shown() != wanted && !limit.hasExpired())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        return shown();
    };
    box(1).setText(u"New"_s);
    EXPECT_EQ(becomes(u"3 3 3 3 3 3"_s), u"3 3 3 3 3 3"_s);
    box(5).setText(u"?u="_s);
    editor().incSDMCMNC(0).setText(u"1"_s);
    EXPECT_EQ(becomes(u"3 3 3 1 1 1"_s), u"3 3 3 1 1 1"_s);
    EXPECT_EQ(editor().lblSDCount(4).toolTipText(), u"http://www.seek.com/?u=http://a.com/hit"_s);
    box(7).setText(u"a.com"_s);
    EXPECT_EQ(becomes(u"3 1 1 1 1 1"_s), u"3 1 1 1 1 1"_s);
    EXPECT_EQ(stored(u"UrlMC-1"_s), QString());
}

TEST_F(SiteEditorTest, TheFiguresOfARecordUseTheLengthThatItKeeps)
{
    showResults({u"http://a.com/"_s, u"http://a-long-way-down.com/hit"_s, u"http://a-long-way-up.com/"_s});
    const auto becomes = [&](const QString &byLength, const QString &byTexts) {
        const auto shown = [this] {
            return std::pair(editor().lblSDCount(3).caption(), editor().lblSDCount(4).caption());
        };
        const QDeadlineTimer limit(5000);
        while (shown() != std::pair(byLength, byTexts) && !limit.hasExpired())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        return shown() == std::pair(byLength, byTexts);
    };
    choose(); // at least 25 characters; "hit" four times, which no link has
    EXPECT_TRUE(becomes(u"2"_s, u"2"_s));
    editor().cboSDLen.setListIndex(2);
    box(5).setText(u"down"_s);
    editor().incSDMCMNC(0).setText(u"1"_s);
    EXPECT_TRUE(becomes(u"2"_s, u"1"_s));
    box(1).setText(u"New"_s); // no record: below 25
    EXPECT_TRUE(becomes(u"1"_s, u"1"_s));
}

TEST_F(SiteEditorTest, AFigureShowsItsLinksInShortAndAllOfThemWhenPressed)
{
    QStringList links;
    for (int i = 0; i < 40; ++i)
        links.append(u"http://www.seek.com/%1/"_s.arg(i) + QString(100, u'x'));
    showResults(links);
    const QDeadlineTimer limit(5000);
    box(1).setText(u"New"_s);
    while (editor().lblSDCount(6).caption() != u"40"_s && !limit.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    const QStringList lines = editor().lblSDCount(6).toolTipText().split(u'\n');
    ASSERT_EQ(lines.size(), 13);
    EXPECT_EQ(lines[12], u"and 28 more: a click shows all"_s);
    EXPECT_TRUE(lines[0].size() == 60 && lines[0].startsWith(u"http://www.seek.com/0/x"_s));
    editor().lblSDCount(6).mouseDown(MouseButton::Left);
    EXPECT_EQ(program->dataSide.gridForm.lstMN.items(), links);
}
