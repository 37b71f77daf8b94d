// When a page counts as loading, in orders of events that a browser seldom shows.
#include "engine/PageLoading.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

using Verdict = PageLoading::Verdict;

TEST(PageLoading, EndsWithTheLoadEventOfTheDocumentAskedFor)
{
    PageLoading page;
    EXPECT_FALSE(page.isLoading());
    const int number = page.begin();
    EXPECT_TRUE(page.isLoading());
    EXPECT_TRUE(page.isWaitingForDocument());
    EXPECT_EQ(page.answered(number, u"a"_s, u""_s), Verdict::Wait);
    (void)page.committed(u"a"_s);
    EXPECT_FALSE(page.isWaitingForDocument());
    EXPECT_TRUE(page.isLoading());
    EXPECT_TRUE(page.documentLoaded(u"a"_s));
    EXPECT_FALSE(page.isLoading());
    EXPECT_FALSE(page.documentLoaded(u"a"_s)) << "it ends once";
}

TEST(PageLoading, TheOldDocumentsLoadEventDoesNotCount)
{
    PageLoading page;
    (void)page.committed(u"old"_s);
    page.begin();
    EXPECT_FALSE(page.documentLoaded(u"old"_s));
    EXPECT_FALSE(page.stopped());
    EXPECT_TRUE(page.isLoading());
}

TEST(PageLoading, ADocumentOfAnEarlierRequestDoesNotCount)
{
    PageLoading page;
    const int first = page.begin();
    EXPECT_EQ(page.answered(first, u"a"_s, u""_s), Verdict::Wait);
    page.begin();
    (void)page.committed(u"a"_s);
    EXPECT_FALSE(page.documentLoaded(u"a"_s));
    (void)page.committed(u"b"_s);
    EXPECT_TRUE(page.documentLoaded(u"b"_s));
}

TEST(PageLoading, AnAnswerThatComesAfterTheNextRequestOutdatesItsDocument)
{
    PageLoading page;
    const int first = page.begin();
    page.begin();
    EXPECT_EQ(page.answered(first, u"a"_s, u"net::ERR_ABORTED"_s), Verdict::Outdated);
    (void)page.committed(u"a"_s);
    EXPECT_FALSE(page.documentLoaded(u"a"_s));
    EXPECT_TRUE(page.isLoading());
}

TEST(PageLoading, AnotherDocumentThanTheOneAskedForCounts)
{
    PageLoading page;
    const int number = page.begin();
    EXPECT_EQ(page.answered(number, u"http"_s, u""_s), Verdict::Wait);
    (void)page.committed(u"https"_s);
    EXPECT_TRUE(page.documentLoaded(u"https"_s));
}

TEST(PageLoading, ADocumentThatIsReplacedBeforeItsLoadEventLeavesThePageLoading)
{
    PageLoading page;
    page.answered(page.begin(), u"a"_s, u""_s);
    (void)page.committed(u"a"_s);
    (void)page.committed(u"b"_s);
    EXPECT_FALSE(page.documentLoaded(u"a"_s));
    EXPECT_TRUE(page.documentLoaded(u"b"_s));
}

TEST(PageLoading, ADocumentWillNotStayWhenTheOldPageHasSetOutForAnother)
{
    PageLoading page;
    const int number = page.begin();
    page.started(u"a"_s);
    page.answered(number, u"a"_s, u""_s);
    page.started(u"reload"_s);
    EXPECT_FALSE(page.committed(u"a"_s));

    page.answered(page.begin(), u"b"_s, u""_s);
    page.started(u"b"_s);
    EXPECT_TRUE(page.committed(u"b"_s));
    page.started(u"c"_s);
    EXPECT_TRUE(page.committed(u"c"_s)) << "where the page itself goes on to";
}

TEST(PageLoading, ARequestThatComesToNothingEndsWhenItHasSettled)
{
    PageLoading page;
    (void)page.committed(u"old"_s);
    const int number = page.begin();
    page.started(u"a"_s);
    EXPECT_EQ(page.answered(number, u"a"_s, u"net::ERR_ABORTED"_s), Verdict::Aborted);
    EXPECT_TRUE(page.isLoading());
    EXPECT_FALSE(page.settle(number - 1)) << "that was another request";
    EXPECT_TRUE(page.settle(number));
    EXPECT_FALSE(page.isLoading());
}

TEST(PageLoading, ARequestThatAnotherHasReplacedGoesOnWithThat)
{
    PageLoading page;
    const int number = page.begin();
    page.started(u"a"_s);
    EXPECT_EQ(page.answered(number, u"a"_s, u"net::ERR_ABORTED"_s), Verdict::Aborted);
    page.started(u"b"_s);
    EXPECT_FALSE(page.settle(number));
    (void)page.committed(u"b"_s);
    EXPECT_TRUE(page.documentLoaded(u"b"_s));
}

TEST(PageLoading, ARequestThatIsRefusedAsARepetitionGoesOnWithTheFirst)
{
    PageLoading page;
    page.begin();
    const int number = page.begin();
    page.started(u"a"_s);
    EXPECT_EQ(page.answered(number, u""_s, u"net::ERR_ABORTED"_s), Verdict::Aborted);
    EXPECT_FALSE(page.settle(number));
    EXPECT_TRUE(page.isLoading());
}

TEST(PageLoading, AReplacementThatComesToNothingEndsWhenTheBrowserStops)
{
    PageLoading page;
    const int number = page.begin();
    page.started(u"a"_s);
    page.answered(number, u"a"_s, u"net::ERR_ABORTED"_s);
    page.started(u"b"_s);
    EXPECT_FALSE(page.settle(number));
    EXPECT_TRUE(page.stopped());
}

TEST(PageLoading, AMoveWithinThePageEndsWithTheWordOfIt)
{
    PageLoading page;
    (void)page.committed(u"a"_s);
    EXPECT_FALSE(page.movedWithinPage()) << "nothing was asked for";
    EXPECT_EQ(page.answered(page.begin(), u""_s, u""_s), Verdict::Wait);
    EXPECT_TRUE(page.movedWithinPage());
    EXPECT_FALSE(page.isLoading());
}

TEST(PageLoading, TheWordOfAMoveMayComeBeforeTheAnswer)
{
    PageLoading page;
    const int number = page.begin();
    EXPECT_FALSE(page.movedWithinPage());
    EXPECT_TRUE(page.isLoading());
    EXPECT_EQ(page.answered(number, u""_s, u""_s), Verdict::Moved);
    EXPECT_FALSE(page.isLoading());
}

TEST(PageLoading, WhatIsNoAddressEndsAtOnce)
{
    PageLoading page;
    EXPECT_EQ(page.answered(page.begin(), u""_s, u"Cannot navigate to invalid URL"_s), Verdict::Ended);
    EXPECT_FALSE(page.isLoading());
}

TEST(PageLoading, AnErrorPageIsWaitedFor)
{
    PageLoading page;
    EXPECT_EQ(page.answered(page.begin(), u"a"_s, u"net::ERR_CONNECTION_REFUSED"_s), Verdict::Wait);
    EXPECT_TRUE(page.isLoading());
    (void)page.committed(u"a"_s);
    EXPECT_TRUE(page.documentLoaded(u"a"_s));
}

TEST(PageLoading, AnErrorWithoutAPageEndsWhenTheBrowserStops)
{
    PageLoading page;
    page.answered(page.begin(), u"a"_s, u"net::ERR_BLOCKED_BY_CLIENT"_s);
    EXPECT_TRUE(page.stopped());
}

TEST(PageLoading, ALoadThatIsBrokenOffHalfWayEndsWhenTheBrowserStops)
{
    PageLoading page;
    page.answered(page.begin(), u"a"_s, u""_s);
    EXPECT_FALSE(page.stopped()) << "the old document's end of loading";
    (void)page.committed(u"a"_s);
    EXPECT_TRUE(page.stopped());
}

TEST(PageLoading, ALostProcessEndsThePageButNotARequest)
{
    PageLoading page;
    const int number = page.begin();
    EXPECT_FALSE(page.processLost()) << "the old page's process";
    EXPECT_FALSE(page.isDocumentComing()) << "the browser may still find another process for it";
    page.answered(number, u"a"_s, u""_s);
    EXPECT_TRUE(page.isDocumentComing());
    (void)page.committed(u"a"_s);
    EXPECT_FALSE(page.isDocumentComing());
    EXPECT_TRUE(page.processLost());
    EXPECT_FALSE(page.processLost());
}

TEST(PageLoading, CancellingEndsOnce)
{
    PageLoading page;
    EXPECT_FALSE(page.cancel());
    page.begin();
    EXPECT_TRUE(page.cancel());
    EXPECT_FALSE(page.isLoading());
}
