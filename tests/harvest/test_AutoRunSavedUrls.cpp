// Runs over saved result pages, one after the other, and over PassUrls, which are pages to visit themselves.
#include "WalkFixture.h"

using namespace Qt::StringLiterals;

namespace {
constexpr qint64 second = 1000;

class SavedRun : public WalkTest
{
  protected:
    QString page(int number) const { return u"http://www.seek.com/?page=%1"_s.arg(number); }

    /// Saved Urls "Results-100" and on, whose pages hold these links; the box that uses them is on.
    void save(const QList<QStringList> &linksOfPages)
    {
        for (int i = 0; i < linksOfPages.size(); ++i) {
            addSaved(u"Results-%1"_s.arg(100 + i), page(i + 1));
            window().pages[page(i + 1)].links = linksOfPages[i];
        }
        savedUrls.LoadSavedUrls(SavedUrls::Kind::SavedUrl);
        form.saved.chkUseSavedUrls.setValue(1);
        statuses.clear();
    }
    void loadPassUrls(int count)
    {
        const QStringList links = makeSites(count);
        for (int i = 0; i < count; ++i)
            addSaved(u"PassUrl-%1"_s.arg(100 + i), links[i], u"PassUrlsA"_s);
        form.saved.mbPassUrlsLoaded = true;
        savedUrls.LoadSavedUrls(SavedUrls::Kind::PassUrl);
        form.saved.chkUseSavedUrls.setValue(1);
        statuses.clear();
    }
};
} // namespace

TEST_F(SavedRun, OpensEachSavedPageGivesItThePauseAndWalksItsLinks)
{
    const QStringList sites = makeSites(3);
    save({{sites[0], sites[1]}, {sites[2]}});
    const qint64 start = pump.seconds();
    clickStart();
    EXPECT_EQ(window().navigated, (QStringList{page(1), sites[0], sites[1], page(2), sites[2]}));
    EXPECT_EQ(pump.seconds() - start, 2 + 5 + 5 + 2 + 5);
    EXPECT_EQ(statuses, (QStringList{u"Results-100"_s, u"1/2 http://www.site1.com/"_s, u"2/2 http://www.site2.com/"_s,
                                     u"Results-101"_s, u"1/1 http://www.site3.com/"_s, u"Stopped (FINISHED)"_s}));
    EXPECT_EQ(form.saved.cboANSavedUrls.listIndex(), 1);
}

TEST_F(SavedRun, BeginsAtTheRowThatTheUserHasChosen)
{
    const QStringList sites = makeSites(2);
    save({{sites[0]}, {sites[1]}});
    form.saved.cboANSavedUrls.setListIndex(1);
    statuses.clear();
    clickStart();
    EXPECT_EQ(window().navigated, (QStringList{page(2), sites[1]}));
}

TEST_F(SavedRun, APauseOfZeroFallsBackToTheTimeOfTheLinks)
{
    form.limits.incSmRPPause.setText(u"0"_s);
    const QStringList sites = makeSites(1);
    save({sites});
    const qint64 start = pump.seconds();
    clickStart();
    EXPECT_EQ(pump.seconds() - start, 5 + 5);
}

TEST_F(SavedRun, XInTheMiddleOfAPageResumesOnThatPageWithoutOpeningItAgain)
{
    const QStringList sites = makeSites(4);
    save({{sites[0], sites[1], sites[2]}, {sites[3]}});
    pump.after(9 * second, [&] { clickStart(); }); // 2 of pause, 5 of the first link, 2 of the second
    clickStart();
    ASSERT_EQ(lastStatus(), u"Stopped (USER)"_s);
    ASSERT_EQ(form.autoRun.mlngANLinkIndex, 1);
    window().navigated.clear();
    QStringList walks;
    QObject::connect(&runs, &Runs::walking, &form, [&](const QString &anew) { walks.append(anew); });
    clickStart();
    EXPECT_EQ(window().navigated, (QStringList{sites[1], sites[2], page(2), sites[3]}));
    EXPECT_EQ(walks, (QStringList{u"ReSet starts anew"_s, QString()}))
        << "the second page is walked from its first link";
}

TEST_F(SavedRun, XInTheMiddleOfAPauseStopsBeforeTheFirstLink)
{
    const QStringList sites = makeSites(2);
    save({sites});
    pump.after(second, [&] { clickStart(); });
    clickStart();
    EXPECT_EQ(window().navigated, QStringList{page(1)});
    EXPECT_EQ(lastStatus(), u"Stopped (USER)"_s);
    EXPECT_EQ(form.autoRun.mlngANLinkIndex, 0);
    EXPECT_EQ(form.autoRun.mastrLinks, sites);
}

TEST_F(SavedRun, APauseThatIsEndedIsOverAndTheRunGoesOn)
{
    const QStringList sites = makeSites(1);
    form.limits.incSmRPPause.setText(u"100"_s);
    save({sites});
    pump.after(3 * second, [&] { runs.endWait(); });
    const qint64 start = pump.seconds();
    clickStart();
    EXPECT_EQ(pump.seconds() - start, 3 + 5);
    EXPECT_EQ(lastStatus(), u"Stopped (FINISHED)"_s);
}

TEST_F(SavedRun, TwoEmptyPagesInARowEndTheRunThoughALaterOneHasLinks)
{
    const QStringList sites = makeSites(2);
    save({{sites[0]}, {}, {}, {sites[1]}});
    clickStart();
    EXPECT_EQ(window().navigated, (QStringList{page(1), sites[0], page(2), page(3)}));
    EXPECT_EQ(lastStatus(), u"Stopped (ERROR, NO URLS)"_s);
}

TEST_F(SavedRun, EmptyPagesThatDoNotFollowOneAnotherDoNotEndTheRun)
{
    const QStringList sites = makeSites(2);
    save({{}, {sites[0]}, {}, {sites[1]}});
    clickStart();
    EXPECT_EQ(window().navigated, (QStringList{page(1), page(2), sites[0], page(3), page(4), sites[1]}));
    EXPECT_EQ(lastStatus(), u"Stopped (FINISHED)"_s);
}

TEST_F(SavedRun, OneEmptyPageAloneIsFinished)
{
    save({{}});
    clickStart();
    EXPECT_EQ(lastStatus(), u"Stopped (FINISHED)"_s);
}

TEST_F(SavedRun, NoUrlsIsToldAlsoWhenTheUserHasStopped)
{
    save({{}, {}, {}});
    pump.after(3 * second, [&] { clickStart(); }); // in the second pause; seen after it
    clickStart();
    EXPECT_EQ(lastStatus(), u"Stopped (ERROR, NO URLS)"_s);
}

TEST_F(SavedRun, AStopOnTheLastLinkOfAPageIsSeenOnlyInsideTheNextPage)
{
    form.outputs.chkMCMNCStop.setValue(1);
    wantOnly(u"site 1,"_s);
    const QStringList sites = makeSites(4);
    save({{sites[0]}, {sites[1], sites[2], sites[3]}});
    const qint64 start = pump.seconds();
    clickStart();
    EXPECT_EQ(window().navigated, (QStringList{page(1), sites[0], page(2)}));
    EXPECT_EQ(pump.seconds() - start, 2 + 5 + 2);
    EXPECT_EQ(lastStatus(), u"Stopped (MCMNC)"_s);
    EXPECT_EQ(form.autoRun.mlngANLinkIndex, 1);
}

TEST_F(SavedRun, WithoutAnySavedUrlTheRunEndsWithAnUnknownError)
{
    form.mbFormReady = false;
    form.saved.chkUseSavedUrls.setValue(1);
    form.mbFormReady = true;
    clickStart();
    EXPECT_EQ(statuses.value(0), u"Stopped (ERROR, UNKNOWN)"_s);
    EXPECT_EQ(ended, 1);
}

TEST_F(SavedRun, ASavedAddressThatIsNoLinkKeepsTheLinksOfThePageBefore)
{
    const QStringList sites = makeSites(1);
    save({sites});
    addSaved(u"Results-101"_s, u"nonsense"_s);
    savedUrls.LoadSavedUrls(SavedUrls::Kind::SavedUrl);
    form.saved.chkUseSavedUrls.setValue(1);
    statuses.clear();
    clickStart();
    EXPECT_EQ(window().navigated, (QStringList{page(1), sites[0], sites[0]}));
    EXPECT_TRUE(statuses.contains(u"Invalid url nonsense"_s));
}

TEST_F(SavedRun, FinishedReturnsToTheLastResultPage)
{
    form.options.chkSMA(SMA::ReturnToStart).setValue(1);
    const QStringList sites = makeSites(2);
    save({{sites[0]}, {sites[1]}});
    clickStart();
    EXPECT_EQ(window().navigated.constLast(), page(2));
}

TEST_F(SavedRun, ServersOnlyHoldsForSavedPagesToo)
{
    form.options.chkSMA(SMA::ServersOnly).setValue(1);
    save({{u"http://www.site1.com/deep"_s}});
    clickStart();
    EXPECT_EQ(window().navigated, (QStringList{page(1), u"http://www.site1.com"_s}));
}

TEST_F(SavedRun, APassUrlIsItselfThePageToVisit)
{
    loadPassUrls(3);
    const qint64 start = pump.seconds();
    clickStart();
    EXPECT_EQ(window().navigated,
              (QStringList{u"http://www.site1.com/"_s, u"http://www.site2.com/"_s, u"http://www.site3.com/"_s}));
    EXPECT_EQ(pump.seconds() - start, 15);
    EXPECT_EQ(statuses, (QStringList{u"1/1 http://www.site1.com/"_s, u"1/1 http://www.site2.com/"_s,
                                     u"1/1 http://www.site3.com/"_s, u"Stopped (FINISHED)"_s}));
    EXPECT_EQ(form.saved.cboANSavedUrls.listIndex(), 2);
}

TEST_F(SavedRun, ARunOverPassUrlsReturnsToWhereAnEarlierRunBegan)
{
    form.options.chkSMA(SMA::ReturnToStart).setValue(1);
    form.autoRun.mstrANStartUrl = u"http://www.seek.com/earlier"_s;
    loadPassUrls(1);
    clickStart();
    EXPECT_EQ(window().navigated.constLast(), u"http://www.seek.com/earlier"_s);
}

TEST_F(SavedRun, ARunOverPassUrlsWithoutAnEarlierRunTellsOfAnInvalidUrlAndFinishes)
{
    form.options.chkSMA(SMA::ReturnToStart).setValue(1);
    loadPassUrls(1);
    clickStart();
    EXPECT_EQ(statuses.mid(1), (QStringList{u"Invalid url "_s, u"Stopped (FINISHED)"_s}));
}

TEST_F(SavedRun, XInTheMiddleOfAPassUrlResumesOnThatRow)
{
    loadPassUrls(3);
    pump.after(7 * second, [&] { clickStart(); });
    clickStart();
    window().navigated.clear();
    clickStart();
    EXPECT_EQ(window().navigated, (QStringList{u"http://www.site2.com/"_s, u"http://www.site3.com/"_s}));
}
