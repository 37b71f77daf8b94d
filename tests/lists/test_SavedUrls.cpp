// Saved Urls and PassUrls: names, look-ups, and the commands of the combo box that shows them.
#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {
using Answer = SavedUrls::Answer;
using Kind = SavedUrls::Kind;

class SavedUrlsTest : public RunTest
{
  protected:
    SavedUrls &urls() { return program->savedUrls; }
    QString url(int number) const { return u"http://www.seek.com/%1"_s.arg(number); }
    void fill(Kind kind, int count)
    {
        for (int i = 0; i < count; ++i)
            addSaved((kind == Kind::PassUrl ? u"PassUrl-%1"_s : u"Results-%1"_s).arg(100 + i), url(i),
                     kind == Kind::PassUrl ? u"PassUrlsA"_s : u"RPgUrlsA"_s);
        form().saved.mbPassUrlsLoaded = kind == Kind::PassUrl;
        urls().LoadSavedUrls(kind);
        statuses.clear();
    }
};

struct LookUp
{
    const char *tag;
    Answer answer;
    int index;
    QString item, name, url, result;
};

void PrintTo(const LookUp &row, std::ostream *out)
{
    *out << row.tag;
}

class LookUps : public SavedUrlsTest, public testing::WithParamInterface<LookUp>
{
};
} // namespace

TEST_P(LookUps, FindOneElement)
{
    form().saved.mastrSavedUrlIds = {u"One\r\nhttp://a.com"_s, u"Two\r\nhttp://b.com"_s};
    const LookUp &row = GetParam();
    EXPECT_EQ(urls().GetSavedUrl(row.answer, row.index, row.item, row.name, row.url), row.result);
}

INSTANTIATE_TEST_SUITE_P(
    SavedUrls, LookUps,
    testing::Values(LookUp{"by index, name", Answer::Name, 1, {}, {}, {}, u"Two"_s},
                    LookUp{"by index, address", Answer::Url, 0, {}, {}, {}, u"http://a.com"_s},
                    LookUp{"by index beyond", Answer::Url, 2, {}, {}, {}, u""_s},
                    LookUp{"the index wins", Answer::Name, 0, u"Two\r\nhttp://b.com"_s, u"Two"_s, {}, u"One"_s},
                    LookUp{"by item, index", Answer::Index, -1, u"Two\r\nhttp://b.com"_s, {}, {}, u"1"_s},
                    LookUp{"by item, address", Answer::Url, -1, u"Two\r\nhttp://b.com"_s, {}, {}, u"http://b.com"_s},
                    LookUp{"the item wins over the name", Answer::Index, -1, u"nothing"_s, u"Two"_s, {}, u""_s},
                    LookUp{"by name, address", Answer::Url, -1, {}, u"One"_s, {}, u"http://a.com"_s},
                    LookUp{"by name, index", Answer::Index, -1, {}, u"One"_s, {}, u"0"_s},
                    LookUp{"case counts", Answer::Url, -1, {}, u"one"_s, {}, u""_s},
                    LookUp{"by address, name", Answer::Name, -1, {}, {}, u"http://b.com"_s, u"Two"_s},
                    LookUp{"nothing asked for", Answer::Name, -1, {}, {}, {}, u""_s}),
    [](const auto &row) { return "row" + std::to_string(row.index); });

TEST_F(SavedUrlsTest, LoadingKeepsTheTablesOrder)
{
    addSaved(u"b"_s, url(2));
    addSaved(u"a"_s, url(1));
    urls().LoadSavedUrls(Kind::SavedUrl);
    EXPECT_EQ(form().saved.cboANSavedUrls.items(), (QStringList{u"b"_s, u"a"_s}));
    EXPECT_EQ(form().saved.mastrSavedUrlIds, (QStringList{u"b\r\n"_s + url(2), u"a\r\n"_s + url(1)}));
}

TEST_F(SavedUrlsTest, AnEmptyTableIsOneEmptyElement)
{
    urls().LoadSavedUrls(Kind::PassUrl);
    EXPECT_EQ(form().saved.mastrSavedUrlIds, emptyList());
    EXPECT_EQ(form().saved.cboANSavedUrls.listCount(), 0);
}

TEST_F(SavedUrlsTest, RowsWithoutANameGetOneAndKeepIt)
{
    addSaved({}, url(1), u"PassUrlsA"_s);
    addSaved(u"passurl-101"_s, url(2), u"PassUrlsA"_s);
    addSaved({}, url(3), u"PassUrlsA"_s);
    addSaved({}, url(4), u"PassUrlsA"_s);
    urls().LoadSavedUrls(Kind::PassUrl);
    const QStringList names{u"PassUrl-100"_s, u"passurl-101"_s, u"PassUrl-102"_s, u"PassUrl-103"_s};
    EXPECT_EQ(form().saved.cboANSavedUrls.items(), names);
    EXPECT_EQ(rows(u"PassUrlsA"_s, u"MaskName"_s), names);
}

TEST_F(SavedUrlsTest, TheFirstNamesAreNumberOneHundred)
{
    EXPECT_EQ(urls().GetNewMaskName(Kind::SavedUrl), u"Results-100"_s);
    EXPECT_EQ(urls().GetNewMaskName(Kind::PassUrl), u"PassUrl-100"_s);
}

TEST_F(SavedUrlsTest, NamesClimbToTheFirstFreeOneOfTheirTable)
{
    addSaved(u"Results-100"_s, url(1));
    addSaved(u"Results-102"_s, url(2));
    EXPECT_EQ(urls().GetNewMaskName(Kind::SavedUrl), u"Results-101"_s);
    EXPECT_EQ(urls().GetNewMaskName(Kind::SavedUrl, u"RPgUrlsB"_s), u"Results-100"_s);
    addSaved(u"Results-101"_s, url(3));
    EXPECT_EQ(urls().GetNewMaskName(Kind::SavedUrl), u"Results-103"_s);
}

// Saving the page on show.

TEST_F(SavedUrlsTest, SavesThePageOnShowAndChoosesIt)
{
    browser().show(url(7));
    form().saved.cmdANSavedAdd.click();
    EXPECT_EQ(lastStatus(), u"Results-100 Saved (RPgUrlsA)"_s);
    EXPECT_EQ(form().saved.cboANSavedUrls.text(), u"Results-100"_s);
    EXPECT_EQ(form().saved.mastrSavedUrlIds, QStringList{u"Results-100\r\n"_s + url(7)});
    EXPECT_EQ(rows(u"RPgUrlsA"_s), QStringList{url(7)});
    EXPECT_TRUE(form().saved.cmdANSavedGo.isEnabled());
}

TEST_F(SavedUrlsTest, TheSamePageTwiceIsToldAndNotAdded)
{
    browser().show(url(7));
    urls().AddSavedUrl(true, {});
    urls().AddSavedUrl(true, {});
    EXPECT_EQ(lastStatus(), u"Url Exists (RPgUrlsA)"_s);
    statuses.clear();
    urls().AddSavedUrl(false, {});
    EXPECT_TRUE(statuses.isEmpty());
    EXPECT_EQ(rows(u"RPgUrlsA"_s).size(), 1);
}

TEST_F(SavedUrlsTest, IntoAnotherListTheBoxDoesNotChange)
{
    browser().show(url(7));
    urls().AddSavedUrl(true, u"C"_s);
    EXPECT_EQ(lastStatus(), u"Results-100 Saved (RPgUrlsC)"_s);
    EXPECT_EQ(rows(u"RPgUrlsC"_s), QStringList{url(7)});
    EXPECT_EQ(form().saved.cboANSavedUrls.listCount(), 0);
    EXPECT_EQ(form().saved.mastrSavedUrlIds, emptyList());
}

TEST_F(SavedUrlsTest, OnlyPagesOfAKnownSiteCanBeSaved)
{
    browser().show(u"http://www.other.com/"_s);
    urls().AddSavedUrl(true, {});
    EXPECT_EQ(lastStatus(), u"No data saved for site"_s);
    EXPECT_TRUE(rows(u"RPgUrlsA"_s).isEmpty());
}

TEST_F(SavedUrlsTest, NothingCanBeAddedToPassUrls)
{
    form().saved.mbPassUrlsLoaded = true;
    browser().show(url(7));
    urls().AddSavedUrl(true, {});
    EXPECT_EQ(lastStatus(), u"Can't Add PassUrls"_s);
}

// Removing.

TEST_F(SavedUrlsTest, RemovingChoosesTheNextOne)
{
    fill(Kind::SavedUrl, 3);
    form().saved.cboANSavedUrls.setListIndex(1);
    form().saved.cmdANSavedMinus.click();
    EXPECT_EQ(lastStatus(), u"2 Saved Links"_s);
    EXPECT_EQ(form().saved.cboANSavedUrls.text(), u"Results-102"_s);
    EXPECT_EQ(rows(u"RPgUrlsA"_s, u"MaskName"_s), (QStringList{u"Results-100"_s, u"Results-102"_s}));
    form().saved.cmdANSavedMinus.click();
    EXPECT_EQ(form().saved.cboANSavedUrls.text(), u"Results-100"_s); // the last one, as the place is past the end
    EXPECT_TRUE(browser().navigated.isEmpty());
}

TEST_F(SavedUrlsTest, RemovingTheLastSavedUrlClearsTheBoxThatUsesThem)
{
    fill(Kind::SavedUrl, 1);
    form().saved.cboANSavedUrls.setListIndex(0);
    form().mbFormReady = false;
    form().saved.chkUseSavedUrls.setValue(1);
    form().mbFormReady = true;
    urls().RemoveSavedUrl();
    EXPECT_EQ(form().saved.chkUseSavedUrls.value(), 0);
    EXPECT_EQ(lastStatus(), u"0 Saved Links"_s);
    EXPECT_EQ(form().saved.mastrSavedUrlIds, emptyList());
}

TEST_F(SavedUrlsTest, RemovingAPassUrlOpensTheNextOneAndMovesOn)
{
    fill(Kind::PassUrl, 3);
    form().saved.cboANSavedUrls.setListIndex(0);
    urls().RemoveSavedUrl();
    EXPECT_EQ(browser().navigated, QStringList{url(1)});
    EXPECT_EQ(form().saved.cboANSavedUrls.text(), u"PassUrl-102"_s);
    EXPECT_EQ(statuses, QStringList{u"2 Pass Urls"_s});
    form().options.chkSMA(4).setValue(0);
    urls().RemoveSavedUrl();
    EXPECT_EQ(browser().navigated.size(), 1);
}

TEST_F(SavedUrlsTest, RemovingTheLastPassUrlBringsBackTheSavedUrls)
{
    addSaved(u"Results-100"_s, url(9));
    fill(Kind::PassUrl, 1);
    form().saved.cboANSavedUrls.setListIndex(0);
    urls().RemoveSavedUrl();
    EXPECT_FALSE(form().saved.mbPassUrlsLoaded);
    EXPECT_EQ(form().saved.cboANSavedUrls.items(), QStringList{u"Results-100"_s});
    EXPECT_EQ(form().saved.cboANSavedUrls.toolTipText(), u"Saved Urls"_s);
    EXPECT_EQ(lastStatus(), u"0 Pass Urls"_s);
}

TEST_F(SavedUrlsTest, WithNothingChosenNothingIsRemoved)
{
    fill(Kind::SavedUrl, 2);
    urls().RemoveSavedUrl();
    EXPECT_TRUE(statuses.isEmpty());
    EXPECT_EQ(rows(u"RPgUrlsA"_s).size(), 2);
}

// Opening.

TEST_F(SavedUrlsTest, OpensTheChosenAddressAndMovesOnWhereTheOptionSaysSo)
{
    fill(Kind::SavedUrl, 2);
    form().saved.cboANSavedUrls.setListIndex(0);
    form().saved.cmdANSavedGo.click();
    EXPECT_EQ(form().saved.cboANSavedUrls.listIndex(), 0);
    form().options.chkSMA(6).setValue(1);
    form().saved.cmdANSavedGo.click();
    EXPECT_EQ(form().saved.cboANSavedUrls.listIndex(), 1);
    form().saved.cmdANSavedGo.click();
    EXPECT_EQ(form().saved.cboANSavedUrls.listIndex(), 1); // the last one
    EXPECT_EQ(browser().navigated, (QStringList{url(0), url(0), url(1)}));
}

TEST_F(SavedUrlsTest, PassUrlsMoveOnByTheirOwnOption)
{
    fill(Kind::PassUrl, 2);
    form().saved.cboANSavedUrls.setListIndex(0);
    urls().cmdANSavedGo_Click();
    EXPECT_EQ(form().saved.cboANSavedUrls.listIndex(), 1);
    form().options.chkSMA(5).setValue(0);
    form().saved.cboANSavedUrls.setListIndex(0);
    urls().cmdANSavedGo_Click();
    EXPECT_EQ(form().saved.cboANSavedUrls.listIndex(), 0);
}

// Positions.

TEST_F(SavedUrlsTest, EachListRemembersItsPosition)
{
    addSaved(u"Results-100"_s, url(5), u"RPgUrlsB"_s);
    fill(Kind::SavedUrl, 3);
    form().saved.cboANSavedUrls.setListIndex(2);
    form().saved.cboANList.dropDown();
    EXPECT_EQ(settings.of("ANListIndexA"), u"2"_s);
    form().saved.cboANList.setListIndex(1);
    EXPECT_EQ(lastStatus(), u"1 loaded"_s);
    EXPECT_EQ(form().saved.cboANSavedUrls.listIndex(), 0);
    EXPECT_EQ(settings.of("cboANList"), u"1"_s);
    form().saved.cboANList.setListIndex(0);
    EXPECT_EQ(form().saved.cboANSavedUrls.listIndex(), 2);
}

TEST_F(SavedUrlsTest, APositionBeyondTheListLeavesTheSelectionAlone)
{
    settings.preset("ANListIndexA", u"3"_s);
    fill(Kind::SavedUrl, 3);
    urls().SetSavedUrlPos();
    EXPECT_EQ(form().saved.cboANSavedUrls.listIndex(), -1);
    settings.preset("ANListIndexA", u"2"_s);
    urls().SetSavedUrlPos();
    EXPECT_EQ(form().saved.cboANSavedUrls.listIndex(), 2);
}

TEST_F(SavedUrlsTest, AChangeOfTheListKeepsTheFlagOfPassUrls)
{
    fill(Kind::PassUrl, 1);
    form().saved.cboANList.setListIndex(1);
    EXPECT_TRUE(form().saved.mbPassUrlsLoaded);
    EXPECT_EQ(form().saved.cboANSavedUrls.listCount(), 0);
}

TEST_F(SavedUrlsTest, WhatTheTableRefusesIsNeitherShownNorTold)
{
    fill(Kind::SavedUrl, 2);
    form().saved.cboANSavedUrls.setListIndex(0);
    statuses.clear();
    database().CloseConnection();
    urls().RemoveSavedUrl();
    EXPECT_EQ(form().saved.cboANSavedUrls.listCount(), 2);
    EXPECT_TRUE(statuses.isEmpty());
}

TEST_F(SavedUrlsTest, ALongAddressIsFoundAgain)
{
    const QString address = u"http://www.seek.com/?q="_s + QString(300, u'a');
    showResults({}, address);
    urls().AddSavedUrl(true, {});
    urls().AddSavedUrl(true, {});
    EXPECT_EQ(rows(u"RPgUrlsA"_s).size(), 1);
    EXPECT_EQ(lastStatus(), u"Url Exists (RPgUrlsA)"_s);
    EXPECT_EQ(form().saved.cboANSavedUrls.listCount(), 1);
}

TEST_F(SavedUrlsTest, OpeningAnAddressTurnsTheCollectingOfPagesOff)
{
    fill(Kind::SavedUrl, 1);
    program->collectChoice.SetAutoCollectPgUrlsAN(2);
    form().saved.cmdANSavedGo.click();
    EXPECT_EQ(program->collectChoice.GetAutoCollectPgUrlsCheckedAN(), 2); // nothing was chosen
    form().saved.cboANSavedUrls.setListIndex(0);
    form().saved.cmdANSavedGo.click();
    EXPECT_EQ(program->collectChoice.GetAutoCollectPgUrlsCheckedAN(), -1);
    EXPECT_FALSE(form().menus.mnuPopUpANStatus.item("mnuANStatusACList"_L1, 2).isEnabled());
}
