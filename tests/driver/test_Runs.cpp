// The two kinds of run as one thing: what begins, stops and ends them, and what everybody else sees of that.
#include "driver/Runs.h"

#include "support/FormFixture.h"

using namespace Qt::StringLiterals;
using Kind = Runs::Kind;

namespace {
class RunsTest : public FormTest
{
  protected:
    RunsTest()
    {
        QObject::connect(&runs, &Runs::starting, &form, [this](Kind kind) { started.append(kind); });
        QObject::connect(&runs, &Runs::stopping, &form, [this] { ++stops; });
        QObject::connect(&runs, &Runs::finalized, &form, [this](const QString &text) { ends.append(text); });
    }
    [[nodiscard]] Button &button(Kind kind)
    {
        return kind == Kind::Auto ? form.autoRun.cmdANStart : form.manual.cmdMNStart;
    }
    [[nodiscard]] static Kind other(Kind kind) { return kind == Kind::Auto ? Kind::Manual : Kind::Auto; }

    cTimer timer{pump};
    Runs runs{context, form.runs, form.browser, form.autoRun.cmdANStart, form.manual.cmdMNStart, timer};
    QList<Kind> started;
    QStringList ends;
    int stops = 0;
};

class EitherRun : public RunsTest, public testing::WithParamInterface<Kind>
{
  protected:
    const Kind kind = GetParam();
};
} // namespace

TEST_F(RunsTest, NoneIsUnderWayAtFirst)
{
    EXPECT_TRUE(runs.idle());
    EXPECT_FALSE(runs.mayGoOn());
    EXPECT_FALSE(runs.stop());
    EXPECT_FALSE(runs.stopOnPass().has_value());
    EXPECT_EQ(runs.reason(), QString());
}

TEST_P(EitherRun, ItsButtonSaysXFromTheClickOn)
{
    runs.showStop(kind);
    EXPECT_EQ(started, QList<Kind>{kind});
    EXPECT_EQ(button(kind).caption(), u"X"_s);
    EXPECT_EQ(button(other(kind)).caption(), u"Go"_s);
    EXPECT_TRUE(runs.idle()) << "it does not stand yet";
}

TEST_P(EitherRun, IsUnderWayOnceItHasBegun)
{
    runs.showStop(kind);
    runs.begin(kind);
    EXPECT_TRUE(runs.isUnderWay(kind));
    EXPECT_FALSE(runs.isUnderWay(other(kind)));
    EXPECT_TRUE(runs.mayGoOn(kind));
    EXPECT_TRUE(runs.mayGoOn());
    EXPECT_EQ(states.calls, 1);
}

TEST_P(EitherRun, MayNotGoOnWithoutABrowser)
{
    runs.begin(kind);
    form.browser.mbInitialized = false;
    EXPECT_FALSE(runs.mayGoOn(kind));
    EXPECT_FALSE(runs.mayGoOn());
}

TEST_P(EitherRun, XStopsItAndEndsItsWait)
{
    runs.showStop(kind);
    runs.begin(kind);
    form.browser.lblTrawlexTimer.setCaption(u"3"_s);
    pump.after(2000, [this] { runs.cancel(kind); });
    const qint64 start = pump.tickCount();
    timer.TimeIt(60);
    EXPECT_EQ(pump.tickCount() - start, 2000);
    EXPECT_TRUE(runs.isStopped(kind));
    EXPECT_FALSE(runs.mayGoOn(kind));
    EXPECT_EQ(button(kind).caption(), u"Go"_s);
    EXPECT_EQ(form.browser.lblTrawlexTimer.caption(), kind == Kind::Auto ? u"0"_s : u"3"_s);
    EXPECT_EQ(stops, 1);
    EXPECT_TRUE(runs.isUnderWay(kind)) << "until it has unwound";
}

TEST_P(EitherRun, ANewGoForgetsTheStop)
{
    runs.cancel(kind);
    runs.showStop(kind);
    EXPECT_FALSE(runs.isStopped(kind));
}

TEST_P(EitherRun, IsStoppedByWhoeverStopsTheOneUnderWay)
{
    runs.begin(kind);
    EXPECT_TRUE(runs.stop());
    EXPECT_TRUE(runs.isStopped(kind));
    EXPECT_FALSE(runs.isStopped(other(kind)));
    EXPECT_EQ(stops, 1);
}

TEST_P(EitherRun, StopsOnAPageThatPasses)
{
    runs.begin(kind);
    EXPECT_EQ(runs.stopOnPass(), kind);
    EXPECT_TRUE(runs.isStopped(kind));
    EXPECT_TRUE(runs.isStoppedOnPass(kind));
    EXPECT_FALSE(runs.isStoppedOnPass(other(kind)));
    runs.FinalizeProcess(u"Stopped (MCMNC)"_s);
    EXPECT_TRUE(runs.isStoppedOnPass(kind)) << "the next Go resumes behind the page";
    runs.forgetPass(kind);
    EXPECT_FALSE(runs.isStoppedOnPass(kind));
}

TEST_P(EitherRun, EndsWithAReasonThatIsTheFirstOne)
{
    runs.begin(kind);
    runs.stopFor(u"Stopped (ERROR, DATABASE IS LOCKED)"_s);
    runs.stopFor(u"Stopped (ERROR, NO BROWSER)"_s, u"never told"_s);
    EXPECT_EQ(runs.reason(), u"Stopped (ERROR, DATABASE IS LOCKED)"_s);
    runs.FinalizeProcess(runs.reason());
    EXPECT_TRUE(dialogs.told.isEmpty());
    runs.begin(kind);
    EXPECT_EQ(runs.reason(), QString()) << "of the run before";
}

TEST_P(EitherRun, LeavesEverythingReadyForTheNext)
{
    runs.showStop(kind);
    runs.begin(kind);
    runs.cancel(kind);
    statuses.clear();
    states.calls = 0;
    runs.FinalizeProcess(u"Stopped (USER)"_s);
    EXPECT_TRUE(runs.idle());
    EXPECT_FALSE(runs.isStopped(kind));
    EXPECT_EQ(button(kind).caption(), u"Go"_s);
    EXPECT_EQ(statuses, QStringList{u"Stopped (USER)"_s});
    EXPECT_EQ(ends, QStringList{u"Stopped (USER)"_s});
    EXPECT_EQ(states.calls, 1);
}

INSTANTIATE_TEST_SUITE_P(Runs, EitherRun, testing::Values(Kind::Auto, Kind::Manual),
                         [](const auto &row) { return row.param == Kind::Auto ? "Auto" : "Manual"; });

TEST_F(RunsTest, AReasonOutsideARunIsNone)
{
    runs.stopFor(u"Stopped (ERROR, NO BROWSER)"_s, u"text"_s);
    EXPECT_EQ(runs.reason(), QString());
    runs.FinalizeProcess(u"Stopped (FINISHED)"_s);
    EXPECT_TRUE(dialogs.told.isEmpty());
}

TEST_F(RunsTest, AMessageOfTheEndIsToldOnceTheControlsAreBack)
{
    runs.begin(Kind::Auto);
    runs.stopFor(u"Stopped (ERROR, DATABASE HAS BEEN MOVED OR DELETED)"_s, u"It is gone"_s);
    qsizetype toldBefore = 0;
    QObject::connect(&runs, &Runs::finalized, &form, [&] { toldBefore = dialogs.told.size(); });
    runs.FinalizeProcess(runs.reason());
    ASSERT_EQ(dialogs.told.size(), 1);
    EXPECT_EQ(toldBefore, 0);
    EXPECT_EQ(dialogs.told[0].title, u"* ERROR *"_s);
    EXPECT_EQ(dialogs.told[0].text, u"It is gone"_s);
    runs.FinalizeProcess(u"Stopped (FINISHED)"_s);
    EXPECT_EQ(dialogs.told.size(), 1) << "once";
}
