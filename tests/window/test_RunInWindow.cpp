// An Auto run in the window: the clicks, the browser's going and the program's end that come in its middle.
#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {
constexpr qint64 second = 1000;

class RunInWindow : public RunTest
{
  protected:
    static QStringList site(std::initializer_list<int> numbers)
    {
        QStringList all;
        for (const int number : numbers)
            all.append(u"http://www.site%1.com/"_s.arg(number));
        return all;
    }
    /// A Saved Url whose page holds these links; the box that uses them is on.
    void save(const QStringList &links)
    {
        const QString page = u"http://www.seek.com/?page=1"_s;
        addSaved(u"Results-100"_s, page);
        browser().pages[page].links = links;
        program->savedUrls.LoadSavedUrls(SavedUrls::Kind::SavedUrl);
        form().saved.chkUseSavedUrls.setValue(1);
        statuses.clear();
    }
};
} // namespace

TEST_F(RunInWindow, TheTimerCountsUpAndKeepsItsLastValue)
{
    showResults(makeSites(1));
    QStringList shown;
    QObject::connect(&form().browser.lblTrawlexTimer, &Control::changed, &form(), [&] {
        if (shown.isEmpty() || shown.constLast() != form().browser.lblTrawlexTimer.caption())
            shown.append(form().browser.lblTrawlexTimer.caption());
    });
    clickStart();
    EXPECT_EQ(form().browser.lblTrawlexTimer.caption(), u"5"_s);
    for (const auto *number : {"1", "2", "3", "4", "5"})
        EXPECT_TRUE(shown.contains(QLatin1StringView(number))) << number;
}

TEST_F(RunInWindow, WhileItRunsTheButtonSaysXAndTheTimerIsRed)
{
    showResults(makeSites(1));
    QString caption;
    Colour colour = 0;
    pump.after(second, [&] {
        caption = form().autoRun.cmdANStart.caption();
        colour = form().browser.lblTrawlexTimer.backColor();
    });
    clickStart();
    EXPECT_EQ(caption, u"X"_s);
    EXPECT_EQ(colour, Colours::Red);
    EXPECT_EQ(form().browser.lblTrawlexTimer.backColor(), Colours::ButtonFace);
}

TEST_F(RunInWindow, ALeftClickOnTheTimerScreensThePageAtOnceAndTheRunGoesOn)
{
    form().outputs.chkSaveSummary.setValue(1);
    form().options.chkSMD(1).setValue(0);
    showResults(makeSites(2));
    pump.after(2 * second, [&] { form().browser.lblTrawlexTimer.mouseDown(MouseButton::Left); });
    const qint64 start = pump.seconds();
    clickStart();
    EXPECT_EQ(pump.seconds() - start, 2 + 5);
    EXPECT_EQ(rows(u"SiteSummary"_s), site({1, 2}));
    EXPECT_EQ(lastStatus(), u"Stopped (FINISHED)"_s);
}

TEST_F(RunInWindow, ARightClickOnTheTimerDoesNotEndTheWait)
{
    showResults(makeSites(1));
    pump.after(2 * second, [&] { form().browser.lblTrawlexTimer.mouseDown(MouseButton::Right); });
    const qint64 start = pump.seconds();
    clickStart();
    EXPECT_EQ(pump.seconds() - start, 5);
}

TEST_F(RunInWindow, ChangingTheListLetterDiscardsAPendingWalk)
{
    showResults(makeSites(3));
    pump.after(7 * second, [&] { clickStart(); });
    clickStart();
    ASSERT_EQ(form().autoRun.mlngANLinkIndex, 1);
    form().saved.cboANList.setListIndex(1);
    EXPECT_EQ(form().autoRun.mlngANLinkIndex, 0);
    EXPECT_EQ(form().autoRun.mastrLinks, emptyList());
    EXPECT_EQ(lastStatus(), u"0 loaded"_s);
}

TEST_F(RunInWindow, TheBrowsersClosingInTheMiddleOfAWaitEndsTheRunOnTheSpot)
{
    form().outputs.chkSaveSummary.setValue(1);
    showResults(makeSites(3));
    FakeBrowser &window = browser();
    pump.after(7 * second, [&] { window.close(); });
    const qint64 start = pump.seconds();
    clickStart();
    EXPECT_EQ(pump.seconds() - start, 7);
    EXPECT_EQ(lastStatus(), u"Stopped (USER)"_s);
    EXPECT_EQ(form().frame.picStatus.printed(), u"Stopped (USER)..."_s);
    EXPECT_FALSE(form().browser.mbInitialized);
    EXPECT_FALSE(program->browser.isSet());
    EXPECT_EQ(form().autoRun.mlngANLinkIndex, 1);
    EXPECT_TRUE(form().browser.cmdANInitialize.isEnabled());
    EXPECT_FALSE(form().autoRun.cmdANStart.isEnabled());
}

TEST_F(RunInWindow, AfterTheBrowserIsConnectedAgainGoResumesTheWalk)
{
    showResults(makeSites(3));
    const auto pages = browser().pages;
    FakeBrowser &window = browser();
    pump.after(7 * second, [&] { window.close(); });
    clickStart();
    browsers.running = std::make_shared<FakeBrowser>(pump);
    browser().pages = pages;
    form().browser.cmdANInitialize.click();
    ASSERT_TRUE(form().browser.mbInitialized);
    clickStart();
    EXPECT_EQ(browser().navigated, site({2, 3}));
    EXPECT_EQ(lastStatus(), u"Stopped (FINISHED)"_s);
}

TEST_F(RunInWindow, WithErrorMessagesOnTheStatusComesBeforeTheBox)
{
    form().options.chkSMV(1).setValue(1);
    qputenv("LOGFILES", folder.path().toUtf8());
    form().mbFormReady = false;
    form().saved.chkUseSavedUrls.setValue(1); // without any Saved Url
    form().mbFormReady = true;
    bool toldBefore = false;
    dialogs.duringError = [&] { toldBefore = statuses.contains(u"Stopped (ERROR, UNKNOWN)"_s); };
    clickStart();
    qunsetenv("LOGFILES");
    EXPECT_TRUE(toldBefore);
    ASSERT_EQ(dialogs.errors.size(), 1);
    EXPECT_TRUE(dialogs.errors[0].text.contains(u"Module=frmSearch: ErrLoc=Sub StartProcessAN: "_s));
    EXPECT_TRUE(dialogs.errors[0].text.endsWith(u"Err#=380"_s));
}

// Over saved result pages.

TEST_F(RunInWindow, ALeftClickOnTheTimerEndsThePauseAndTheRunGoesOn)
{
    const QStringList sites = makeSites(1);
    form().limits.incSmRPPause.setText(u"100"_s);
    save(sites);
    pump.after(3 * second, [&] { form().browser.lblTrawlexTimer.mouseDown(MouseButton::Left); });
    const qint64 start = pump.seconds();
    clickStart();
    EXPECT_EQ(pump.seconds() - start, 3 + 5);
    EXPECT_EQ(lastStatus(), u"Stopped (FINISHED)"_s);
}

TEST_F(RunInWindow, TheBrowsersClosingInTheMiddleOfAPauseIsTheUsersStop)
{
    save(makeSites(2));
    FakeBrowser &window = browser();
    pump.after(second, [&] { window.close(); });
    clickStart();
    EXPECT_EQ(lastStatus(), u"Stopped (USER)"_s);
    EXPECT_FALSE(form().browser.mbInitialized);
    EXPECT_EQ(form().autoRun.mlngANLinkIndex, 0);
}

TEST_F(RunInWindow, TerminateInTheMiddleOfAPauseEndsWithoutWaitingForTheRest)
{
    form().options.chkSMA(7).setValue(0);
    form().limits.incSmRPPause.setText(u"100"_s);
    save(makeSites(2));
    pump.after(3 * second, [&] { program->lifeCycle.Terminate(); });
    const qint64 start = pump.seconds();
    clickStart();
    pump.finish();
    EXPECT_EQ(pump.seconds() - start, 3);
    EXPECT_EQ(ends, 1);
    EXPECT_EQ(lastStatus(), u"Stopped (USER)"_s);
}

TEST_F(RunInWindow, TerminateWhileASavedPageIsAboutToBeOpenedDoesNotWaitForIt)
{
    form().options.chkSMA(7).setValue(0);
    form().limits.incSmRPPause.setText(u"100"_s);
    save(makeSites(2));
    pump.after(0, [&] { program->lifeCycle.Terminate(); });
    const qint64 start = pump.tickCount();
    clickStart();
    pump.finish();
    EXPECT_EQ(pump.tickCount(), start);
    EXPECT_EQ(ends, 1);
}
