// Filters of loaded links: adding, removing, finding again, and the two boxes that show one.
#include "lists/UrlFilters.h"
#include "support/ManualFixture.h"

using namespace Qt::StringLiterals;

namespace {
using Of = UrlFilters::Field;

class UrlFiltersTest : public ManualTest
{
  protected:
    UrlFiltersTest()
    {
        QObject::connect(&kind, &ComboBox::Click, &form, [this] { filters.cboMNMCMNC_Click(); });
        QObject::connect(&box, &ComboBox::Click, &form, [this] { filters.cboMNMCMNCFilter_Click(); });
        QObject::connect(&box, &ComboBox::Change, &form, [this] { filters.cboMNMCMNCFilter_Change(); });
    }
    void add(const QString &text, int index, const QString &server)
    {
        addRow(*database, u"MNUrlFilters"_s,
               {{u"FilterOne"_s, text}, {u"MCMNCIndex"_s, QString::number(index)}, {u"ServerOne"_s, server}});
    }
    void showItem(const QString &item)
    {
        list().setItems({item});
        choose(0, {0});
    }

    ComboBox &kind = form.urlFilter.cboMNMCMNC;
    ComboBox &box = form.urlFilter.cboMNMCMNCFilter;
    UrlFilters filters{context, form.urlFilter, form.lists, database};
};
} // namespace

TEST_F(UrlFiltersTest, BothTextsOfEachRowAreLoadedUnlessEmpty)
{
    add(u"tea"_s, 1, {});
    addRow(*database, u"MNUrlFilters"_s, {{u"FilterTwo"_s, u"second"_s}});
    addRow(*database, u"MNUrlFilters"_s, {{u"FilterOne"_s, u"x"_s}, {u"FilterTwo"_s, u"y"_s}});
    filters.LoadMNUrlFilters();
    EXPECT_EQ(box.items(), (QStringList{u"tea"_s, u"second"_s, u"x"_s, u"y"_s}));
}

TEST_F(UrlFiltersTest, AddingKeepsTextKindAndServerOfTheItem)
{
    showItem(u"http://www.shop.com/tea/1"_s);
    box.setText(u"  tea "_s);
    kind.setListIndex(2);
    filters.AddMNUrlFilter();
    EXPECT_EQ(lastStatus(), u"Filter added"_s);
    EXPECT_EQ(rows(u"MNUrlFilters"_s, u"FilterOne"_s), QStringList{u"tea"_s});
    EXPECT_EQ(rows(u"MNUrlFilters"_s, u"MCMNCIndex"_s), QStringList{u"2"_s});
    EXPECT_EQ(rows(u"MNUrlFilters"_s, u"ServerOne"_s), QStringList{u"http://www.shop"_s});
    EXPECT_EQ(box.items(), QStringList{u"tea"_s});
}

TEST_F(UrlFiltersTest, AddingWithTheEmptyEntryReportsItAndWritesNothing)
{
    box.setText(u"tea"_s);
    kind.setListIndex(0);
    filters.AddMNUrlFilter();
    EXPECT_EQ(lastStatus(), u"MC MNC not selected"_s);
    EXPECT_TRUE(rows(u"MNUrlFilters"_s, u"FilterOne"_s).isEmpty());
}

TEST_F(UrlFiltersTest, ReasonsAgainstAddingAreToldInTheirOrder)
{
    filters.AddMNUrlFilter();
    EXPECT_EQ(lastStatus(), u"No new filter text"_s);
    add(u"tea"_s, 1, {});
    box.setText(u"TEA"_s);
    kind.setListIndex(0);
    filters.AddMNUrlFilter();
    EXPECT_EQ(lastStatus(), u"Filter exists"_s);
}

TEST_F(UrlFiltersTest, AQuoteInTheTextEndsInTheLogAndAddsNothing)
{
    box.setText(u"o'tea"_s);
    kind.setListIndex(1);
    statuses.clear();
    log.entries.clear();
    filters.AddMNUrlFilter();
    EXPECT_TRUE(statuses.isEmpty());
    EXPECT_TRUE(log.locations().contains(u"Sub AddMNUrlFilter"_s));
    EXPECT_TRUE(rows(u"MNUrlFilters"_s, u"FilterOne"_s).isEmpty());
}

TEST_F(UrlFiltersTest, AFilterAddedWithNothingSelectedHasNoServerAndIsNotLocated)
{
    list().setItems({u"http://www.shop.com/tea"_s});
    choose(-1, {});
    box.setText(u"tea"_s);
    kind.setListIndex(1);
    filters.AddMNUrlFilter();
    EXPECT_EQ(rows(u"MNUrlFilters"_s, u"ServerOne"_s), QStringList{QString()});
    box.setText({});
    choose(0, {0});
    filters.mnuMNLocateFilter_Click();
    EXPECT_EQ(box.text(), QString());
    EXPECT_EQ(kind.listIndex(), 0);
}

TEST_F(UrlFiltersTest, LocatingTakesTheFirstOfTwoFiltersOfTheServer)
{
    add(u"other"_s, 1, u"http://www.other"_s);
    add(u"tea"_s, 2, u"http://www.shop"_s);
    add(u"coffee"_s, 1, u"http://www.shop"_s);
    filters.LoadMNUrlFilters();
    showItem(u"http://www.shop.com/x"_s);
    filters.mnuMNLocateFilter_Click();
    EXPECT_EQ(box.text(), u"tea"_s);
    EXPECT_EQ(kind.listIndex(), 2);
    EXPECT_EQ(box.foreColor(), Colours::Blue);
    showItem(u"http://www.new.com/x"_s);
    filters.mnuMNLocateFilter_Click();
    EXPECT_EQ(kind.listIndex(), 0) << "no filter for that server";
    showItem(u"no link"_s);
    statuses.clear();
    filters.mnuMNLocateFilter_Click();
    EXPECT_TRUE(statuses.isEmpty());
}

TEST_F(UrlFiltersTest, RemovingNeedsAnEntryOfThatVeryCase)
{
    add(u"tea"_s, 1, {});
    filters.LoadMNUrlFilters();
    filters.RemoveMNUrlFilter();
    EXPECT_EQ(lastStatus(), u"No filter selected"_s);
    box.setText(u"Tea"_s);
    filters.RemoveMNUrlFilter();
    EXPECT_EQ(lastStatus(), u"Filter not found"_s);
    box.setText(u"tea"_s);
    filters.RemoveMNUrlFilter();
    EXPECT_EQ(lastStatus(), u"Filter removed"_s);
    EXPECT_EQ(box.listCount(), 0);
    EXPECT_TRUE(rows(u"MNUrlFilters"_s, u"FilterOne"_s).isEmpty());
}

TEST_F(UrlFiltersTest, TypingATextThatIsNoEntryGoesBackToTheEmptyEntry)
{
    add(u"tea"_s, 2, {});
    filters.LoadMNUrlFilters();
    box.setListIndex(0);
    EXPECT_EQ(kind.listIndex(), 2) << "a known filter brings its kind along";
    EXPECT_EQ(settings.of("cboMNMCMNCFilter"), u"tea"_s);
    box.setText(u" coffee"_s);
    EXPECT_EQ(kind.listIndex(), 0);
    EXPECT_EQ(settings.of("cboMNMCMNCFilter"), u"coffee"_s);
    EXPECT_EQ(box.backColor(), Colours::Window);
    EXPECT_EQ(box.foreColor(), Colours::WindowText);
    kind.setListIndex(1);
    EXPECT_EQ(box.backColor(), Colours::White);
    EXPECT_EQ(kind.foreColor(), Colours::Blue);
    filters.cboMNMCMNCFilter_DblClick();
    EXPECT_EQ(box.listIndex(), -1);
}

TEST_F(UrlFiltersTest, DataOfNoRowIsEmptyAndOfTheKindZero)
{
    add(u"tea"_s, 2, u"http://www.shop"_s);
    EXPECT_EQ(filters.GetMNUrlFilterData(Of::ServerOne, Of::FilterOne, u"TEA"_s), u"http://www.shop"_s);
    EXPECT_EQ(filters.GetMNUrlFilterData(Of::MCMNCIndex, Of::ServerOne, u"http://www.shop"_s), u"2"_s);
    EXPECT_EQ(filters.GetMNUrlFilterData(Of::FilterOne, Of::ServerOne, u"none"_s), QString());
    EXPECT_EQ(filters.GetMNUrlFilterData(Of::MCMNCIndex, Of::FilterOne, u"none"_s), u"0"_s);
    EXPECT_EQ(filters.GetMNUrlFilterData(Of::MCMNCIndex, Of::FilterOne, u"o'x"_s), u"0"_s);
}
