// What a run has stored, in words.
#include "app/RunTally.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Tallies, SayNothingBeforeThereIsAnything)
{
    RunTally tally;
    EXPECT_EQ(tally.text(), QString());
    tally.progress(1, 14, 1000);
    EXPECT_EQ(tally.text(), QString());
}

TEST(Tallies, CountRowsByKindAndLeaveOutTheRest)
{
    RunTally tally;
    tally.progress(1, 14, 0);
    tally.stored({{u"SiteSummary"_s, 1}, {u"EmailAddress"_s, 2}, {u"PassUrlsB"_s, 1}, {u"UrlsCache"_s, 5}});
    tally.stored({{u"SiteSummary"_s, 1}, {u"PhoneNumber"_s, 3}});
    EXPECT_EQ(tally.text(), u"2 pages, 2 e-mail, 3 numbers, 1 link"_s);
}

TEST(Tallies, TellTheTimeLeftAsTheItemsSoFarWent)
{
    struct Row
    {
        int number, count;
        qint64 now;
        QString text;
    };
    const Row rows[] = {{2, 14, 10000, u"2 min left"_s},
                        {3, 14, 20000, u"2 min left"_s},
                        {13, 14, 120000, u"20 s left"_s},
                        {14, 14, 130000, u"10 s left"_s}};
    RunTally tally;
    tally.progress(1, 14, 0);
    for (const Row &row : rows) {
        tally.progress(row.number, row.count, row.now);
        EXPECT_EQ(tally.text(), row.text) << row.number;
    }
}

TEST(Tallies, TellAResumedWalkAndCountItFromWhereItWentOn)
{
    RunTally tally;
    tally.walk(u"ReSet starts anew"_s);
    tally.progress(12, 30, 0);
    EXPECT_EQ(tally.text(), u"Resuming 12/30, ReSet starts anew"_s);
    tally.progress(13, 30, 5000);
    EXPECT_EQ(tally.text(), u"2 min left"_s);
}

TEST(Tallies, OfTheNextResultPageCountItsOwnTime)
{
    RunTally tally;
    tally.walk(u"ReSet starts anew"_s);
    tally.progress(12, 13, 0);
    tally.progress(13, 13, 300'000);
    tally.stored({{u"SiteSummary"_s, 2}});
    tally.walk({});
    tally.progress(1, 30, 600'000);
    EXPECT_EQ(tally.text(), u"2 pages"_s) << "what the run has stored stays";
    tally.progress(2, 30, 604'000);
    EXPECT_EQ(tally.text(), u"2 pages, 2 min left"_s);
}

TEST(Tallies, OfANewWalkWhoseFirstItemsAreLeftOutTellNoResuming)
{
    RunTally tally;
    tally.walk({});
    tally.progress(3, 30, 0);
    EXPECT_EQ(tally.text(), QString());
}

TEST(Tallies, OfAResumedWalkThatEndsOnItsFirstItemTellWhatItStored)
{
    RunTally tally;
    tally.walk(u"ReSet starts anew"_s);
    tally.progress(30, 30, 0);
    tally.stored({{u"SiteSummary"_s, 1}});
    tally.finished();
    EXPECT_EQ(tally.text(), u"1 page"_s);
}

TEST(Tallies, StayAfterTheEndAndBeginAnewWithTheNextRun)
{
    RunTally tally;
    tally.progress(1, 2, 0);
    tally.stored({{u"SiteSummary"_s, 1}});
    tally.progress(2, 2, 4000);
    tally.finished();
    EXPECT_EQ(tally.text(), u"1 page"_s);
    tally.progress(1, 9, 90000);
    EXPECT_EQ(tally.text(), QString());
}
