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
            form().saved.cboANSavedUrls.addItem(u"Results-%1"_s.arg(100 + i));
        apply();
    }
    void criteriaSet()
    {
        form().criteria.cboANMCMNCMask.addItem(u"Criteria-0"_s);
        form().criteria.cboANMCMNCMask.setListIndex(0);
    }
};
} // namespace

TEST_F(StatesTest, NothingHappensBeforeTheFormIsReady)
{
    form().mbFormReady = false;
    form().browser.mbInitialized = false;
    apply();
    expect(true, {"cmdANStart"});
    expect(false, {"cmdANInitialize"});
}

TEST_F(StatesTest, WithoutABrowserOnlyTheWayToConnectAndTheSwitchesRespond)
{
    form().browser.mbInitialized = false;
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
    EXPECT_EQ(form().browser.lblTrawlexTimer.backColor(), Colours::ButtonFace);
    EXPECT_EQ(form().browser.lblTrawlexTimer.foreColor(), Colours::WindowText);
}

TEST_F(StatesTest, AnAutoRunSwitchesOffWhatWouldChangeIt)
{
    savedUrls(2);
    form().outputs.chkSavePages.setValue(1);
    form().runs.mbANRunning = true;
    apply();
    expect(true, {"cmdANStart", "lblAutoCollect"});
    expect(false,
           {"cmdMNStart", "cboANList", "chkSaveSummary", "chkSavePages", "chkSaveEmail", "chkSavePhone", "chkSaveUrl",
            "chkMCMNCStop", "chkUseSavedUrls", "cboANSavedUrls", "cmdANSavedAdd", "cmdANSavedMinus", "cmdANSavedGo",
            "txtANStartTag", "txtANStopTag", "cboANSaveType", "chkSMA(3)", "lblAutoPgUrls", "lblAutoIncrPos"});
    EXPECT_EQ(form().browser.lblTrawlexTimer.backColor(), Colours::Red);
    EXPECT_EQ(form().browser.lblTrawlexTimer.foreColor(), Colours::White);
}

TEST_F(StatesTest, AManualRunLeavesNoGoOnTheAutoTab)
{
    form().runs.mbMNRunning = true;
    apply();
    expect(false, {"cmdANStart", "cboANList", "chkSaveSummary"});
    EXPECT_EQ(form().browser.lblTrawlexTimer.backColor(), Colours::Blue);
    EXPECT_EQ(form().browser.lblTrawlexTimer.foreColor(), Colours::White);
}

TEST_F(StatesTest, UncheckingTheLastOfTheSixOutputsClearsTheCriteria)
{
    for (CheckBox *box : {&form().outputs.chkSaveSummary, &form().outputs.chkSavePages, &form().outputs.chkSaveUrl,
                          &form().outputs.chkSaveEmail, &form().outputs.chkSavePhone, &form().outputs.chkMCMNCStop}) {
        box->setValue(1);
        for (CheckBox *test : {&form().criteria.mustContain.on, &form().criteria.mustContain.caseSensitive,
                               &form().criteria.mustNotContain.on, &form().criteria.mustNotContain.caseSensitive})
            test->setValue(1);
        apply();
        expect(true, {"chkMustContain", "chkMustNotContain"});
        EXPECT_EQ(form().criteria.mustContain.on.value(), 1);
        box->setValue(0);
        for (const CheckBox *test : {&form().criteria.mustContain.on, &form().criteria.mustContain.caseSensitive,
                                     &form().criteria.mustNotContain.on, &form().criteria.mustNotContain.caseSensitive})
            EXPECT_EQ(test->value(), 0) << box->name().toStdString();
        expect(false, {"chkMustContain", "chkMustNotContain"});
    }
}

TEST_F(StatesTest, CriteriaNeedTheirBoxAndASet)
{
    form().outputs.chkSaveSummary.setValue(1);
    expect(false, {"cmdANMCMaskAdd", "cmdANMCMaskMinus", "cboANMCMNCMask", "lstANMC", "lstANMNC"});
    form().criteria.mustContain.on.setValue(1);
    expect(true, {"cmdANMCMaskAdd"});
    expect(false,
           {"cmdANMCMaskMinus", "cboANMCMNCMask", "lstANMC", "cmdANAddMC", "lstANMCAllAny", "chkMCCS", "lstANMNC"});
    criteriaSet();
    apply();
    expect(true, {"cmdANMCMaskAdd", "cmdANMCMaskMinus", "cboANMCMNCMask", "lstANMC", "cmdANAddMC", "lstANMCAllAny",
                  "chkMCCS"});
    expect(false, {"lstANMNC", "cmdANAddMNC", "lstANMNCAllAny", "chkMNCCS"});
    form().criteria.mustContain.on.setValue(0);
    form().criteria.mustNotContain.on.setValue(1);
    expect(true, {"cmdANMCMaskMinus", "cboANMCMNCMask", "lstANMNC", "cmdANAddMNC", "lstANMNCAllAny", "chkMNCCS"});
    expect(false, {"lstANMC", "cmdANAddMC", "lstANMCAllAny", "chkMCCS"});
}

TEST_F(StatesTest, CriteriaMayBeChangedInTheMiddleOfARun)
{
    form().outputs.chkSaveSummary.setValue(1);
    form().criteria.mustContain.on.setValue(1);
    criteriaSet();
    form().runs.mbANRunning = true;
    apply();
    expect(true, {"lstANMC", "cmdANAddMC", "cboANMCMNCMask", "cmdANMCMaskAdd", "chkMustContain"});
}

TEST_F(StatesTest, TagsAndTypeFollowTheSavingOfPages)
{
    form().outputs.chkSavePages.setValue(1);
    expect(true, {"txtANStartTag", "txtANStopTag", "cboANSaveType"});
    form().outputs.chkSavePages.setValue(0);
    expect(false, {"txtANStartTag", "txtANStopTag", "cboANSaveType"});
}

TEST_F(StatesTest, SavedUrlsInUseCannotBeChanged)
{
    savedUrls(2);
    expect(true, {"chkUseSavedUrls", "cboANSavedUrls", "cmdANSavedAdd"});
    expect(false, {"cmdANSavedMinus", "cmdANSavedGo"}); // nothing chosen
    form().saved.cboANSavedUrls.setListIndex(1);
    expect(true, {"cmdANSavedMinus", "cmdANSavedGo"});
    form().saved.chkUseSavedUrls.setValue(1);
    expect(true, {"chkUseSavedUrls"});
    expect(false, {"cboANSavedUrls", "cmdANSavedAdd", "cmdANSavedMinus", "cmdANSavedGo"});
}

TEST_F(StatesTest, WithoutSavedUrlsTheirBoxGoesOff)
{
    savedUrls(1);
    form().saved.chkUseSavedUrls.setValue(1);
    form().saved.cboANSavedUrls.clear();
    apply();
    EXPECT_EQ(form().saved.chkUseSavedUrls.value(), 0);
    expect(false, {"chkUseSavedUrls", "cboANSavedUrls"});
    expect(true, {"cmdANSavedAdd"});
}

TEST_F(StatesTest, PassUrlsOnShowCanNeitherBeAddedToNorSavedTo)
{
    savedUrls(1);
    form().outputs.chkSaveUrl.setValue(1);
    form().saved.mbPassUrlsLoaded = true;
    apply();
    EXPECT_EQ(form().outputs.chkSaveUrl.value(), 0);
    expect(false, {"chkSaveUrl", "cmdANSavedAdd"});
    expect(true, {"cboANSavedUrls", "chkUseSavedUrls"});
    form().saved.cboANSavedUrls.clear();
    apply();
    expect(false, {"cmdANSavedAdd"});
}

TEST_F(StatesTest, BlockingNeedsTexts)
{
    form().blocking.urls.items.addItem(u"ads"_s);
    form().blocking.email.items.addItem(u"spam"_s);
    apply();
    expect(true, {"chkUrlBlocking"});
    expect(false, {"chkEmailBlocking"}); // addresses are not saved
    form().outputs.chkSaveEmail.setValue(1);
    expect(true, {"chkEmailBlocking"});
    form().blocking.urls.on.setValue(1);
    form().blocking.email.on.setValue(1);
    form().blocking.urls.items.clear();
    form().blocking.email.items.clear();
    apply();
    EXPECT_EQ(form().blocking.urls.on.value(), 0);
    EXPECT_EQ(form().blocking.email.on.value(), 0);
    expect(false, {"chkUrlBlocking", "chkEmailBlocking"});
}

TEST_F(StatesTest, ReportLabelsAreClearedWhenIdleOnTheAutoTabAlone)
{
    Label *lamps[] = {&form().outputs.lblUrlSaved,         &form().outputs.lblSummarySaved,
                      &form().outputs.lblEmailSaved,       &form().outputs.lblPageSaved,
                      &form().outputs.lblPhoneSaved,       &form().criteria.mustContain.lamp,
                      &form().criteria.mustNotContain.lamp};
    const auto light = [&] {
        for (Label *lamp : lamps)
            lamp->setBackColor(Colours::Green);
        apply();
    };
    form().runs.mbANRunning = true;
    light();
    for (const Label *lamp : lamps)
        EXPECT_EQ(lamp->backColor(), Colours::Green);
    form().runs.mbANRunning = false;
    apply();
    for (const Label *lamp : lamps)
        EXPECT_EQ(lamp->backColor(), Colours::ButtonFace);
    form().frame.sstSearch.setTab(Settings);
    light();
    for (const Label *lamp : lamps)
        EXPECT_EQ(lamp->backColor(), Colours::Green);
}

TEST_F(StatesTest, OnTheOtherTabsSavingAddressesStaysPossible)
{
    form().frame.sstSearch.setTab(Manual);
    expect(true, {"chkSaveEmail", "cmdANStart", "cboANList"});
    expect(false, {"chkSavePages", "chkSaveSummary", "cmdANSavedAdd"});
    form().runs.mbANRunning = true;
    apply();
    expect(false, {"chkSaveEmail"});
}

TEST_F(StatesTest, OneFileNeedsPagesSavedToFiles)
{
    form().frame.sstSearch.setTab(Settings);
    form().frame.sstSettings.setTab(2);
    form().frame.sstMiscOptions.setTab(1);
    expect(true, {"chkSaveToFile", "chkSaveToSS"});
    expect(false, {"chkPutInOneFile"});
    form().outputs.chkSaveToFile.setValue(1);
    expect(true, {"chkPutInOneFile"});
    form().runs.mbANRunning = true;
    apply();
    expect(false, {"chkSaveToFile", "chkSaveToSS", "chkPutInOneFile"});
}

TEST_F(StatesTest, EmptyListsTellTheNextStep)
{
    const auto texts = [this] {
        apply();
        const Criteria &criteria = form().criteria;
        return QStringList{criteria.cboANMCMNCMask.emptyText(), criteria.mustContain.items.emptyText(),
                           criteria.mustNotContain.items.emptyText()};
    };
    const QString save = u"Tick what to save from a page first"_s;
    EXPECT_EQ(texts(), (QStringList{save, save, save}));
    form().outputs.chkSaveEmail.setValue(1);
    const QString contain = u"Tick Must contain to keep only pages that hold a text."_s;
    const QString containNot = u"Tick Must not contain to rule pages out by a text."_s;
    EXPECT_EQ(texts(), (QStringList{u"Tick Must contain or Must not contain"_s, contain, containNot}));
    form().criteria.mustContain.on.setValue(1);
    const QString choose = u"Choose a set above, or add one with +."_s;
    EXPECT_EQ(texts(), (QStringList{u"No sets yet: + adds one"_s, choose, containNot}));
    EXPECT_TRUE(form().criteria.cmdANMCMaskAdd.isEnabled()); // the step that is told can be taken
    form().criteria.mustNotContain.on.setValue(1);
    criteriaSet();
    EXPECT_EQ(texts(), (QStringList{u"Choose a set"_s, u"Texts that a page must contain come here with +."_s,
                                    u"Texts that rule a page out come here with +."_s}));
    EXPECT_TRUE(form().criteria.mustContain.add.isEnabled());
}
