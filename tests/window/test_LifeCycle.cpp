// The life of the program: start, the end in every moment, and what is written when.
#include "support/ProgramFixture.h"
#include "window/WindowPlaces.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {
constexpr qint64 second = 1000;

class LifeTest : public ProgramTest
{
  protected:
    QStringList writtenKeys() const { return settings.written; }
};
} // namespace

TEST_F(LifeTest, TheFirstStartInAnEmptyFolderMakesADatabaseAndConnectsTheBrowser)
{
    load();
    EXPECT_TRUE(loaded);
    EXPECT_TRUE(QFile::exists(folder.filePath(u"Trawlex-0.mdb"_s)));
    EXPECT_TRUE(form().mbFormReady);
    EXPECT_TRUE(form().browser.mbInitialized);
    EXPECT_FALSE(form().browser.mbInternalBrowser);
    EXPECT_EQ(lastStatus(), u"Initialized"_s);
    EXPECT_FALSE(form().browser.cmdANInitialize.isEnabled());
    EXPECT_TRUE(form().autoRun.cmdANStart.isEnabled());
}

TEST_F(LifeTest, TheWindowStandsBeforeABrowserIsThereAndTheBrowserComesBesideIt)
{
    settings.preset("chkSAMoveToTopLeft", u"1"_s);
    whenLoaded = [this] {
        EXPECT_FALSE(form().browser.mbInitialized);
        EXPECT_FALSE(form().browser.cmdANInitialize.isEnabled());
        EXPECT_FALSE(form().autoRun.cmdANStart.isEnabled());
        program->startUp.settle();
        EXPECT_EQ(place.rect.topLeft(), QPoint(0, 0));
        EXPECT_TRUE(browser().geometry.isEmpty());
    };
    load();
    EXPECT_EQ(lastStatus(), u"Initialized"_s);
    EXPECT_EQ(browser().geometry.constLast(), u"left 400"_s);
}

TEST_F(LifeTest, TheUserMayEndTheProgramBeforeABrowserIsThere)
{
    whenLoaded = [this] { program->lifeCycle.end(); };
    load();
    EXPECT_FALSE(loaded);
    EXPECT_EQ(ends, 1);
    EXPECT_FALSE(statuses.contains(u"Initialized"_s));
}

TEST_F(LifeTest, TheFirstStartWritesTheDatabasesNameAlone)
{
    load();
    EXPECT_EQ(writtenKeys(), QStringList{u"mStartUp/DatabaseName"_s});
    EXPECT_EQ(settings.values.value(u"mStartUp/DatabaseName"_s), u"Trawlex-0.mdb"_s);
}

TEST_F(LifeTest, TheNumberBoxesHaveTheirDigits)
{
    load();
    const std::pair<const NumberBox *, int> digits[] = {
        {&form().series.incMNAutoUrl, 10},      {&form().limits.incSFMinFileSize, 6},
        {&form().limits.incNotFoundMinSize, 6}, {&form().limits.incSMAIEWidth, 4},
        {&form().limits.incSMAIEHeight, 4},     {&form().limits.incSFMinGraphicSize, 6},
        {&form().limits.incSMAMAutoTxtElng, 4}, {&form().limits.incSMDMinHtmlSize, 6},
        {&form().autoRun.incANTiming, 3},       {&form().limits.incSmRPPause, 3},
        {&form().manual.incMNDLTiming, 3}};
    for (const auto &[box, count] : digits)
        EXPECT_EQ(box->digits(), count) << box->name().toStdString();
}

TEST_F(LifeTest, WithTheOptionAtOneTheWindowGoesToTheStandardPositionAndTheBoxShowsIt)
{
    settings.preset("chkSAMoveToTopLeft", u"1"_s);
    load();
    EXPECT_EQ(form().options.chkSMV(4).value(), 0);
    program->startUp.settle();
    EXPECT_EQ(form().options.chkSMV(4).value(), 1);
    EXPECT_EQ(place.rect, QRect(0, 0, 400, 560));
    EXPECT_EQ(browser().geometry, (QStringList{u"top 0"_s, u"width 380"_s, u"height 440"_s, u"left 400"_s}));
    EXPECT_TRUE(form().mbMainShown);
    EXPECT_FALSE(writtenKeys().contains(u"SecFrmSearch/chkSAMoveToTopLeft"_s));
}

TEST_F(LifeTest, TheOptionsDefaultIsOne)
{
    settings.values.remove(u"SecFrmSearch/chkSAMoveToTopLeft"_s);
    load();
    program->startUp.settle();
    EXPECT_EQ(form().options.chkSMV(4).value(), 1);
}

TEST_F(LifeTest, OtherwiseTheWindowComesBackToWhereItWasSaved)
{
    settings.values.insert(u"frmSearch/NSWE_L"_s, u"1500"_s);
    settings.values.insert(u"frmSearch/NSWE_T"_s, u"300"_s);
    load();
    program->startUp.settle();
    EXPECT_EQ(place.rect, QRect(100, 20, 400, 560));
    EXPECT_EQ(form().options.chkSMV(4).value(), 0);
    EXPECT_TRUE(browser().geometry.isEmpty());
}

TEST_F(LifeTest, AFirstStartComesUpOnTop)
{
    load();
    program->startUp.settle();
    pump.doEvents();
    EXPECT_EQ(place.onTopCalls, QList<bool>{true});
    EXPECT_EQ(settings.values.value(u"Window Position/frmSearch"_s), u"1"_s);
    EXPECT_EQ(settings.of("mnuANStatusKeepOnTop"), u"True"_s);
}

TEST_F(LifeTest, ItDoesNotComeUpOnTopWhereTheUserHasTakenItDown)
{
    settings.preset("mnuANStatusKeepOnTop", u"False"_s);
    load();
    program->startUp.settle();
    pump.doEvents();
    EXPECT_TRUE(place.onTopCalls.isEmpty());
}

// The end.

TEST_F(LifeTest, TheEndWritesTheBoxesInTheirOrderAndThePlace)
{
    load();
    settings.written.clear();
    program->lifeCycle.end();
    EXPECT_EQ(ends, 1);
    const QStringList keys{
        u"optFilesSites"_s,      u"cboMCMNCMask"_s,      u"cboSavedUrl"_s,        u"udcMNTimin"_s,
        u"npTimimg"_s,           u"udMNGenUrlOne"_s,     u"udcNotFoundMinSize"_s, u"incSMAIEHeight"_s,
        u"incSMAIEWidth"_s,      u"udcSFMinFileS"_s,     u"incMNStep"_s,          u"incSFMinGraphicSize"_s,
        u"incSMAMAutoTxtElng"_s, u"incSMDMinHtmlSize"_s, u"incSmRPPause"_s,       u"incMNDLTiming"_s};
    QStringList expected;
    for (const QString &key : keys)
        expected.append(u"SecFrmSearch/"_s + key);
    for (const auto *key : {"W", "H", "L", "T"})
        expected.append(u"frmSearch/NSWE_"_s + QLatin1StringView(key));
    EXPECT_EQ(settings.written, expected);
    EXPECT_EQ(settings.of("cboMCMNCMask"), u"-1"_s);
    EXPECT_EQ(settings.of("udMNGenUrlOne"), u"0000000001"_s);
    EXPECT_EQ(settings.values.value(u"frmSearch/NSWE_W"_s), u"6000"_s);
    EXPECT_EQ(settings.values.value(u"frmSearch/NSWE_L"_s), u"4500"_s);
    EXPECT_FALSE(program->browser.isSet());
    EXPECT_FALSE(program->database.isSet());
}

TEST_F(LifeTest, EndingTwiceIsEndingOnce)
{
    load();
    program->lifeCycle.end();
    program->lifeCycle.end();
    EXPECT_EQ(ends, 1);
}

TEST_F(LifeTest, AsksBeforeItEndsWhereTheOptionSaysSo)
{
    load();
    dialogs.answer = UserDialogs::Answer::No;
    form().browser.picANEnd.mouseDown(MouseButton::Left);
    ASSERT_EQ(dialogs.asked.size(), 1);
    EXPECT_EQ(dialogs.asked[0].title, u"Program will terminate"_s);
    EXPECT_EQ(dialogs.asked[0].text, u"Shut down Trawlex?"_s);
    EXPECT_EQ(dialogs.lastIcon, UserDialogs::Icon::Critical);
    EXPECT_EQ(ends, 0);
    dialogs.answer = UserDialogs::Answer::Yes;
    form().browser.picANEnd.mouseDown(MouseButton::Left);
    EXPECT_EQ(ends, 1);
}

TEST_F(LifeTest, EndsWithoutAQuestionWhereTheOptionIsOff)
{
    load();
    form().options.chkSMA(7).setValue(0);
    program->lifeCycle.Terminate();
    EXPECT_TRUE(dialogs.asked.isEmpty());
    EXPECT_EQ(ends, 1);
}

TEST_F(LifeTest, TheRightButtonOnTheEndMarkOrientsTheWindows)
{
    load();
    form().browser.picANEnd.mouseDown(MouseButton::Right);
    EXPECT_EQ(place.rect.topLeft(), QPoint(0, 0));
    EXPECT_EQ(ends, 0);
}

namespace {
class EndInARun : public RunTest
{
};
} // namespace

TEST_F(EndInARun, TerminateInTheMiddleOfAWaitStopsTheRunAndEndsOnceItHasUnwound)
{
    form().options.chkSMA(7).setValue(0);
    form().outputs.chkSaveSummary.setValue(1);
    showResults(makeSites(3));
    FakeBrowser &window = browser();
    int endsInTheWait = -1;
    pump.after(7300, [&] {
        program->lifeCycle.Terminate();
        endsInTheWait = ends;
    });
    settings.written.clear();
    clickStart();
    EXPECT_EQ(endsInTheWait, 0);
    EXPECT_EQ(lastStatus(), u"Stopped (USER)"_s);
    EXPECT_EQ(window.stops, 1);
    EXPECT_EQ(rows(u"SiteSummary"_s).size(), 1);
    EXPECT_EQ(ends, 0);
    pump.doEvents();
    EXPECT_EQ(ends, 1);
    EXPECT_EQ(settings.of("npTimimg"), u"005"_s);
    EXPECT_EQ(window.navigated.size(), 2);
}

TEST_F(EndInARun, TheEndInALongCommandCancelsItAndComesOnceItHasUnwoundWithAllWritten)
{
    int endsInside = -1;
    settings.written.clear();
    pump.after(0, [&] {
        program->lifeCycle.end();
        endsInside = ends;
    });
    EXPECT_TRUE(program->longWork.run(u"Saving"_s, [&] {
        EXPECT_FALSE(program->longWork.goOn(1));
        pump.doEvents();
        EXPECT_TRUE(program->database.isSet()) << "what stands on the stack keeps its objects";
    }));
    EXPECT_EQ(endsInside, 0);
    EXPECT_EQ(ends, 0);
    pump.doEvents();
    EXPECT_EQ(ends, 1);
    EXPECT_FALSE(program->database.isSet());
    EXPECT_EQ(settings.of("npTimimg"), u"005"_s);
}

TEST_F(EndInARun, TheEndInAnImportTakesItBackAndWritesTheOptions)
{
    QTemporaryDir elsewhere;
    {
        RecordingLog log;
        DatabaseHolder other;
        makeDatabase(other, log, elsewhere.path());
        addRow(*other, u"SiteSummary"_s, {{u"Url"_s, u"http://a.com"_s}});
        dialogs.fileAnswer = other->DatabasePath();
    }
    form().import.cmdSFISelDatabase.setEnabled(true);
    form().import.cmdSFISelDatabase.click();
    form().import.chkSFIAllData.setValue(1);
    const QString path = database().DatabasePath();
    settings.written.clear();
    pump.after(0, [&] { program->lifeCycle.end(); });
    form().import.cmdSFIImport.setEnabled(true);
    form().import.cmdSFIImport.click();
    EXPECT_EQ(lastStatus(), u"Import cancelled, nothing imported"_s);
    EXPECT_TRUE(rows(u"SiteSummary"_s).isEmpty());
    EXPECT_EQ(ends, 0);
    pump.doEvents();
    EXPECT_EQ(ends, 1);
    EXPECT_TRUE(form().mbFormReady);
    EXPECT_EQ(settings.of("npTimimg"), u"005"_s);
    EXPECT_TRUE(dialogs.errors.isEmpty());
}

TEST_F(EndInARun, ANoToTheQuestionLetsTheRunGoOn)
{
    dialogs.answer = UserDialogs::Answer::No;
    showResults(makeSites(1));
    pump.after(2 * second, [&] { program->lifeCycle.Terminate(); });
    const qint64 start = pump.seconds();
    clickStart();
    EXPECT_EQ(pump.seconds() - start, 5);
    EXPECT_EQ(lastStatus(), u"Stopped (FINISHED)"_s);
    EXPECT_FALSE(program->lifeCycle.isEnding());
}

TEST_F(EndInARun, TerminateInTheWaitForAnErrorPagesServerDoesNotWaitForIt)
{
    form().options.chkSMA(7).setValue(0);
    form().limits.incNotFoundMinSize.setText(u"001000"_s);
    showResults(makeSites(2));
    browser().pages[u"http://www.site1.com/"_s].html = u"404"_s;
    pump.after(5600, [&] { program->lifeCycle.Terminate(); });
    const qint64 start = pump.tickCount();
    clickStart();
    pump.doEvents();
    EXPECT_EQ(pump.tickCount() - start, 5600);
    EXPECT_EQ(ends, 1);
}

TEST_F(EndInARun, CancelInAnErrorBoxEndsTheProgramAndWritesNothing)
{
    form().options.chkSMV(1).setValue(1);
    qputenv("LOGFILES", folder.path().toUtf8());
    dialogs.errorAnswer = UserDialogs::Answer::Cancel;
    form().outputs.chkSaveSummary.setValue(1);
    showResults(makeSites(3));
    browser().pages[u"http://www.site1.com/"_s].readingFails = RuntimeError(50'001, u"took too long"_s);
    settings.written.clear();
    clickStart();
    pump.finish();
    qunsetenv("LOGFILES");
    EXPECT_EQ(ends, 1);
    EXPECT_TRUE(settings.written.isEmpty()) << settings.written.join(u' ').toStdString();
    EXPECT_EQ(lastStatus(), u"Stopped (USER)"_s);
}

TEST_F(EndInARun, AFailingLogLeavesAllControlsUsable)
{
    form().options.chkSMV(1).setValue(1);
    qputenv("LOGFILES", "/nowhere/at/all");
    form().saved.cmdANSavedGo.setEnabled(false);
    form().outputs.txtANStartTag.setEnabled(false);
    program->log.ErrorLogger(5, u"x"_s, u"m"_s, u"l"_s);
    qunsetenv("LOGFILES");
    EXPECT_TRUE(form().saved.cmdANSavedGo.isEnabled());
    EXPECT_TRUE(form().outputs.txtANStartTag.isEnabled());
    EXPECT_TRUE(dialogs.errors.isEmpty());
}

// Places of windows.

namespace {
struct PlaceCase
{
    const char *tag;
    QString left, top;
    QPoint at;
};

void PrintTo(const PlaceCase &row, std::ostream *out)
{
    *out << row.tag;
}

class Places : public testing::TestWithParam<PlaceCase>
{
};
} // namespace

TEST_P(Places, ComeBackOntoTheScreen)
{
    MemorySettings settings;
    if (!GetParam().left.isEmpty())
        settings.SaveSetting(u"frmSearch"_s, u"NSWE_L"_s, GetParam().left);
    if (!GetParam().top.isEmpty())
        settings.SaveSetting(u"frmSearch"_s, u"NSWE_T"_s, GetParam().top);
    const QRect place = AlignFF(settings, u"frmSearch"_s, QRect(7, 7, 400, 300), QRect(0, 0, 1000, 800));
    EXPECT_EQ(place.topLeft(), GetParam().at);
    EXPECT_EQ(place.size(), QSize(400, 300));
}

INSTANTIATE_TEST_SUITE_P(Windows, Places,
                         testing::Values(PlaceCase{"stored", u"1500"_s, u"750"_s, {100, 50}},
                                         PlaceCase{"never stored: centred", u""_s, u""_s, {300, 250}},
                                         PlaceCase{"at the bounds", u"15000"_s, u"12000"_s, {0, 0}},
                                         PlaceCase{"the last place on the screen", u"14985"_s, u"11985"_s, {999, 799}},
                                         PlaceCase{"beyond the screen", u"99999999999"_s, u"1e300"_s, {0, 0}},
                                         PlaceCase{"negative", u"-150"_s, u"-1"_s, {0, 0}},
                                         PlaceCase{"no number", u"abc"_s, u"nan"_s, {0, 0}}),
                         [](const auto &row) { return "row" + std::to_string(row.index); });

TEST(Windows, ComeBackToScreensThatDoNotBeginAtTheCorner)
{
    struct Case
    {
        QRect screen;
        QPoint stored, at;
    };
    const QRect right(1920, 0, 1000, 800);
    const QRect left(-1000, -200, 1000, 800);
    const QRect docked(70, 30, 930, 770);
    for (const auto &[screen, stored, at] : {Case{right, {2500, 100}, {2500, 100}},
                                             {right, {2919, 799}, {2919, 799}},
                                             {right, {2920, 800}, {1920, 0}},
                                             {right, {100, 100}, {1920, 100}},
                                             {left, {-900, -150}, {-900, -150}},
                                             {left, {-1, 599}, {-1, 599}},
                                             {left, {0, 600}, {-1000, -200}},
                                             {docked, {990, 790}, {990, 790}},
                                             {docked, {10, 10}, {70, 30}}}) {
        MemorySettings settings;
        const QRect window(stored, QSize(400, 300));
        SaveFF(settings, u"frmFoto"_s, window);
        EXPECT_EQ(AlignFF(settings, u"frmFoto"_s, QRect(7, 7, 400, 300), screen).topLeft(), at);
        const QRect first = AlignFF(settings, u"frmWBare"_s, QRect(7, 7, 400, 300), screen);
        EXPECT_LE((first.center() - screen.center()).manhattanLength(), 2) << "never stored: centred";
    }
}

TEST(Windows, PlacesAreKeptInTwipsAndOnTopAsOneOrZero)
{
    MemorySettings settings;
    SaveFF(settings, u"frmSearch"_s, QRect(10, 20, 300, 400));
    EXPECT_EQ(settings.values.value(u"frmSearch/NSWE_W"_s), u"4500"_s);
    EXPECT_EQ(settings.values.value(u"frmSearch/NSWE_H"_s), u"6000"_s);
    EXPECT_EQ(settings.values.value(u"frmSearch/NSWE_L"_s), u"150"_s);
    EXPECT_EQ(settings.values.value(u"frmSearch/NSWE_T"_s), u"300"_s);
    saveOnTop(settings, u"frmSearch"_s, false);
    EXPECT_EQ(settings.values.value(u"Window Position/frmSearch"_s), u"0"_s);
}
