// When a page counts as loading, in orders of events that a browser seldom shows.
#include "engine/PageLoading.h"

#include <functional>
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
    page.committed(u"a"_s);
    EXPECT_FALSE(page.isWaitingForDocument());
    EXPECT_TRUE(page.isLoading());
    EXPECT_TRUE(page.documentLoaded(u"a"_s));
    EXPECT_FALSE(page.isLoading());
    EXPECT_FALSE(page.documentLoaded(u"a"_s)) << "it ends once";
}

TEST(PageLoading, TheOldDocumentsLoadEventDoesNotCount)
{
    PageLoading page;
    page.committed(u"old"_s);
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
    page.committed(u"a"_s);
    EXPECT_FALSE(page.documentLoaded(u"a"_s));
    page.committed(u"b"_s);
    EXPECT_TRUE(page.documentLoaded(u"b"_s));
}

TEST(PageLoading, AnAnswerThatComesAfterTheNextRequestOutdatesItsDocument)
{
    PageLoading page;
    const int first = page.begin();
    page.begin();
    EXPECT_EQ(page.answered(first, u"a"_s, u"net::ERR_ABORTED"_s), Verdict::Outdated);
    page.committed(u"a"_s);
    EXPECT_FALSE(page.documentLoaded(u"a"_s));
    EXPECT_TRUE(page.isLoading());
}

TEST(PageLoading, AnotherDocumentThanTheOneAskedForCounts)
{
    PageLoading page;
    const int number = page.begin();
    EXPECT_EQ(page.answered(number, u"http"_s, u""_s), Verdict::Wait);
    page.committed(u"https"_s);
    EXPECT_TRUE(page.documentLoaded(u"https"_s));
}

TEST(PageLoading, ADocumentThatIsReplacedBeforeItsLoadEventLeavesThePageLoading)
{
    PageLoading page;
    page.answered(page.begin(), u"a"_s, u""_s);
    page.committed(u"a"_s);
    page.committed(u"b"_s);
    EXPECT_FALSE(page.documentLoaded(u"a"_s));
    EXPECT_TRUE(page.documentLoaded(u"b"_s));
}

TEST(PageLoading, ARequestOfTheOldPageItselfBehindOursIsKnown)
{
    PageLoading page;
    EXPECT_FALSE(page.isOvertaken());
    const int number = page.begin();
    page.started(u"ours"_s);
    EXPECT_FALSE(page.isOvertaken()) << "whose it is tells the answer";
    page.answered(number, u"ours"_s, u""_s);
    EXPECT_FALSE(page.isOvertaken());
    page.started(u"the page's own"_s);
    EXPECT_TRUE(page.isOvertaken());
    page.committed(u"ours"_s);
    EXPECT_FALSE(page.isOvertaken()) << "where the page itself goes on to";
}

TEST(PageLoading, ARequestThatComesToNothingEndsWhenItHasSettled)
{
    PageLoading page;
    page.committed(u"old"_s);
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
    page.committed(u"b"_s);
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
    page.committed(u"a"_s);
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
    page.committed(u"a"_s);
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
    page.committed(u"a"_s);
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
    page.committed(u"a"_s);
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

// ---- Whether the page has arrived

using Arrival = PageLoading::Arrival;
using Document = PageLoading::Document;

TEST(PageLoading, APageArrivesWithItsDocument)
{
    PageLoading page;
    EXPECT_EQ(page.arrival(), Arrival::Arrived) << "what stands there when nothing has been asked for";
    page.answered(page.begin(), u"a"_s, u""_s);
    EXPECT_EQ(page.arrival(), Arrival::Pending);
    page.committed(u"a"_s);
    EXPECT_EQ(page.arrival(), Arrival::Arrived);
    page.documentLoaded(u"a"_s);
    EXPECT_EQ(page.arrival(), Arrival::Arrived);
}

TEST(PageLoading, ADocumentOfAnEarlierRequestIsNoArrival)
{
    PageLoading page;
    page.answered(page.begin(), u"a"_s, u""_s);
    page.begin();
    page.committed(u"a"_s);
    EXPECT_EQ(page.arrival(), Arrival::Pending);
    page.committed(u"b"_s);
    EXPECT_EQ(page.arrival(), Arrival::Arrived);
}

TEST(PageLoading, EveryEndWithoutADocumentHasFailed)
{
    struct Row
    {
        const char *tag;
        std::function<void(PageLoading &, int)> end;
    };
    const Row rows[] = {
        {"no address", [](PageLoading &page, int number) { page.answered(number, {}, u"invalid"_s); }},
        {"download",
         [](PageLoading &page, int number) {
             page.answered(number, u"a"_s, u"net::ERR_ABORTED"_s);
             page.settle(number);
         }},
        {"blocked",
         [](PageLoading &page, int number) {
             page.answered(number, u"a"_s, u"net::ERR_BLOCKED_BY_CLIENT"_s);
             page.stopped();
         }},
        {"cancelled", [](PageLoading &page, int) { page.cancel(); }},
        {"told stopped", [](PageLoading &page, int) { page.endTold(PageLoading::End::Stopped, true); }},
        {"error page", [](PageLoading &page, int) { page.committed(u"a"_s, Document::ErrorPage); }},
        {"crash",
         [](PageLoading &page, int) {
             page.committed(u"a"_s);
             page.processLost();
         }},
    };
    for (const Row &row : rows) {
        PageLoading page;
        page.committed(u"old"_s);
        row.end(page, page.begin());
        EXPECT_EQ(page.arrival(), Arrival::Failed) << row.tag;
        page.cancel();
        page.committed(u"later"_s);
        EXPECT_EQ(page.arrival(), Arrival::Failed) << row.tag << ": the old page has gone on by itself";
        page.begin();
        EXPECT_EQ(page.arrival(), Arrival::Pending) << row.tag;
    }
}

TEST(PageLoading, AMoveWithinThePageIsAsGoodAsThePage)
{
    for (const Document document : {Document::Page, Document::ErrorPage}) {
        PageLoading page;
        page.committed(u"a"_s, document);
        page.answered(page.begin(), {}, {});
        EXPECT_EQ(page.arrival(), Arrival::Pending);
        page.movedWithinPage();
        EXPECT_EQ(page.arrival(), document == Document::Page ? Arrival::Arrived : Arrival::Failed);
        const int number = page.begin();
        page.movedWithinPage();
        page.answered(number, {}, {});
        EXPECT_EQ(page.arrival(), document == Document::Page ? Arrival::Arrived : Arrival::Failed);
    }
}

TEST(PageLoading, AnErrorPageOnTheWayToTheRealOneCountsForNothing)
{
    PageLoading page;
    page.begin();
    page.committed(u"error"_s, Document::ErrorPage);
    page.committed(u"page"_s);
    EXPECT_EQ(page.arrival(), Arrival::Arrived);
}

TEST(PageLoading, APageThatEndsOnAnErrorPageByItselfHasFailed)
{
    PageLoading page;
    page.begin();
    page.committed(u"page"_s);
    page.documentLoaded(u"page"_s);
    page.resumed();
    page.committed(u"error"_s, Document::ErrorPage);
    EXPECT_EQ(page.arrival(), Arrival::Failed);
}

// ---- A browser that does not say whose end it tells

using End = PageLoading::End;

TEST(PageLoading, AnEndThatMayBeThatOfAnEarlierLoadDoesNotCount)
{
    struct Row
    {
        const char *tag;
        bool busy, started, sameAddress;
        End end;
        Verdict verdict;
    };
    const Row rows[] = {
        {"not taken up", false, false, false, End::Loaded, Verdict::Outdated},
        {"not taken up, but its address", false, false, true, End::Loaded, Verdict::Wait},
        {"taken up", false, true, false, End::Loaded, Verdict::Wait},
        {"taken up while busy", true, true, false, End::Loaded, Verdict::Outdated},
        {"stopped while busy", true, true, false, End::Stopped, Verdict::Ended},
        {"stopped, not taken up", true, false, false, End::Stopped, Verdict::Outdated},
    };
    for (const Row &row : rows) {
        PageLoading page;
        page.begin();
        page.issued(row.busy);
        if (row.started)
            page.started(u"x"_s);
        EXPECT_EQ(page.endTold(row.end, row.sameAddress), row.verdict) << row.tag;
        EXPECT_EQ(page.isLoading(), row.verdict != Verdict::Ended) << row.tag;
    }
}

TEST(PageLoading, AnEndIsThatOfTheDocumentOnceThatHasToldOfItsLoadEvent)
{
    PageLoading page;
    page.begin();
    page.committed(u"a"_s);
    page.documentComplete(u"a"_s);
    page.committed(u"b"_s);
    EXPECT_EQ(page.endTold(End::Loaded, false), Verdict::Wait) << "that was the document before";
    page.documentComplete(u"b"_s);
    EXPECT_EQ(page.endTold(End::Loaded, false), Verdict::Ended);
    EXPECT_EQ(page.endTold(End::Loaded, false), Verdict::Outdated);
    page.resumed();
    EXPECT_TRUE(page.isLoading());
    EXPECT_FALSE(page.isWaitingForDocument());
    EXPECT_TRUE(page.documentFound());
    EXPECT_FALSE(page.documentFound());
}
