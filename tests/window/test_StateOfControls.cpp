// Which controls may be used in which state: a walk through the program's modes.
#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {
enum Tab { Auto = 0, Manual = 1, Settings = 2 };

class StatesTest : public ProgramTest
{
  protected:
    StatesTest() { load(); }
    void apply() { program->states.SetStateOfControls(); }
    void expect(bool enabled, std::initializer_list<const char *> names)
    {
        for (const char *name : names)
            EXPECT_EQ(form().control(QString::fromLatin1(name))->isEnabled(), enabled) << name;
    }
    void savedUrls(int count)
    {
        for (int i = 0; i < count; ++i)
            form().cboANSavedUrls.addItem(u"Results-%1"_s.arg(100 + i));
        apply();
    }
    void criteriaSet()
    {
        form().cboANMCMNCMask.addItem(u"Criteria-0"_s);
        form().cboANMCMNCMask.setListIndex(0);
    }
};
} // namespace

TEST_F(StatesTest, NothingHappensBeforeTheFormIsReady)
{
    form().mbFormReady = false;
    form().mbInitialized = false;
    apply();
    expect(true, {"cmdANStart"});
    expect(false, {"cmdANInitialize"});
}

TEST_F(StatesTest, WithoutABrowserOnlyTheWayToConnectAndTheSwitchesRespond)
{
    form().mbInitialized = false;
    apply();
    expect(true, {"cmdANInitialize", "cboANWBSelect", "sstSearch", "picStatus", "picANEnd", "chkSMA(0)", "chkSMD(8)",
                  "chkSMV(4)", "chkPutInOneFile", "incANTiming", "lblTrawlexTimer"});
    expect(false, {"cmdANStart",        "cmdMNStart",      "cboANList",        "cboANSavedUrls", "cmdANSavedAdd",
                   "cmdANSavedGo",      "cmdANSavedMinus", "chkUseSavedUrls",  "chkSaveSummary", "chkSavePages",
                   "chkSaveEmail",      "chkSavePhone",    "chkSaveUrl",       "chkMCMNCStop",   "chkMustContain",
                   "chkMustNotContain", "chkMCCS",         "chkMNCCS",         "cboANMCMNCMask", "cmdANMCMaskAdd",
                   "cmdANMCMaskMinus",  "cmdANAddMC",      "cmdANAddMNC",      "txtANStartTag",  "txtANStopTag",
                   "cboANSaveType",     "chkUrlBlocking",  "chkEmailBlocking", "lblAutoIncrPos", "lblAutoPgUrls",
                   "lblAutoCollect",    "incMNAutoUrl",    "incMNStep",        "chkSaveToSS",    "chkSaveToFile"});
}

TEST_F(StatesTest, IdleOnTheAutoTab)
{
    expect(true,
           {"cmdANStart", "cboANList", "chkSaveSummary", "chkSavePages", "chkSaveEmail", "chkSavePhone", "chkSaveUrl",
            "chkMCMNCStop", "cmdANSavedAdd", "chkSMA(3)", "lblAutoCollect", "lblAutoPgUrls", "lblAutoIncrPos"});
    expect(false, {"cmdANInitialize", "chkUseSavedUrls", "cboANSavedUrls", "cmdANSavedMinus", "cmdANSavedGo",
                   "txtANStartTag", "txtANStopTag", "cboANSaveType", "chkMustContain", "chkMustNotContain",
                   "chkUrlBlocking", "chkEmailBlocking"});
    EXPECT_EQ(form().lblTrawlexTimer.backColor(), Colours::ButtonFace);
    EXPECT_EQ(form().lblTrawlexTimer.foreColor(), Colours::WindowText);
}

TEST_F(StatesTest, AnAutoRunSwitchesOffWhatWouldChangeIt)
{
    savedUrls(2);
    form().chkSavePages.setValue(1);
    form().mbANRunning = true;
    apply();
    expect(true, {"cmdANStart", "lblAutoCollect"});
    expect(false,
           {"cmdMNStart", "cboANList", "chkSaveSummary", "chkSavePages", "chkSaveEmail", "chkSavePhone", "chkSaveUrl",
            "chkMCMNCStop", "chkUseSavedUrls", "cboANSavedUrls", "cmdANSavedAdd", "cmdANSavedMinus", "cmdANSavedGo",
            "txtANStartTag", "txtANStopTag", "cboANSaveType", "chkSMA(3)", "lblAutoPgUrls", "lblAutoIncrPos"});
    EXPECT_EQ(form().lblTrawlexTimer.backColor(), Colours::Red);
    EXPECT_EQ(form().lblTrawlexTimer.foreColor(), Colours::White);
}

TEST_F(StatesTest, AManualRunLeavesNoGoOnTheAutoTab)
{
    form().mbMNRunning = true;
    apply();
    expect(false, {"cmdANStart", "cboANList", "chkSaveSummary"});
    EXPECT_EQ(form().lblTrawlexTimer.backColor(), Colours::Blue);
    EXPECT_EQ(form().lblTrawlexTimer.foreColor(), Colours::White);
}

TEST_F(StatesTest, UncheckingTheLastOfTheSixOutputsClearsTheCriteria)
{
    for (CheckBox *box : {&form().chkSaveSummary, &form().chkSavePages, &form().chkSaveUrl, &form().chkSaveEmail,
                          &form().chkSavePhone, &form().chkMCMNCStop}) {
        box->setValue(1);
        for (CheckBox *test : {&form().chkMustContain, &form().chkMCCS, &form().chkMustNotContain, &form().chkMNCCS})
            test->setValue(1);
        apply();
        expect(true, {"chkMustContain", "chkMustNotContain"});
        EXPECT_EQ(form().chkMustContain.value(), 1);
        box->setValue(0);
        for (const CheckBox *test :
             {&form().chkMustContain, &form().chkMCCS, &form().chkMustNotContain, &form().chkMNCCS})
            EXPECT_EQ(test->value(), 0) << box->name().toStdString();
        expect(false, {"chkMustContain", "chkMustNotContain"});
    }
}

TEST_F(StatesTest, CriteriaNeedTheirBoxAndASet)
{
    form().chkSaveSummary.setValue(1);
    expect(false, {"cmdANMCMaskAdd", "cmdANMCMaskMinus", "cboANMCMNCMask", "lstANMC", "lstANMNC"});
    form().chkMustContain.setValue(1);
    expect(true, {"cmdANMCMaskAdd"});
    expect(false,
           {"cmdANMCMaskMinus", "cboANMCMNCMask", "lstANMC", "cmdANAddMC", "lstANMCAllAny", "chkMCCS", "lstANMNC"});
    criteriaSet();
    apply();
    expect(true, {"cmdANMCMaskAdd", "cmdANMCMaskMinus", "cboANMCMNCMask", "lstANMC", "cmdANAddMC", "lstANMCAllAny",
                  "chkMCCS"});
    expect(false, {"lstANMNC", "cmdANAddMNC", "lstANMNCAllAny", "chkMNCCS"});
    form().chkMustContain.setValue(0);
    form().chkMustNotContain.setValue(1);
    expect(true, {"cmdANMCMaskMinus", "cboANMCMNCMask", "lstANMNC", "cmdANAddMNC", "lstANMNCAllAny", "chkMNCCS"});
    expect(false, {"lstANMC", "cmdANAddMC", "lstANMCAllAny", "chkMCCS"});
}

TEST_F(StatesTest, CriteriaMayBeChangedInTheMiddleOfARun)
{
    form().chkSaveSummary.setValue(1);
    form().chkMustContain.setValue(1);
    criteriaSet();
    form().mbANRunning = true;
    apply();
    expect(true, {"lstANMC", "cmdANAddMC", "cboANMCMNCMask", "cmdANMCMaskAdd", "chkMustContain"});
}

TEST_F(StatesTest, TagsAndTypeFollowTheSavingOfPages)
{
    form().chkSavePages.setValue(1);
    expect(true, {"txtANStartTag", "txtANStopTag", "cboANSaveType"});
    form().chkSavePages.setValue(0);
    expect(false, {"txtANStartTag", "txtANStopTag", "cboANSaveType"});
}

TEST_F(StatesTest, SavedUrlsInUseCannotBeChanged)
{
    savedUrls(2);
    expect(true, {"chkUseSavedUrls", "cboANSavedUrls", "cmdANSavedAdd"});
    expect(false, {"cmdANSavedMinus", "cmdANSavedGo"}); // nothing chosen
    form().cboANSavedUrls.setListIndex(1);
    expect(true, {"cmdANSavedMinus", "cmdANSavedGo"});
    form().chkUseSavedUrls.setValue(1);
    expect(true, {"chkUseSavedUrls"});
    expect(false, {"cboANSavedUrls", "cmdANSavedAdd", "cmdANSavedMinus", "cmdANSavedGo"});
}

TEST_F(StatesTest, WithoutSavedUrlsTheirBoxGoesOff)
{
    savedUrls(1);
    form().chkUseSavedUrls.setValue(1);
    form().cboANSavedUrls.clear();
    apply();
    EXPECT_EQ(form().chkUseSavedUrls.value(), 0);
    expect(false, {"chkUseSavedUrls", "cboANSavedUrls"});
    expect(true, {"cmdANSavedAdd"});
}

TEST_F(StatesTest, PassUrlsOnShowCanNeitherBeAddedToNorSavedTo)
{
    savedUrls(1);
    form().chkSaveUrl.setValue(1);
    form().mbPassUrlsLoaded = true;
    apply();
    EXPECT_EQ(form().chkSaveUrl.value(), 0);
    expect(false, {"chkSaveUrl", "cmdANSavedAdd"});
    expect(true, {"cboANSavedUrls", "chkUseSavedUrls"});
    form().cboANSavedUrls.clear();
    apply();
    expect(false, {"cmdANSavedAdd"});
}

TEST_F(StatesTest, BlockingNeedsTexts)
{
    form().lstBlockedUrlC.addItem(u"ads"_s);
    form().lstBlockedEmailC.addItem(u"spam"_s);
    apply();
    expect(true, {"chkUrlBlocking"});
    expect(false, {"chkEmailBlocking"}); // addresses are not saved
    form().chkSaveEmail.setValue(1);
    expect(true, {"chkEmailBlocking"});
    form().chkUrlBlocking.setValue(1);
    form().chkEmailBlocking.setValue(1);
    form().lstBlockedUrlC.clear();
    form().lstBlockedEmailC.clear();
    apply();
    EXPECT_EQ(form().chkUrlBlocking.value(), 0);
    EXPECT_EQ(form().chkEmailBlocking.value(), 0);
    expect(false, {"chkUrlBlocking", "chkEmailBlocking"});
}

TEST_F(StatesTest, ReportLabelsAreClearedWhenIdleOnTheAutoTabAlone)
{
    Label *lamps[] = {&form().lblUrlSaved,   &form().lblSummarySaved, &form().lblEmailSaved, &form().lblPageSaved,
                      &form().lblPhoneSaved, &form().lblMCColor,      &form().lblMNCColor};
    const auto light = [&] {
        for (Label *lamp : lamps)
            lamp->setBackColor(Colours::Green);
        apply();
    };
    form().mbANRunning = true;
    light();
    for (const Label *lamp : lamps)
        EXPECT_EQ(lamp->backColor(), Colours::Green);
    form().mbANRunning = false;
    apply();
    for (const Label *lamp : lamps)
        EXPECT_EQ(lamp->backColor(), Colours::ButtonFace);
    form().sstSearch.setTab(Settings);
    light();
    for (const Label *lamp : lamps)
        EXPECT_EQ(lamp->backColor(), Colours::Green);
}

TEST_F(StatesTest, OnTheOtherTabsSavingAddressesStaysPossible)
{
    form().sstSearch.setTab(Manual);
    expect(true, {"chkSaveEmail", "cmdANStart", "cboANList"});
    expect(false, {"chkSavePages", "chkSaveSummary", "cmdANSavedAdd"});
    form().mbANRunning = true;
    apply();
    expect(false, {"chkSaveEmail"});
}

TEST_F(StatesTest, OneFileNeedsPagesSavedToFiles)
{
    form().sstSearch.setTab(Settings);
    form().sstSettings.setTab(2);
    form().sstMiscOptions.setTab(1);
    expect(true, {"chkSaveToFile", "chkSaveToSS"});
    expect(false, {"chkPutInOneFile"});
    form().chkSaveToFile.setValue(1);
    expect(true, {"chkPutInOneFile"});
    form().mbANRunning = true;
    apply();
    expect(false, {"chkSaveToFile", "chkSaveToSS", "chkPutInOneFile"});
}
