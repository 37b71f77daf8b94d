// The tables of control states against the plain telling of the rules: every control in every mode, and in forms filled
// at random.
#include "FormMirror.h"
#include "PlainStates.h"
#include "support/Fakes.h"
#include "window/states/StateOfControls.h"

#include <QElapsedTimer>
#include <gtest/gtest.h>
#include <random>

using namespace Qt::StringLiterals;

namespace {
class StateRowsTest : public testing::Test
{
  protected:
    StateRowsTest() { form.mbFormReady = true; }

    /// Decides in both ways and compares; the forms are alike before and should be alike behind it.
    [[nodiscard]] QString disagreement()
    {
        mirror(form, plainForm);
        states.SetStateOfControls();
        plain.SetStateOfControls();
        return differences(form, plainForm).join(u'\n');
    }
    int number(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random); }
    void fillAtRandom(ListControl &list)
    {
        list.clear();
        const int count = number(3);
        for (int i = 0; i < count; ++i)
            list.addItem(QString::number(i));
        list.setListIndex(number(count + 1) - 1);
    }
    void changeAtRandom()
    {
        form.browser.mbInitialized = number(8) > 0;
        form.runs.mbANRunning = number(4) == 0;
        form.runs.mbMNRunning = !form.runs.mbANRunning && number(4) == 0;
        form.saved.mbPassUrlsLoaded = number(3) == 0;
        form.manual.mintMNRunningList = number(2);
        form.import.lblSFIImportDatabase.setCaption(number(2) ? u"other.mdb"_s : QString());
        for (Control *control : controlsOf(form)) {
            if (auto *tabs = qobject_cast<TabControl *>(control))
                tabs->setTab(number(static_cast<int>(tabs->captions().size())));
            else if (auto *box = qobject_cast<CheckBox *>(control))
                box->setValue(number(3) == 0 ? 1 : 0);
            else if (auto *list = qobject_cast<ListControl *>(control); list && list != &form.lists.cboMNList)
                fillAtRandom(*list);
        }
        form.lists.cboMNList.setListIndex(number(2));
        const QStringList urls{{}, u"www.gallery.com/page1"_s, u"www.gallery.com/page"_s, u"page 1"_s};
        form.series.cboMNAutoUrl.setText(urls[number(4)]);
        form.menus.mnuPopUpMNStatus.item("mnuMNStatusAutoNavigate").setChecked(number(2) == 0);
        form.menus.mnuPopUpMNStatus.item("mnuMNStatusAutoIncrPos"_L1, 1 + number(9)).setChecked(number(4) == 0);
        if (number(3) == 0) // a number boxes' row of its own, disabled by a long command
            form.manual.incMNTiming.setEnabled(number(2) == 0);
    }

    std::mt19937 random{20260};
    RecordingLog log;
    frmSearch form, plainForm;
    StateOfControls states{log, form};
    PlainStates plain{plainForm};
};

struct Mode
{
    int search, settings, files, misc;
};
// Every tab that a user can stand on.
constexpr Mode modes[] = {{0, 0, 0, 0}, {1, 0, 0, 0}, {2, 0, 0, 0}, {2, 1, 0, 0}, {2, 1, 1, 0},
                          {2, 2, 0, 0}, {2, 2, 0, 1}, {2, 2, 0, 2}, {2, 2, 0, 3}, {3, 0, 0, 0}};
} // namespace

TEST_F(StateRowsTest, EveryControlInEveryModeIsAsTheRulesSay)
{
    for (const Mode &mode : modes) {
        form.frame.sstSearch.setTab(mode.search);
        form.frame.sstSettings.setTab(mode.settings);
        form.frame.sstFiles.setTab(mode.files);
        form.frame.sstMiscOptions.setTab(mode.misc);
        for (const auto &[connected, autoRun, manualRun] :
             {std::tuple(false, false, false), {true, false, false}, {true, true, false}, {true, false, true}}) {
            form.browser.mbInitialized = connected;
            form.runs.mbANRunning = autoRun;
            form.runs.mbMNRunning = manualRun;
            EXPECT_EQ(disagreement(), QString())
                << mode.search << mode.settings << mode.files << mode.misc << connected << autoRun << manualRun;
        }
    }
    EXPECT_TRUE(log.entries.isEmpty());
}

TEST_F(StateRowsTest, FormsFilledAtRandomAreAsTheRulesSay)
{
    for (int round = 0; round < 3000; ++round) {
        changeAtRandom();
        ASSERT_EQ(disagreement(), QString()) << "round " << round;
    }
    EXPECT_TRUE(log.entries.isEmpty());
}

TEST_F(StateRowsTest, ASecondCallChangesNothing)
{
    for (int round = 0; round < 200; ++round) {
        changeAtRandom();
        states.SetStateOfControls();
        mirror(form, plainForm);
        states.SetStateOfControls();
        ASSERT_EQ(differences(form, plainForm).join(u'\n'), QString());
    }
}

TEST_F(StateRowsTest, ACallTakesLessThanAMillisecond)
{
    constexpr int calls = 500;
    form.browser.mbInitialized = true;
    form.frame.sstSearch.setTab(Tab::Manual);
    form.series.cboMNAutoUrl.setText(u"www.gallery.com/page1"_s);
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < calls; ++i) {
        form.runs.mbANRunning = i % 2;
        states.SetStateOfControls();
    }
    EXPECT_LT(clock.elapsed(), calls);
}

TEST_F(StateRowsTest, OtherRoomsAreAskedOnTheirTabsAlone)
{
    int navigate = 0, editor = 0, position = 0;
    QObject::connect(&states, &StateOfControls::seriesPositionAsked, &form, [&] { ++position; });
    QObject::connect(&states, &StateOfControls::autoNavigateAsked, &form, [&] { ++navigate; });
    QObject::connect(&states, &StateOfControls::siteEditorAsked, &form, [&] { ++editor; });
    form.frame.sstSearch.setTab(Tab::Manual);
    states.SetStateOfControls();
    EXPECT_EQ(navigate, 0); // no browser
    form.browser.mbInitialized = true;
    states.SetStateOfControls();
    EXPECT_EQ(navigate, 1);
    EXPECT_EQ(position, 0); // nothing to count
    form.series.cboMNAutoUrl.setText(u"www.gallery.com/page1"_s);
    states.SetStateOfControls();
    EXPECT_EQ(position, 1);
    form.menus.mnuPopUpMNStatus.item("mnuMNStatusAutoIncrPos(1)").setChecked(true);
    states.SetStateOfControls();
    EXPECT_EQ(position, 1); // counted already
    form.frame.sstSearch.setTab(Tab::Settings);
    form.frame.sstSettings.setTab(Tab::Misc);
    states.SetStateOfControls();
    EXPECT_EQ(editor, 0);
    form.frame.sstMiscOptions.setTab(Tab::Sites);
    states.SetStateOfControls();
    EXPECT_EQ(editor, 1);
    EXPECT_EQ(navigate, 3);
}

TEST_F(StateRowsTest, TheSiteEditorIsAskedWhenAllOfItIsOff)
{
    form.browser.mbInitialized = true;
    form.frame.sstSearch.setTab(Tab::Settings);
    form.frame.sstSettings.setTab(Tab::Misc);
    form.frame.sstMiscOptions.setTab(Tab::Sites);
    QObject::connect(&states, &StateOfControls::siteEditorAsked, &form, [&] {
        EXPECT_FALSE(form.siteEditor.cboSD(1).isEnabled());
        form.siteEditor.cboSD(1).setEnabled(true);
    });
    states.SetStateOfControls();
    EXPECT_TRUE(form.siteEditor.cboSD(1).isEnabled());
}

TEST_F(StateRowsTest, LinksThatCannotBeSavedLeaveNoCriteriaBehind)
{
    form.browser.mbInitialized = true;
    form.saved.mbPassUrlsLoaded = true;
    form.outputs.chkSaveUrl.setValue(1);
    form.criteria.mustContain.on.setValue(1);
    form.criteria.mustNotContain.caseSensitive.setValue(1);
    states.SetStateOfControls();
    EXPECT_EQ(form.outputs.chkSaveUrl.value(), 0);
    EXPECT_EQ(form.criteria.mustContain.on.value(), 0);
    EXPECT_EQ(form.criteria.mustNotContain.caseSensitive.value(), 0);
    EXPECT_FALSE(form.criteria.mustContain.on.isEnabled());
}

TEST_F(StateRowsTest, SetsCanBeChosenWhileThereAreSome)
{
    form.browser.mbInitialized = true;
    form.outputs.chkSaveSummary.setValue(1);
    form.criteria.mustContain.on.setValue(1);
    form.criteria.cboANMCMNCMask.addItem(u"Criteria-0"_s);
    states.SetStateOfControls();
    EXPECT_TRUE(form.criteria.cboANMCMNCMask.isEnabled());
    EXPECT_FALSE(form.criteria.cmdANMCMaskMinus.isEnabled());
    form.criteria.cboANMCMNCMask.setListIndex(0);
    states.SetStateOfControls();
    EXPECT_TRUE(form.criteria.cmdANMCMaskMinus.isEnabled());
}

TEST_F(StateRowsTest, TargetsOfPagesAreSetOnTheirOwnTabAlone)
{
    form.browser.mbInitialized = true;
    form.frame.sstSearch.setTab(Tab::Settings);
    for (const int tab : {Tab::AutoAndManual, Tab::View, Tab::Sites}) {
        form.frame.sstSettings.setTab(Tab::Misc);
        form.frame.sstMiscOptions.setTab(tab);
        states.SetStateOfControls();
        EXPECT_FALSE(form.outputs.chkSaveToFile.isEnabled());
        EXPECT_FALSE(form.outputs.chkSaveToSS.isEnabled());
    }
    form.frame.sstMiscOptions.setTab(Tab::Save);
    states.SetStateOfControls();
    EXPECT_TRUE(form.outputs.chkSaveToFile.isEnabled());
    EXPECT_TRUE(form.outputs.chkSaveToSS.isEnabled());
}
