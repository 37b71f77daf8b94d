// Series: positions, what is remembered of them, and how they exclude a base.
#include "lists/AutoIncr.h"
#include "support/ManualFixture.h"

using namespace Qt::StringLiterals;

namespace {
const QString table = u"AutoTextA"_s;

class AutoIncrTest : public ManualTest
{
  protected:
    AutoIncrTest()
    {
        QObject::connect(&form.series.incMNAutoUrl, &NumberBox::ValueChanged, &series,
                         &AutoIncr::incMNAutoUrl_ValueChanged);
        QObject::connect(&series, &AutoIncr::baseSwitchedOff, &form, [this] { ++basesOff; });
    }
    void show(const QString &url) { box.setText(url); }
    void remember(const QString &url, const QString &start, const QString &position, const QString &step,
                  const QString &into = table)
    {
        addRow(*database, into,
               {{u"Url"_s, url}, {u"StartNumber"_s, start}, {u"IncrNum"_s, position}, {u"IncrStep"_s, step}});
    }
    [[nodiscard]] std::vector<bool> enabled() const
    {
        std::vector<bool> flags;
        for (int i = 1; i <= 9; ++i)
            flags.push_back(form.menus.mnuPopUpMNStatus.item("mnuMNStatusAutoIncrPos"_L1, i).isEnabled());
        return flags;
    }
    [[nodiscard]] MenuItem &item(QLatin1StringView name) const { return form.menus.mnuPopUpMNStatus.item(name); }

    ComboBox &box = form.series.cboMNAutoUrl;
    NumberBox &number = form.series.incMNAutoUrl;
    AutoText texts{context, form.series, desk, database};
    AutoIncr series{context, form, desk, texts};
    int basesOff = 0;
};
} // namespace

TEST_F(AutoIncrTest, AsManyPositionsAreOfferedAsTheAddressHasNumbers)
{
    show(u"www.a.com/1/pic22.jpg"_s);
    EXPECT_EQ(series.SetupAutoIncrMenu(), 0);
    EXPECT_EQ(enabled(), (std::vector<bool>{true, true, false, false, false, false, false, false, false}));
    EXPECT_EQ(settings.of("mnuMNStatusAutoIncrPos"), u"0"_s);
    show(u"not a link 5"_s);
    setSeries(1);
    EXPECT_EQ(series.SetupAutoIncrMenu(), 0) << "no link: no series";
    EXPECT_EQ(desk.GetAutoIncrChecked(), 0);
}

TEST_F(AutoIncrTest, AnAddressWithTenNumbersEndsInTheLogBehindTheNinth)
{
    show(u"www.a.com/1/2/3/4/5/6/7/8/9/10"_s);
    setSeries(3);
    EXPECT_EQ(series.SetupAutoIncrMenu(), 3);
    EXPECT_EQ(enabled(), std::vector<bool>(9, true));
    ASSERT_EQ(log.entries.size(), 1);
    EXPECT_EQ(log.entries[0].number, 340);
    EXPECT_EQ(log.entries[0].location, u"Function SetupAutoIncrMenu"_s);
}

TEST_F(AutoIncrTest, ChoosingAPositionTakesItsNumberAndChoosingItAgainGivesItUp)
{
    show(u"www.a.com/7/pic022.jpg"_s);
    series.SetAutoIncrPos(2);
    EXPECT_EQ(lastStatus(), u"(AutoIncr ON)"_s);
    EXPECT_EQ(number.text(), u"0000000022"_s);
    EXPECT_EQ(box.text(), u"www.a.com/7/pic022.jpg"_s);
    EXPECT_EQ(form.collect.lblAutoIncrPos.caption(), u"2"_s);
    EXPECT_EQ(settings.of("mnuMNStatusAutoIncrPos"), u"2"_s);
    series.SetAutoIncrPos(1);
    EXPECT_EQ(desk.GetAutoIncrChecked(), 1) << "one position at a time";
    series.SetAutoIncrPos(1);
    EXPECT_EQ(lastStatus(), u"(AutoIncr OFF)"_s);
    EXPECT_FALSE(form.manual.cmdMNStart.isEnabled()) << "nothing to walk";
}

TEST_F(AutoIncrTest, ASeriesAndABaseExcludeEachOther)
{
    show(u"www.a.com/7"_s);
    series.mnuMNUseAutoBase_Click();
    EXPECT_TRUE(desk.usesBase());
    EXPECT_EQ(lastStatus(), u"(UseBase ON)"_s);
    EXPECT_EQ(settings.of("mnuMNUseAutoBase"), u"1"_s);
    series.SetAutoIncrPos(1);
    EXPECT_FALSE(desk.usesBase());
    EXPECT_EQ(basesOff, 1);
    EXPECT_EQ(settings.of("mnuMNUseAutoBase"), u"0"_s);
    series.mnuMNUseAutoBase_Click();
    EXPECT_FALSE(desk.usesBase()) << "refused";
    EXPECT_EQ(lastStatus(), u"(AutoIncr ON)"_s);
    EXPECT_EQ(settings.of("mnuMNUseAutoBase"), QString());
    EXPECT_EQ(basesOff, 1);
}

TEST_F(AutoIncrTest, TheNumberBoxChangesTheAddressAndShorterNumbersAreFilledUp)
{
    show(u"www.a.com/7/pic009.jpg"_s);
    series.SetAutoIncrPos(2);
    number.setText(u"10"_s);
    EXPECT_EQ(box.text(), u"www.a.com/7/pic010.jpg"_s);
    number.setText(u"12345"_s);
    EXPECT_EQ(box.text(), u"www.a.com/7/pic12345.jpg"_s) << "a longer one replaces it as it stands";
    series.SetAutoIncrPos(2);
    number.setText(u"5"_s);
    EXPECT_EQ(box.text(), u"www.a.com/7/pic12345.jpg"_s) << "no series";
    form.mbFormReady = false;
    series.SetAutoIncrPos(2);
    number.setText(u"6"_s);
    EXPECT_EQ(box.text(), u"www.a.com/7/pic12345.jpg"_s) << "silent at the start";
}

TEST_F(AutoIncrTest, ARememberedSeriesComesBack)
{
    remember(u"www.a.com/7/9"_s, u"12"_s, u"2"_s, u"5"_s);
    show(u"www.a.com/7/9"_s);
    series.ManageAutoText();
    EXPECT_EQ(desk.GetAutoIncrChecked(), 2);
    EXPECT_EQ(form.series.incMNStep.text(), u"005"_s);
    EXPECT_EQ(number.text(), u"0000000012"_s);
    show(u"www.b.com/7"_s);
    series.ManageAutoText();
    EXPECT_EQ(desk.GetAutoIncrChecked(), 0) << "one without a row gives the position up";
}

TEST_F(AutoIncrTest, IsRememberedInTheFormThatItIsStoredIn)
{
    setSeries(2);
    show(u"http://www.a.com/7/9"_s);
    EXPECT_FALSE(series.isRemembered());
    texts.AddAutoTextUrl({}, 2);
    EXPECT_TRUE(series.isRemembered());
    show(u"www.a.com/7/9"_s);
    EXPECT_TRUE(series.isRemembered());
    setSeries(1);
    EXPECT_FALSE(series.isRemembered()) << "with another number that changes";
    show(u"www.a.com/7/10"_s);
    EXPECT_FALSE(series.isRemembered());
    show(u"http://"_s);
    EXPECT_FALSE(series.isRemembered());
}

TEST_F(AutoIncrTest, AnAddressThatNoStatementCanHoldIsNotRememberedAndNoError)
{
    show(u"www.a.com/o'hara/7"_s);
    setSeries(1);
    EXPECT_FALSE(series.isRemembered());
    remember(u"www.a.com/o'hara/7"_s, {}, u"1"_s, {});
    EXPECT_FALSE(series.isRemembered());
    EXPECT_TRUE(log.entries.isEmpty());
}

TEST_F(AutoIncrTest, AStepOfZeroOrNoneBehavesAsOne)
{
    for (const QString &step : {u"0"_s, u"000"_s, QString()}) {
        remember(u"www.a.com/"_s + step + u"/9"_s, u""_s, u"1"_s, step);
        show(u"www.a.com/"_s + step + u"/9"_s);
        EXPECT_EQ(texts.GetAutoTextData(), (SeriesRules::Row{0, 1, 1}));
    }
    show({});
    EXPECT_EQ(texts.GetAutoTextData().position, 0);
}

TEST_F(AutoIncrTest, TheSameAddressInTwoListsHasTwoRows)
{
    remember(u"www.a.com/7"_s, u"1"_s, u"1"_s, u"1"_s, u"AutoTextA"_s);
    remember(u"www.a.com/7"_s, u"2"_s, u"4"_s, u"9"_s, u"AutoTextC"_s);
    show(u"www.a.com/7"_s);
    EXPECT_EQ(texts.GetAutoIncrNumber({}, {}), 1);
    form.lists.cboMNList.setListIndex(2);
    EXPECT_EQ(texts.GetAutoIncrNumber({}, {}), 4);
    EXPECT_EQ(texts.GetAutoIncrNumber(u"AutoTextA"_s, {}), 1);
    EXPECT_EQ(texts.GetAutoIncrNumber(u"AutoTextB"_s, u"www.a.com/7"_s), 0);
}

TEST_F(AutoIncrTest, TheBoxOffersTheRowsOfTheListAndKeepsItsText)
{
    remember(u"www.b.com/1"_s, {}, {}, {});
    remember(u"www.a.com/1"_s, {}, {}, {});
    show(u"www.c.com"_s);
    texts.LoadAutoTextUrls();
    EXPECT_EQ(box.items(), (QStringList{u"www.b.com/1"_s, u"www.a.com/1"_s}));
    EXPECT_EQ(box.text(), u"www.c.com"_s);
}

TEST_F(AutoIncrTest, AddingKeepsTheNumbersAsTheBoxesShowThem)
{
    show(u"HTTP://www.a.com/7"_s);
    texts.AddAutoTextUrl({}, 0);
    EXPECT_EQ(lastStatus(), u"(AutoIncr # Unknown)"_s);
    form.series.incMNStep.setText(u"003"_s);
    number.setText(u"7"_s);
    texts.AddAutoTextUrl({}, 1);
    EXPECT_EQ(lastStatus(), u"AutoTextA, Url Added"_s);
    EXPECT_EQ(rows(table), QStringList{u"www.a.com/7"_s});
    EXPECT_EQ(rows(table, u"StartNumber"_s), QStringList{number.text()});
    EXPECT_EQ(rows(table, u"IncrNum"_s), QStringList{u"1"_s});
    EXPECT_EQ(rows(table, u"IncrStep"_s), QStringList{u"003"_s});
    EXPECT_EQ(box.items(), QStringList{u"www.a.com/7"_s});
    texts.AddAutoTextUrl(u"www.a.com/7"_s, 1);
    EXPECT_EQ(lastStatus(), u"Url exists"_s);
}

TEST_F(AutoIncrTest, AnAddressThatNoStatementCanHoldIsToldAsNotAdded)
{
    show(u"www.a.com/o'hara/7"_s);
    setSeries(1);
    series.MaintainAutoIncr();
    EXPECT_EQ(lastStatus(), u"Not added. Url holds a quote"_s);
    EXPECT_TRUE(rows(table).isEmpty());
    EXPECT_TRUE(log.entries.isEmpty());
}

TEST_F(AutoIncrTest, RemovingEmptiesTheBoxWhetherItWasOfferedOrNot)
{
    texts.RemoveAutoTextUrl({});
    EXPECT_EQ(lastStatus(), u"Auto Text Is Empty"_s);
    remember(u"www.a.com/7"_s, {}, {}, {});
    texts.LoadAutoTextUrls();
    show(u"WWW.a.com/7"_s);
    texts.RemoveAutoTextUrl({});
    EXPECT_EQ(lastStatus(), u"Auto Text Url Deleted"_s);
    EXPECT_TRUE(rows(table).isEmpty());
    EXPECT_EQ(box.listCount(), 0);
    EXPECT_EQ(box.text(), QString());
    EXPECT_EQ(settings.of("txtMNGenerateUrlA"), QString());
    show(u"www.b.com"_s);
    texts.RemoveAutoTextUrl({});
    EXPECT_EQ(lastStatus(), u"Auto Text Cleared"_s);
}

TEST_F(AutoIncrTest, AnAddressWithAQuoteIsClearedUnlessTheTableHasIt)
{
    show(u"www.a.com/o'hara/7"_s);
    texts.RemoveAutoTextUrl({});
    EXPECT_EQ(lastStatus(), u"Auto Text Cleared"_s);
    EXPECT_EQ(box.text(), QString());
    remember(u"www.a.com/o'hara/7"_s, {}, {}, {});
    texts.LoadAutoTextUrls();
    show(u"www.a.com/o'hara/7"_s);
    texts.RemoveAutoTextUrl({});
    EXPECT_EQ(lastStatus(), u"Not deleted. Url holds a quote"_s);
    EXPECT_EQ(box.items(), rows(table)) << "what is on offer is what the table holds";
    EXPECT_TRUE(log.entries.isEmpty());
}

TEST_F(AutoIncrTest, TheAddressThatWasReachedReplacesOlderFormsOfItsSeries)
{
    remember(u"www.a.com/g/1"_s, {}, u"1"_s, {});
    remember(u"www.a.com/g/5"_s, {}, u"1"_s, {});
    remember(u"www.a.com/h/5"_s, {}, u"1"_s, {});
    texts.LoadAutoTextUrls();
    show(u"www.a.com/g/42"_s);
    setSeries(1);
    series.MaintainAutoIncr();
    EXPECT_EQ(rows(table), (QStringList{u"www.a.com/h/5"_s, u"www.a.com/g/42"_s}));
    EXPECT_EQ(box.items(), (QStringList{u"www.a.com/h/5"_s, u"www.a.com/g/42"_s}));
    setSeries(0);
    show(u"www.a.com/h/9"_s);
    series.MaintainAutoIncr();
    EXPECT_EQ(rows(table).size(), 2) << "no series, nothing to keep";
}

TEST_F(AutoIncrTest, ReasonsAgainstAStartAreTold)
{
    struct Case
    {
        QString url;
        int position;
        bool base;
        QString status;
    };
    const Case cases[] = {
        {u"words"_s, 1, false, u"InValid Url"_s},       {u"www.a.com/x"_s, 1, false, u"No number in Url"_s},
        {u"www.a.com/x"_s, 0, true, u"(UseBase ON)"_s}, {u"www.a.com/7"_s, 0, false, u"(AutoIncr # Unknown)"_s},
        {u"www.a.com/7"_s, 0, true, u"(UseBase ON)"_s}, {u"www.a.com/123456789012"_s, 1, false, u"Number too large"_s},
    };
    for (const Case &row : cases) {
        setSeries(row.position);
        useBase(row.base);
        statuses.clear();
        series.mnuMNSetFirstAndLastFromUrl_Click(row.url);
        EXPECT_EQ(lastStatus(), row.status) << row.url.toStdString();
    }
    useBase(false);
    show(u"www.a.com/1/2"_s);
    setSeries(2);
    series.mnuMNSetFirstAndLastFromUrl_Click(u"www.a.com/7"_s);
    EXPECT_EQ(lastStatus(), u"(AutoIncr # Unknown)"_s) << "fewer numbers than the position says";
    setSeries(1);
    series.mnuMNSetFirstAndLastFromUrl_Click(u"www.a.com/0042"_s);
    EXPECT_EQ(number.text(), u"0000000042"_s);
}

TEST_F(AutoIncrTest, AutoNavigateIsForASeriesOfSitesWithAnEmptyList)
{
    MenuItem &navigate = item("mnuMNStatusAutoNavigate"_L1);
    form.manual.cboFilesSites.setListIndex(1);
    navigate.setChecked(true);
    EXPECT_FALSE(series.CheckMNAutoNav()) << "no series";
    EXPECT_FALSE(navigate.isChecked());
    EXPECT_FALSE(navigate.isEnabled());
    show(u"www.a.com/7"_s);
    setSeries(1);
    EXPECT_TRUE(series.CheckMNAutoNav());
    EXPECT_TRUE(navigate.isEnabled());
    navigate.setChecked(true);
    list().setItems({u"x"_s});
    EXPECT_FALSE(series.CheckMNAutoNav());
    EXPECT_TRUE(navigate.isChecked()) << "with items nothing changes";
    list().clear();
    item("mnuMNStatusListCL(2)"_L1).setChecked(true);
    EXPECT_FALSE(series.CheckMNAutoNav()) << "while something is collected";
    EXPECT_FALSE(navigate.isChecked());
    item("mnuMNStatusListCL(2)"_L1).setChecked(false);
    form.manual.cboFilesSites.setListIndex(0);
    EXPECT_FALSE(series.CheckMNAutoNav()) << "for files";
}
