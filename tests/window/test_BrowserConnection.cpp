// Connecting a browser: which one, how it is started, what the user is asked, and its going.
#include "support/ProgramFixture.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {
class ConnectionTest : public ProgramTest
{
  protected:
    /// An executable file in the test's folder.
    QString makeProgram(const QString &name)
    {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return file.fileName();
    }
    void startWithoutBrowser()
    {
        browsers.running.reset();
        load();
    }
};
} // namespace

TEST_F(ConnectionTest, ARunningWindowIsTakenWithoutStartingAnything)
{
    load();
    EXPECT_TRUE(form().browser.mbInitialized);
    EXPECT_TRUE(browsers.started.isEmpty());
}

TEST_F(ConnectionTest, TheBuiltInBrowserIsTheInternalOne)
{
    browsers.internal = std::make_shared<FakeBrowser>(pump);
    settings.preset("lstDCoTmr", u"0"_s);
    load();
    EXPECT_TRUE(form().browser.mbInitialized);
    EXPECT_TRUE(form().browser.mbInternalBrowser);
    program->navigation.OpenSite(u"www.tea.com"_s);
    EXPECT_EQ(browsers.internal->navigated, QStringList{u"http://www.tea.com"_s});
    EXPECT_TRUE(browser().navigated.isEmpty());
}

TEST_F(ConnectionTest, HowLongAPageMayKeepAReadWaitingIsASetting)
{
    struct Row
    {
        const char *set;
        int milliseconds;
    };
    for (const auto &[set, milliseconds] :
         {Row{"", 5000}, {"2500", 2500}, {"soon", 5000}, {"0", 100}, {"-7", 100}, {"900000", 30'000}}) {
        settings.preset("scriptLimit", QString::fromLatin1(set));
        load();
        EXPECT_EQ(browser().scriptLimit.count(), milliseconds) << set;
        browsers.internal = std::make_shared<FakeBrowser>(pump);
        form().browser.cboANWBSelect.setListIndex(0);
        program->connection.InitializeIE();
        EXPECT_EQ(browsers.internal->scriptLimit.count(), milliseconds) << set << ", built-in";
        form().browser.cboANWBSelect.setListIndex(1);
    }
}

TEST_F(ConnectionTest, WithoutABuiltInBrowserItIsNotInitialized)
{
    settings.preset("lstDCoTmr", u"0"_s);
    load();
    EXPECT_FALSE(form().browser.mbInitialized);
    EXPECT_FALSE(form().browser.mbInternalBrowser);
    EXPECT_EQ(lastStatus(), u"Not initialized"_s);
    EXPECT_TRUE(form().browser.cmdANInitialize.isEnabled());
}

TEST_F(ConnectionTest, ABrowserThatDoesNotRunIsStartedAndTakenAsSoonAsItAnswers)
{
    browsers.program = makeProgram(u"chromium"_s);
    browsers.startsAfter = 3000;
    const qint64 start = pump.tickCount();
    startWithoutBrowser();
    EXPECT_TRUE(form().browser.mbInitialized);
    EXPECT_EQ(browsers.started, QStringList{browsers.program});
    EXPECT_LE(pump.tickCount() - start, 3400);
}

TEST_F(ConnectionTest, ABrowserThatCannotBeStartedIsToldWithItsReason)
{
    browsers.program = makeProgram(u"chromium"_s);
    browsers.startFails = RuntimeError(75, u"Cannot make the folder /x."_s);
    startWithoutBrowser();
    EXPECT_FALSE(form().browser.mbInitialized);
    EXPECT_EQ(lastStatus(), u"Not initialized: Cannot make the folder /x."_s);
}

TEST_F(ConnectionTest, AfterTenSecondsWithoutAnAnswerItIsGivenUpWithoutAMessage)
{
    browsers.program = makeProgram(u"chromium"_s);
    const qint64 start = pump.tickCount();
    startWithoutBrowser();
    EXPECT_FALSE(form().browser.mbInitialized);
    EXPECT_EQ(pump.tickCount() - start, 10'000);
    EXPECT_TRUE(dialogs.told.isEmpty());
    EXPECT_EQ(lastStatus(), u"Not initialized"_s);
}

TEST_F(ConnectionTest, WithoutAProgramTheUserIsAskedForOneAndThenTold)
{
    startWithoutBrowser();
    ASSERT_EQ(dialogs.files.size(), 1);
    EXPECT_EQ(dialogs.files[0].title, u"Locate Internet Explorer"_s);
    ASSERT_EQ(dialogs.told.size(), 1);
    EXPECT_EQ(dialogs.told[0].title, u"* ERROR * Can Not Initialize * ERROR *"_s);
    EXPECT_EQ(dialogs.told[0].text, u"Trawlex Requires Microsoft Intenet Explorer Version 5.5 Or Later."_s);
    EXPECT_TRUE(browsers.started.isEmpty());
    EXPECT_TRUE(form().browser.cmdANInitialize.isEnabled());
    EXPECT_FALSE(form().autoRun.cmdANStart.isEnabled());
}

TEST_F(ConnectionTest, AChoiceThatCannotBeDrivenIsNone)
{
    dialogs.fileAnswer = makeProgram(u"notepad"_s);
    startWithoutBrowser();
    EXPECT_EQ(settings.of("IEPath"), u"(none)"_s);
    EXPECT_EQ(dialogs.told.size(), 1);
}

TEST_F(ConnectionTest, AChosenProgramIsStoredAndTakesEffectAtTheNextStart)
{
    dialogs.fileAnswer = makeProgram(u"Chromium"_s);
    startWithoutBrowser();
    EXPECT_EQ(settings.of("IEPath"), dialogs.fileAnswer);
    EXPECT_EQ(browsers.started, QStringList{QString()});
    EXPECT_TRUE(dialogs.told.isEmpty());
    browsers.started.clear();
    program.reset();
    startWithoutBrowser();
    EXPECT_EQ(browsers.started, QStringList{dialogs.fileAnswer});
}

TEST_F(ConnectionTest, AStoredProgramIsTakenUntestedWhereNoOtherIsInstalled)
{
    settings.preset("IEPath", u"/gone/chromium"_s);
    startWithoutBrowser();
    EXPECT_EQ(browsers.started, QStringList{u"/gone/chromium"_s});
}

TEST_F(ConnectionTest, AStoredProgramThatIsThereComesBeforeTheInstalledOne)
{
    browsers.program = makeProgram(u"chromium"_s);
    const QString own = makeProgram(u"own-chromium"_s);
    settings.preset("IEPath", own);
    startWithoutBrowser();
    EXPECT_EQ(browsers.started, QStringList{own});
}

TEST_F(ConnectionTest, TheButtonSaysWhatItDoesAndIsOffMeanwhile)
{
    startWithoutBrowser();
    browsers.program = makeProgram(u"chromium"_s);
    browsers.startsAfter = 1000;
    bool enabled = true;
    pump.after(500, [&] { enabled = form().browser.cmdANInitialize.isEnabled(); });
    statuses.clear();
    form().browser.cmdANInitialize.click();
    EXPECT_EQ(statuses, (QStringList{u"Initializing browser"_s, u"Initialized"_s}));
    EXPECT_FALSE(enabled);
}

TEST_F(ConnectionTest, TerminateWhileABrowserIsAwaitedEndsAtOnce)
{
    browsers.running.reset();
    browsers.program = makeProgram(u"chromium"_s);
    pump.after(1000, [&] { program->lifeCycle.end(); });
    const qint64 start = pump.tickCount();
    startWithoutBrowser();
    EXPECT_FALSE(loaded);
    EXPECT_EQ(ends, 1);
    EXPECT_LE(pump.tickCount() - start, 1200);
}

TEST_F(ConnectionTest, ChoosingTheOtherBrowserConnectsItAndStoresTheChoice)
{
    browsers.internal = std::make_shared<FakeBrowser>(pump);
    load();
    statuses.clear();
    form().browser.cboANWBSelect.setListIndex(0);
    EXPECT_TRUE(form().browser.mbInternalBrowser);
    EXPECT_EQ(lastStatus(), u"Initialized"_s);
    EXPECT_EQ(settings.of("lstDCoTmr"), u"0"_s);
}

TEST_F(ConnectionTest, ChoosingTheBrowserThatIsChosenAlreadyConnectsItAgain)
{
    startWithoutBrowser();
    EXPECT_FALSE(form().browser.mbInitialized);
    browsers.running = std::make_shared<FakeBrowser>(pump);
    statuses.clear();
    form().browser.cboANWBSelect.choose(1);
    EXPECT_EQ(statuses, (QStringList{u"Initializing browser"_s, u"Initialized"_s}));
    EXPECT_TRUE(form().browser.mbInitialized);
    EXPECT_TRUE(form().autoRun.cmdANStart.isEnabled());
}

TEST_F(ConnectionTest, AnotherChoiceWhileABrowserIsAwaitedReplacesTheAttempt)
{
    browsers.internal = std::make_shared<FakeBrowser>(pump);
    startWithoutBrowser();
    browsers.program = makeProgram(u"chromium"_s);
    pump.after(1000, [&] { form().browser.cboANWBSelect.setListIndex(0); });
    statuses.clear();
    form().browser.cmdANInitialize.click();
    EXPECT_TRUE(form().browser.mbInitialized);
    EXPECT_TRUE(form().browser.mbInternalBrowser);
    EXPECT_EQ(lastStatus(), u"Initialized"_s);
    EXPECT_EQ(statuses.count(u"Not initialized"_s), 0);
}

TEST_F(ConnectionTest, TheBrowsersClosingLeavesOnlyTheWayToConnectAgain)
{
    load();
    browser().close();
    EXPECT_FALSE(form().browser.mbInitialized);
    EXPECT_EQ(lastStatus(), u"Not initialized"_s);
    EXPECT_TRUE(form().browser.cmdANInitialize.isEnabled());
    EXPECT_FALSE(form().autoRun.cmdANStart.isEnabled());
    EXPECT_FALSE(program->browser.isSet());
}

TEST_F(ConnectionTest, PopUpsAreRefusedWhileTheOptionIsOn)
{
    load();
    EXPECT_TRUE(browser().popUpIsRefused());
    form().options.chkSMV(2).setValue(0);
    EXPECT_FALSE(browser().popUpIsRefused());
}

TEST_F(ConnectionTest, TheBuiltInBrowserNeverOpensASecondWindow)
{
    browsers.internal = std::make_shared<FakeBrowser>(pump);
    settings.preset("lstDCoTmr", u"0"_s);
    load();
    form().options.chkSMV(2).setValue(0);
    EXPECT_TRUE(browsers.internal->popUpIsRefused());
}

TEST_F(ConnectionTest, TheStandardPositionTakesTheSizesThatAreSet)
{
    load();
    form().limits.incSMAIEWidth.setText(u"0051"_s);
    form().limits.incSMAIEHeight.setText(u"0050"_s); // too small: unset
    program->connection.SetStandardPosition();
    EXPECT_EQ(browser().geometry, (QStringList{u"top 0"_s, u"width 51"_s, u"height 440"_s, u"left 400"_s}));
    browser().geometry.clear();
    form().limits.incSMAIEWidth.setText(u"0050"_s);
    program->connection.SetStandardPosition();
    EXPECT_TRUE(browser().geometry.contains(u"width 380"_s)) << browser().geometry.join(u", "_s).toStdString();
}

TEST_F(ConnectionTest, TheStandardPositionDoesNothingWithoutABrowserAndMovesOnlyUsWithTheBuiltInOne)
{
    startWithoutBrowser();
    program->connection.SetStandardPosition();
    EXPECT_EQ(place.rect.topLeft(), QPoint(300, 200));
    browsers.internal = std::make_shared<FakeBrowser>(pump);
    form().browser.cboANWBSelect.setListIndex(0);
    program->connection.SetStandardPosition();
    EXPECT_EQ(place.rect.topLeft(), QPoint(0, 0));
    EXPECT_TRUE(browsers.internal->geometry.isEmpty());
}
