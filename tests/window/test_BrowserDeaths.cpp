// Browsers that die in the middle of a run: they are started again, and no page is lost.
#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {
constexpr qint64 second = 1000;

class BrowserDeaths : public RunTest
{
  protected:
    BrowserDeaths()
    {
        form().outputs.chkSaveSummary.setValue(1);
        form().options.chkSMD(SMD::UniqueInSummary).setValue(0);
    }
    /// Another window with the same pages takes the place of the one that runs.
    std::shared_ptr<FakeBrowser> putNextInPlace()
    {
        auto dying = browsers.running;
        browsers.running = std::make_shared<FakeBrowser>(pump);
        browsers.running->pages = dying->pages;
        gone.append(dying);
        return dying;
    }
    void dieAfter(qint64 milliseconds)
    {
        pump.after(milliseconds, [this] { putNextInPlace()->die(); });
    }
    /// Everything that any of the browsers was sent to.
    QStringList navigated()
    {
        QStringList all;
        for (const auto &browser : gone)
            all += browser->navigated;
        return all + browser().navigated;
    }
    int toldTimes(const QString &text) const { return static_cast<int>(statuses.count(text)); }

    QList<std::shared_ptr<FakeBrowser>> gone;
};

/// Screens a page with what its browser sends on the way: it dies when it is read.
class DiesWhenRead : public FakeBrowser
{
  public:
    DiesWhenRead(FakePump &pump, QString address) : FakeBrowser(pump), mPump(pump), mAddress(std::move(address)) {}
    [[nodiscard]] PageContent content() override
    {
        if (LocationURL() != mAddress)
            return FakeBrowser::content();
        mPump.after(0, [this] { onDeath(); });
        throw RuntimeError(462, u"The remote server machine does not exist or is unavailable"_s);
    }
    std::function<void()> onDeath;

  private:
    FakePump &mPump;
    QString mAddress;
};
} // namespace

TEST_F(BrowserDeaths, ABrowserThatDiesInAWaitIsStartedAgainAndThePageOpenedAgain)
{
    const QStringList sites = makeSites(3);
    showResults(sites);
    dieAfter(7 * second); // in the wait for the second page
    clickStart();
    EXPECT_EQ(navigated(), (QStringList{sites[0], sites[1], sites[1], sites[2]}));
    EXPECT_EQ(rows(u"SiteSummary"_s), sites);
    EXPECT_TRUE(statuses.contains(u"Browser has ended. Starting it again"_s));
    EXPECT_EQ(lastStatus(), u"Stopped (FINISHED)"_s);
    EXPECT_TRUE(form().browser.mbInitialized);
}

TEST_F(BrowserDeaths, AProgramThatHasToBeStartedIsWaitedFor)
{
    const QStringList sites = makeSites(2);
    showResults(sites);
    browsers.program = QCoreApplication::applicationFilePath();
    pump.after(2 * second, [&] {
        auto dying = browsers.running;
        browsers.running.reset();
        browsers.startsAfter = 1500;
        gone.append(dying);
        dying->die();
    });
    clickStart();
    EXPECT_EQ(browsers.started.size(), 1);
    EXPECT_EQ(browser().navigated, sites);
    EXPECT_EQ(lastStatus(), u"Stopped (FINISHED)"_s);
}

TEST_F(BrowserDeaths, APageOnWhichTheBrowserDiesThreeTimesIsPassedOver)
{
    const QStringList sites = makeSites(3);
    showResults(sites);
    for (int death = 0; death < 3; ++death)
        dieAfter((7 + 2 * death) * second);
    clickStart();
    EXPECT_EQ(navigated(), (QStringList{sites[0], sites[1], sites[1], sites[1], sites[2]}));
    EXPECT_EQ(rows(u"SiteSummary"_s), (QStringList{sites[0], sites[2]}));
    EXPECT_EQ(toldTimes(u"Passed over "_s + sites[1]), 1);
    EXPECT_EQ(lastStatus(), u"Stopped (FINISHED)"_s);
}

TEST_F(BrowserDeaths, ABrowserThatDiesWhileAPageIsReadIsAskedForThatPageAgain)
{
    const QStringList sites = makeSites(3);
    auto dying = std::make_shared<DiesWhenRead>(pump, sites[1]);
    dying->pages = browser().pages;
    dying->onDeath = [&] { putNextInPlace()->die(); };
    browsers.running = dying;
    program->connection.InitializeIE();
    showResults(sites);
    statuses.clear();
    clickStart();
    EXPECT_EQ(navigated(), (QStringList{sites[0], sites[1], sites[1], sites[2]}));
    EXPECT_EQ(rows(u"SiteSummary"_s), sites);
    EXPECT_EQ(lastStatus(), u"Stopped (FINISHED)"_s);
}

TEST_F(BrowserDeaths, ABrowserThatDiesOnAResultPageIsAskedForItAgain)
{
    const QStringList sites = makeSites(1);
    addSaved(u"Results-100"_s, u"http://www.seek.com/?page=1"_s);
    browser().pages[u"http://www.seek.com/?page=1"_s].links = sites;
    program->savedUrls.LoadSavedUrls(SavedUrls::Kind::SavedUrl);
    form().saved.chkUseSavedUrls.setValue(1);
    dieAfter(second);
    clickStart();
    EXPECT_EQ(rows(u"SiteSummary"_s), sites);
    EXPECT_EQ(lastStatus(), u"Stopped (FINISHED)"_s);
}

TEST_F(BrowserDeaths, ABrowserThatCannotBeStartedAgainEndsTheRunOnThatPage)
{
    const QStringList sites = makeSites(3);
    showResults(sites);
    pump.after(7 * second, [&] {
        auto dying = browsers.running;
        browsers.running.reset();
        gone.append(dying);
        dying->die();
    });
    clickStart();
    EXPECT_EQ(lastStatus(), u"Stopped (ERROR, NO BROWSER)"_s);
    EXPECT_EQ(form().autoRun.mlngANLinkIndex, 1);
    EXPECT_FALSE(form().browser.mbInitialized);
}

TEST_F(BrowserDeaths, ABrowserThatDiesBetweenTwoRunsIsNotStartedAgain)
{
    putNextInPlace()->die();
    EXPECT_EQ(lastStatus(), u"Not initialized"_s);
    EXPECT_FALSE(form().browser.mbInitialized);
}

TEST_F(BrowserDeaths, ABrowserThatTheUserClosesEndsTheRun)
{
    showResults(makeSites(3));
    pump.after(7 * second, [&] { putNextInPlace()->close(); });
    clickStart();
    EXPECT_EQ(lastStatus(), u"Stopped (USER)"_s);
    EXPECT_FALSE(statuses.contains(u"Browser has ended. Starting it again"_s));
}

TEST_F(BrowserDeaths, XWhileTheBrowserIsStartedAgainStopsTheRunOnThatPage)
{
    const QStringList sites = makeSites(3);
    showResults(sites);
    browsers.program = QCoreApplication::applicationFilePath();
    pump.after(7 * second, [&] {
        auto dying = browsers.running;
        browsers.running.reset();
        browsers.startsAfter = 5 * second;
        gone.append(dying);
        dying->die();
    });
    pump.after(9 * second, [&] { clickStart(); });
    clickStart();
    EXPECT_EQ(lastStatus(), u"Stopped (USER)"_s);
    EXPECT_EQ(form().autoRun.mlngANLinkIndex, 1);
}
