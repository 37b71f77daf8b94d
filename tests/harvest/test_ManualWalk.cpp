// What a Manual run takes one after the other: where it begins and ends, what the boxes show, where it resumes.
#include "harvest/ManualWalk.h"

#include "support/FormWithDatabase.h"

#include <random>

using namespace Qt::StringLiterals;

namespace {
class ManualWalkTest : public FormDatabaseTest
{
  protected:
    ManualWalkTest() { form.series.incMNStep.setText(u"001"_s); }
    [[nodiscard]] ListBox &list() { return form.lists.shown(); }
    /// Everything that a walk begun now takes.
    QStringList all(bool behindStop = false)
    {
        walk.begin(behindStop);
        QStringList taken;
        for (qint64 item = walk.first(); item <= walk.last(); ++item)
            taken.append(walk.take(item));
        return taken;
    }
    void setSeries(const QString &address, int position)
    {
        form.series.cboMNAutoUrl.setText(address);
        series.SetAutoIncrPos(position);
    }

    ManualDesk desk{form, status};
    ManualTables tables{log, database, work};
    AutoText texts{context, form.series, desk, database};
    AutoIncr series{context, form, desk, texts};
    ManualWalk walk{form.manual, form.series, form.options, form.collect, desk, series, tables};
};
} // namespace

TEST_F(ManualWalkTest, OfAListIsItsItemsFromTheChosenOneOn)
{
    std::mt19937 random(11);
    for (int round = 0; round < 300; ++round) {
        QStringList items;
        for (unsigned i = 1 + random() % 6; i > 0; --i)
            items.append(u"http://www.site%1.com/"_s.arg(i));
        list().setItems(items);
        const int chosen = static_cast<int>(random() % (items.size() + 1)) - 1;
        list().setListIndex(chosen);
        const bool behindStop = random() % 2 == 0;
        qsizetype first = std::max(chosen, 0);
        if (behindStop && first + 1 < items.size())
            ++first; // the last item is taken once more
        ASSERT_EQ(all(behindStop), items.mid(first)) << "round " << round;
        EXPECT_FALSE(walk.isSeries());
    }
}

TEST_F(ManualWalkTest, TheItemInTurnIsTheOneThatIsSelected)
{
    list().setItems({u"http://a.com/"_s, u"http://b.com/"_s, u"http://c.com/"_s});
    list().choose(0, {true, true, true});
    walk.begin(false);
    EXPECT_EQ(walk.take(1), u"http://b.com/"_s);
    EXPECT_EQ(list().listIndex(), 1);
    EXPECT_EQ(list().selection(), (std::vector<bool>{false, true, false}));
}

TEST_F(ManualWalkTest, AnEmptyListHasOneTurnWithNothingInIt)
{
    EXPECT_EQ(all(), QStringList{QString()});
    EXPECT_EQ(walk.first(), -1);
}

TEST_F(ManualWalkTest, TheListIsTheOneThatWasOnShowAtTheBeginning)
{
    list().setItems({u"http://a.com/"_s});
    walk.begin(false);
    form.lists.cboMNList.setListIndex(2);
    EXPECT_EQ(&walk.list(), &form.lists.lstMN(0));
}

TEST_F(ManualWalkTest, ASeriesIsAsLongAsItsDigitsCanCount)
{
    struct Row
    {
        QString address;
        int position;
        int length;
        QString last;
    };
    const Row rows[] = {
        {u"www.pics.com/p1.jpg"_s, 1, 9, u"www.pics.com/p9.jpg"_s},
        {u"www.pics.com/p01.jpg"_s, 1, 99, u"www.pics.com/p99.jpg"_s},
        {u"www.pics.com/a3/p5.jpg"_s, 2, 9, u"www.pics.com/a3/p13.jpg"_s},
        {u"www.pics.com/a3/p5.jpg"_s, 1, 9, u"www.pics.com/a11/p5.jpg"_s},
        {u"www.pics.com/p00001.jpg"_s, 1, 5001, u"www.pics.com/p05001.jpg"_s},
    };
    for (const Row &row : rows) {
        setSeries(row.address, row.position);
        const QStringList taken = all();
        EXPECT_TRUE(walk.isSeries());
        EXPECT_EQ(taken.size(), row.length) << qPrintable(row.address);
        EXPECT_EQ(taken.constFirst(), row.address);
        EXPECT_EQ(taken.constLast(), row.last);
        EXPECT_EQ(form.series.cboMNAutoUrl.text(), row.last) << "the box shows how far it has come";
        EXPECT_EQ(walk.shownLast(), row.length - 1);
        series.SetAutoIncrPos(row.position); // given up again
    }
}

TEST_F(ManualWalkTest, ASeriesGoesByTheStepOfTheBox)
{
    form.series.incMNStep.setText(u"005"_s);
    setSeries(u"www.pics.com/p1.jpg"_s, 1);
    EXPECT_EQ(all().mid(0, 3),
              (QStringList{u"www.pics.com/p1.jpg"_s, u"www.pics.com/p6.jpg"_s, u"www.pics.com/p11.jpg"_s}));
}

TEST_F(ManualWalkTest, MayNotBeginInAListThatIsCollectedInto)
{
    EXPECT_TRUE(walk.mayBegin());
    form.collect.mbNavListCollecting = true;
    EXPECT_FALSE(walk.mayBegin());
}

TEST_F(ManualWalkTest, TheTableRemembersWhereAListStood)
{
    addRow(*database, u"MNUrlsA"_s, {{u"Url"_s, u"http://a.com/"_s}});
    addRow(*database, u"MNUrlsA"_s, {{u"Url"_s, u"http://b.com/"_s}});
    list().setItems({u"http://a.com/"_s, u"http://b.com/"_s});
    walk.begin(false);
    static_cast<void>(walk.take(1));
    walk.end(false);
    EXPECT_EQ(rows(u"MNUrlsA"_s, u"LastUrl"_s).constFirst(), u"http://b.com/"_s);
}

TEST_F(ManualWalkTest, AStoppedSeriesIsKeptWhereTheOptionSaysSo)
{
    setSeries(u"www.pics.com/p1.jpg"_s, 1);
    walk.begin(false);
    static_cast<void>(walk.take(walk.first()));
    static_cast<void>(walk.take(walk.first() + 1));
    form.options.chkSMD(SMD::SaveAutoTextOnStop).setValue(0);
    walk.keepSeries();
    EXPECT_TRUE(rows(u"AutoTextA"_s).isEmpty());
    form.options.chkSMD(SMD::SaveAutoTextOnStop).setValue(1);
    walk.keepSeries();
    EXPECT_EQ(rows(u"AutoTextA"_s), QStringList{u"www.pics.com/p2.jpg"_s});
}

TEST_F(ManualWalkTest, ASeriesGoesOnWhileAnotherListIsOnShow)
{
    setSeries(u"www.pics.com/a3/p01.jpg"_s, 2);
    walk.begin(false);
    EXPECT_EQ(walk.take(walk.first()), u"www.pics.com/a3/p01.jpg"_s);
    form.lists.cboMNList.setListIndex(2);
    series.SetAutoIncrPos(2); // given up, as the other list has none
    form.series.incMNAutoUrl.setText(u"0000000077"_s);
    EXPECT_EQ(walk.take(walk.first() + 1), u"www.pics.com/a3/p02.jpg"_s);
    EXPECT_EQ(walk.take(walk.first() + 2), u"www.pics.com/a3/p03.jpg"_s);
    EXPECT_EQ(form.series.incMNAutoUrl.value(), 3) << "the number is the address's own";
    form.options.chkSMD(SMD::SaveAutoTextOnStop).setValue(1);
    series.SetAutoIncrPos(1); // of the other list
    walk.keepSeries();
    EXPECT_TRUE(rows(u"AutoTextC"_s).isEmpty()) << "the series is none of that list";
}

TEST_F(ManualWalkTest, AWalkKeepsToItsListItsBaseAndItsTableWhileAnotherListIsOnShow)
{
    for (const QString &name : {u"MNUrlsA"_s, u"MNUrlsC"_s})
        addRow(*database, name, {{u"Url"_s, u"http://x.com/"_s}});
    list().setItems({u"tea"_s, u"milk"_s});
    form.lists.lstMN(2).setItems({u"http://c.com/"_s});
    form.lists.lstMN(2).setListIndex(0);
    form.series.cboMNAutoUrl.setText(u"www.~ins~.com"_s);
    series.mnuMNUseAutoBase_Click();
    walk.begin(false);
    EXPECT_EQ(walk.take(0), u"www.tea.com"_s);
    form.lists.cboMNList.setListIndex(2);
    form.series.cboMNAutoUrl.setText(u"www.other.com"_s);
    EXPECT_EQ(walk.take(1), u"www.milk.com"_s);
    EXPECT_EQ(form.lists.lstMN(0).listIndex(), 1);
    walk.end(false);
    EXPECT_EQ(rows(u"MNUrlsA"_s, u"LastUrl"_s), QStringList{u"milk"_s});
    EXPECT_EQ(rows(u"MNUrlsC"_s, u"LastUrl"_s), QStringList{QString()});
}

TEST_F(ManualWalkTest, TheItemAtWhichAWalkWasStoppedIsTakenAgain)
{
    const auto turns = [this] {
        QList<Downloads::Turn> taken;
        walk.begin(false);
        for (qint64 item = walk.first(); item <= walk.first() + 1; ++item) {
            static_cast<void>(walk.take(item));
            taken.append(walk.turn(item));
        }
        return taken;
    };
    using enum Downloads::Turn;
    list().setItems({u"http://a.com/1.jpg"_s, u"http://a.com/2.jpg"_s, u"http://a.com/3.jpg"_s});
    EXPECT_EQ(turns(), (QList{First, First}));
    walk.end(true);
    EXPECT_EQ(turns(), (QList{Again, First})) << "the second one, and behind it the third";
    walk.end(false);
    list().setListIndex(1);
    EXPECT_EQ(turns(), (QList{First, First})) << "a walk that came to its end is not gone on with";
}

TEST_F(ManualWalkTest, WhatTheDatabaseRemembersIsTakenAgain)
{
    const auto first = [this] {
        walk.begin(false);
        static_cast<void>(walk.take(walk.first()));
        return walk.turn(walk.first());
    };
    addRow(*database, u"MNUrlsA"_s, {{u"Url"_s, u"b"_s}, {u"LastUrl"_s, u"b"_s}});
    list().setItems({u"a"_s, u"b"_s});
    EXPECT_EQ(first(), Downloads::Turn::First);
    list().setListIndex(1);
    EXPECT_EQ(first(), Downloads::Turn::Again);
    setSeries(u"www.pics.com/p1.jpg"_s, 1);
    EXPECT_EQ(first(), Downloads::Turn::First);
    addRow(*database, u"AutoTextA"_s, {{u"Url"_s, u"www.pics.com/p1.jpg"_s}, {u"IncrNum"_s, u"1"_s}});
    EXPECT_EQ(first(), Downloads::Turn::Again);
}
