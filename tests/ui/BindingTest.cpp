// Each kind of control in both directions: what the logic sets is shown, what the user does is told.
#include "WindowFixture.h"
#include "ui/widgets/Chip.h"
#include "ui/widgets/DropDown.h"
#include "ui/widgets/Mark.h"
#include "ui/widgets/NumberEdit.h"
#include "ui/widgets/StatusBarLine.h"
#include "ui/widgets/TimerLabel.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>

using namespace Qt::StringLiterals;

struct Bound : WindowFixture
{
};

TEST_F(Bound, WhatAllControlsHaveIsShown)
{
    auto &box = widget<QCheckBox>("chkSavePages");
    form.outputs.chkSavePages.setEnabled(false);
    form.outputs.chkSavePages.setToolTipText(u"Save pages"_s);
    settle();
    EXPECT_FALSE(box.isEnabled());
    EXPECT_EQ(box.toolTip(), u"Save pages"_s);
    form.outputs.chkSavePages.setVisible(false);
    form.outputs.chkSavePages.setToolTipText(QString());
    settle();
    EXPECT_TRUE(box.isHidden());
    EXPECT_EQ(box.toolTip(), QString());
    form.outputs.chkSavePages.setVisible(true);
    form.outputs.chkSavePages.setEnabled(true);
    settle();
    EXPECT_TRUE(box.isVisible());
    EXPECT_TRUE(box.isEnabled());
}

TEST_F(Bound, ALongToolTipIsBrokenIntoLinesAndShowsNoMarkup)
{
    const QString tip = u"<b> "_s + QString(100, u'x') + u" &"_s;
    form.autoRun.cmdANStart.setToolTipText(tip);
    settle();
    const QString shown = widget<QWidget>("cmdANStart").toolTip();
    EXPECT_TRUE(Qt::mightBeRichText(shown));
    EXPECT_TRUE(shown.contains(u"&lt;b&gt;"_s));
}

TEST_F(Bound, CheckBoxesGoBothWays)
{
    auto &box = widget<QCheckBox>("chkSaveSummary");
    const Raised clicks(form.outputs.chkSaveSummary, &CheckBox::Click);
    click(box);
    EXPECT_EQ(form.outputs.chkSaveSummary.value(), 1);
    EXPECT_TRUE(box.isChecked());
    QTest::keyClick(&box, Qt::Key_Space);
    EXPECT_EQ(form.outputs.chkSaveSummary.value(), 0);
    EXPECT_EQ(clicks.times(), 2);
    form.outputs.chkSaveSummary.setValue(2);
    settle();
    EXPECT_EQ(box.checkState(), Qt::PartiallyChecked);
    click(box);
    EXPECT_EQ(form.outputs.chkSaveSummary.value(), 1);
    EXPECT_EQ(box.checkState(), Qt::Checked);
    EXPECT_FALSE(box.isTristate());
}

TEST_F(Bound, ACheckBoxThatTheLogicPutsBackShowsIt)
{
    QObject::connect(&form.outputs.chkSaveUrl, &CheckBox::Click, &form,
                     [this] { form.outputs.chkSaveUrl.setValue(0); });
    click(widget<QCheckBox>("chkSaveUrl"));
    EXPECT_FALSE(widget<QCheckBox>("chkSaveUrl").isChecked());
}

TEST_F(Bound, AToggleButtonIsACheckBoxToo)
{
    auto &button = widget<QPushButton>("chkMCCS");
    click(button);
    EXPECT_EQ(form.criteria.mustContain.caseSensitive.value(), 1);
    EXPECT_TRUE(button.isChecked());
    form.criteria.mustContain.caseSensitive.setValue(0);
    settle();
    EXPECT_FALSE(button.isChecked());
}

TEST_F(Bound, AButtonShowsItsCaptionAndKeepsItsKey)
{
    auto &go = widget<QPushButton>("cmdANStart");
    const Raised clicks(form.autoRun.cmdANStart, &Button::Click);
    EXPECT_EQ(go.text(), u"&Go"_s);
    QTest::keyClick(&window, Qt::Key_G, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return clicks.times() == 1; }, 2000));
    form.autoRun.cmdANStart.setCaption(u"X"_s);
    settle();
    EXPECT_EQ(go.text(), u"X"_s);
    QTest::keyClick(&window, Qt::Key_G, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return clicks.times() == 2; }, 2000));
    click(go);
    EXPECT_EQ(clicks.times(), 3);
}

TEST_F(Bound, RightClicksReachTheControlAndDoNotPressTheButton)
{
    const Raised clicks(form.autoRun.cmdANStart, &Button::Click);
    QList<MouseButton> pressed;
    QObject::connect(&form.autoRun.cmdANStart, &Control::mousePressed, &form,
                     [&](MouseButton b) { pressed.append(b); });
    click(widget<QPushButton>("cmdANStart"), Qt::RightButton);
    EXPECT_EQ(pressed, QList<MouseButton>{MouseButton::Right});
    EXPECT_EQ(clicks.times(), 0);
    click(widget<QPushButton>("cmdANStart"));
    EXPECT_EQ(pressed.last(), MouseButton::Left);
    EXPECT_EQ(clicks.times(), 1);
}

TEST_F(Bound, NothingReachesADisabledControlEvenBeforeItIsShownAsSuch)
{
    const Raised clicks(form.outputs.chkSavePhone, &CheckBox::Click);
    const Raised presses(form.browser.lblTrawlexTimer, &Control::mousePressed);
    form.outputs.chkSavePhone.setEnabled(false);
    form.browser.lblTrawlexTimer.setEnabled(false);
    QTest::mouseClick(&widget<QCheckBox>("chkSavePhone"), Qt::LeftButton);
    QTest::mouseClick(&widget<TimerLabel>("lblTrawlexTimer"), Qt::LeftButton);
    EXPECT_EQ(clicks.times(), 0);
    EXPECT_EQ(presses.times(), 0);
    EXPECT_FALSE(widget<QCheckBox>("chkSavePhone").isChecked());
    settle();
    QTest::mouseClick(&widget<TimerLabel>("lblTrawlexTimer"), Qt::LeftButton);
    EXPECT_EQ(presses.times(), 0);
}

TEST_F(Bound, CombosShowItemsAndChoice)
{
    auto &combo = widget<DropDown>("cboANSavedUrls");
    EXPECT_EQ(combo.count(), 0);
    for (const auto &item : {u"Results-100"_s, u"Results-101"_s})
        form.saved.cboANSavedUrls.addItem(item);
    form.saved.cboANSavedUrls.setListIndex(1);
    settle();
    EXPECT_EQ(combo.count(), 2);
    EXPECT_EQ(combo.currentText(), u"Results-101"_s);
    form.saved.cboANSavedUrls.removeItem(1);
    settle();
    EXPECT_EQ(combo.count(), 1);
    EXPECT_EQ(combo.currentIndex(), -1);
    form.saved.cboANSavedUrls.clear();
    settle();
    EXPECT_EQ(combo.count(), 0);
}

TEST_F(Bound, ACombosChoiceIsToldAndTheWheelMakesNone)
{
    auto &combo = widget<DropDown>("cboANSaveType");
    const Raised clicks(form.outputs.cboANSaveType, &ComboBox::Click);
    QTest::keyClick(&combo, Qt::Key_Down);
    EXPECT_EQ(form.outputs.cboANSaveType.listIndex(), 1);
    QTest::keyClick(&combo, Qt::Key_L);
    EXPECT_EQ(form.outputs.cboANSaveType.text(), u"Links"_s);
    EXPECT_EQ(clicks.times(), 2);
    QWheelEvent wheel(QPointF(5, 5), combo.mapToGlobal(QPointF(5, 5)), {}, QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&combo, &wheel);
    EXPECT_EQ(clicks.times(), 2);
}

TEST_F(Bound, ALetterWithAltIsNoSearchInACombo)
{
    auto &combo = widget<DropDown>("cboANWBSelect");
    form.browser.cboANWBSelect.setListIndex(0);
    form.browser.cmdANInitialize.setEnabled(false);
    settle();
    const Raised clicks(form.browser.cboANWBSelect, &ComboBox::Click);
    combo.setFocus();
    QTest::keyClick(&combo, Qt::Key_I, Qt::AltModifier);
    settle();
    EXPECT_EQ(form.browser.cboANWBSelect.text(), u"Internal"_s);
    EXPECT_EQ(clicks.times(), 0);
    combo.setCurrentIndex(-1);
    for (DropDown *const other : window.findChildren<DropDown *>()) {
        const int before = other->currentIndex();
        QTest::keyClick(other, Qt::Key_M, Qt::AltModifier);
        EXPECT_EQ(other->currentIndex(), before) << qPrintable(other->objectName());
    }
}

TEST_F(Bound, TheRowThatIsChosenAlreadyCanBeChosenAgain)
{
    auto &combo = widget<DropDown>("cboANWBSelect");
    form.browser.cboANWBSelect.setListIndex(1);
    settle();
    const Raised clicks(form.browser.cboANWBSelect, &ComboBox::Click);
    combo.showPopup();
    QTest::keyClick(combo.view(), Qt::Key_Return);
    settle();
    EXPECT_EQ(clicks.times(), 1);
    EXPECT_EQ(form.browser.cboANWBSelect.listIndex(), 1);
}

TEST_F(Bound, AnOpeningListShowsWhatItsHandlerFills)
{
    auto &combo = widget<DropDown>("cboANList");
    const Raised opened(form.saved.cboANList, &ComboBox::DropDown);
    QObject::connect(&form.saved.cboANList, &ComboBox::DropDown, &form,
                     [this] { form.saved.cboANList.addItem(u"F"_s); });
    combo.showPopup();
    EXPECT_EQ(opened.times(), 1);
    EXPECT_EQ(combo.count(), 6);
    combo.hidePopup();
}

TEST_F(Bound, TextBoxesTellWhatIsTypedAndWhenTheyAreLeft)
{
    auto &edit = widget<QLineEdit>("txtANStartTag");
    const Raised changes(form.outputs.txtANStartTag, &TextBox::Change);
    const Raised validations(form.outputs.txtANStartTag, &TextBox::Validate);
    edit.setFocus();
    QTest::keyClicks(&edit, u"<main"_s);
    EXPECT_EQ(form.outputs.txtANStartTag.text(), u"<main"_s);
    EXPECT_EQ(changes.times(), 5);
    EXPECT_EQ(validations.times(), 0);
    widget<QWidget>("cmdANStart").setFocus();
    EXPECT_EQ(validations.times(), 1);
    form.outputs.txtANStartTag.setText(u"<body"_s);
    settle();
    EXPECT_EQ(edit.text(), u"<body"_s);
}

TEST_F(Bound, TypingInTheMiddleKeepsTheCursor)
{
    auto &edit = widget<QLineEdit>("txtANStartTag");
    form.outputs.txtANStartTag.setText(u"ad"_s);
    settle();
    edit.setFocus();
    edit.setCursorPosition(1);
    QTest::keyClicks(&edit, u"bc"_s);
    settle();
    EXPECT_EQ(form.outputs.txtANStartTag.text(), u"abcd"_s);
    EXPECT_EQ(edit.cursorPosition(), 3);
}

TEST_F(Bound, TabsGoBothWaysAndTheirPageFollows)
{
    auto &tabs = widget<QTabBar>("sstSearch");
    const Raised clicks(form.frame.sstSearch, &TabControl::Click);
    QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(2).center());
    EXPECT_EQ(form.frame.sstSearch.tab(), 2);
    EXPECT_EQ(clicks.times(), 1);
    EXPECT_TRUE(widget<QWidget>("settingsPage").isVisible());
    form.frame.sstSearch.setTab(0);
    settle();
    EXPECT_EQ(tabs.currentIndex(), 0);
    EXPECT_TRUE(widget<QWidget>("autoPage").isVisible());
    EXPECT_EQ(tabs.tabText(3), u"Data"_s);
}

TEST_F(Bound, TabsInsidePagesShowTheirPages)
{
    form.frame.sstSearch.setTab(2);
    form.frame.sstSettings.setTab(2);
    form.frame.sstMiscOptions.setTab(1);
    settle();
    EXPECT_TRUE(widget<QWidget>("chkSMD_0").isVisible());
    auto &tabs = widget<QTabBar>("sstMiscOptions");
    QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(2).center());
    EXPECT_EQ(form.frame.sstMiscOptions.tab(), 2);
    EXPECT_TRUE(widget<QWidget>("chkSMV_0").isVisible());
    form.frame.sstSettings.setTab(1);
    settle();
    EXPECT_TRUE(widget<QLineEdit>("txtSFDBDir").isVisible());
}

TEST_F(Bound, TheTimerShowsItsCaptionInItsColoursAndAnswersBothButtons)
{
    auto &timer = widget<TimerLabel>("lblTrawlexTimer");
    QList<MouseButton> pressed;
    QObject::connect(&form.browser.lblTrawlexTimer, &Control::mousePressed, &form,
                     [&](MouseButton b) { pressed.append(b); });
    form.browser.lblTrawlexTimer.setCaption(u"12"_s);
    form.browser.lblTrawlexTimer.setBackColor(Colours::Red);
    form.browser.lblTrawlexTimer.setForeColor(Colours::White);
    settle();
    EXPECT_EQ(timer.text(), u"12"_s);
    EXPECT_GT(timer.palette().color(QPalette::Base).red(), 180);
    EXPECT_EQ(timer.palette().color(QPalette::WindowText), QColor(Qt::white));
    click(timer);
    click(timer, Qt::RightButton);
    EXPECT_EQ(pressed, (QList<MouseButton>{MouseButton::Left, MouseButton::Right}));
    form.browser.lblTrawlexTimer.setBackColor(Colours::ButtonFace);
    form.browser.lblTrawlexTimer.setForeColor(Colours::ButtonText);
    settle();
    EXPECT_FALSE(timer.testAttribute(Qt::WA_SetPalette)) << "back to the desktop's colours";
}

TEST_F(Bound, LabelsAnswerQuickSecondClicksAndTheKeyboard)
{
    auto &chip = widget<Chip>("lblAutoPgUrls");
    const Raised presses(form.collect.lblAutoPgUrls, &Control::mousePressed);
    doubleClick(chip, Qt::RightButton);
    EXPECT_EQ(presses.times(), 2);
    chip.setFocus();
    QTest::keyClick(&chip, Qt::Key_Return);
    QTest::keyClick(&chip, Qt::Key_Space);
    EXPECT_EQ(presses.times(), 4);
}

TEST_F(Bound, AChipShowsItsCaptionBehindItsWord)
{
    auto &chip = widget<Chip>("lblAutoPgUrls");
    EXPECT_EQ(chip.text(), u"Collect"_s);
    form.collect.lblAutoPgUrls.setCaption(u"B"_s);
    settle();
    EXPECT_EQ(chip.text(), u"Collect in B"_s);
    EXPECT_EQ(chip.accessibleName(), u"Collect in B"_s);
    EXPECT_EQ(widget<Chip>("lblAutoPgUrls_onManual").text(), u"Collect pages in B"_s);
    form.collect.lblAutoIncrPos.setCaption(u"2"_s);
    settle();
    EXPECT_EQ(widget<Chip>("lblAutoIncrPos_onManual").text(), u"Position 2"_s);
    EXPECT_EQ(widget<Chip>("lblAutoIncrPos").text(), u"Pass Urls"_s) << "a position says nothing on the tab Auto";
}

TEST_F(Bound, AControlOfTwoTabsHasAWidgetOnEach)
{
    form.browser.lblTrawlexTimer.setCaption(u"12"_s);
    settle();
    EXPECT_EQ(widget<TimerLabel>("lblTrawlexTimer").text(), u"12"_s);
    EXPECT_EQ(widget<TimerLabel>("lblTrawlexTimer_onManual").text(), u"12"_s);
    form.frame.sstSearch.setTab(Tab::Manual);
    settle();
    const Raised presses(form.browser.lblTrawlexTimer, &Control::mousePressed);
    click(widget<TimerLabel>("lblTrawlexTimer_onManual"));
    EXPECT_EQ(presses.times(), 1);
}

TEST_F(Bound, ALockedPathCanBeReadAndCopied)
{
    auto &path = widget<QLineEdit>("txtSFDBDir");
    form.places.txtSFDBDir.setText(u"/home/anna/harvest/"_s);
    form.places.txtSFDBDir.setEnabled(false);
    settle();
    EXPECT_TRUE(path.isEnabled());
    EXPECT_TRUE(path.isReadOnly());
    QTest::keyClicks(&path, u"x"_s);
    EXPECT_EQ(form.places.txtSFDBDir.text(), u"/home/anna/harvest/"_s);
    path.selectAll();
    path.copy();
    EXPECT_EQ(QApplication::clipboard()->text(), u"/home/anna/harvest/"_s);
    form.places.txtSFDBDir.setEnabled(true);
    settle();
    EXPECT_FALSE(path.isReadOnly());
    EXPECT_FALSE(widget<QLineEdit>("txtSFEditor").isReadOnly());
    form.outputs.txtANStartTag.setEnabled(false);
    settle();
    EXPECT_FALSE(widget<QLineEdit>("txtANStartTag").isEnabled()) << "what is no path is disabled";
}

TEST_F(Bound, AnEditableComboTakesWhatIsTypedAndAddsNothing)
{
    form.series.cboMNAutoUrl.addItem(u"http://www.north-harbour.example/001.jpg"_s);
    form.frame.sstSearch.setTab(Tab::Manual);
    settle();
    auto &combo = widget<DropDown>("cboMNAutoUrl");
    combo.setFocus();
    QTest::keyClicks(combo.lineEdit(), u"http"_s);
    EXPECT_EQ(form.series.cboMNAutoUrl.text(), u"http"_s) << "nothing is completed";
    QTest::keyClick(combo.lineEdit(), Qt::Key_Return);
    settle();
    EXPECT_EQ(form.series.cboMNAutoUrl.listCount(), 1);
    EXPECT_EQ(combo.count(), 1);
    EXPECT_EQ(widget<DropDown>("cboMNMCMNCFilter").lineEdit()->placeholderText(), u"filter of loaded links"_s);
}

TEST_F(Bound, TheLineInsideAComboTellsTheMouseAndKeepsItsKeys)
{
    form.frame.sstSearch.setTab(Tab::Manual);
    form.urlFilter.cboMNMCMNCFilter.setText(u"team"_s);
    settle();
    QLineEdit &line = *widget<DropDown>("cboMNMCMNCFilter").lineEdit();
    const Raised doubles(form.urlFilter.cboMNMCMNCFilter, &Control::doubleClicked);
    const Raised presses(form.urlFilter.cboMNMCMNCFilter, &Control::mousePressed);
    const Raised keys(form.urlFilter.cboMNMCMNCFilter, &Control::keyPressed);
    QTest::mouseClick(&line, Qt::LeftButton);
    QTest::mouseDClick(&line, Qt::LeftButton);
    EXPECT_EQ(presses.times(), 1);
    EXPECT_EQ(doubles.times(), 1);
    line.setFocus();
    line.setCursorPosition(0);
    line.deselect();
    QTest::keyClick(&line, Qt::Key_Delete);
    EXPECT_EQ(form.urlFilter.cboMNMCMNCFilter.text(), u"eam"_s);
    EXPECT_EQ(keys.times(), 0);
}

TEST_F(Bound, TheListOnShowIsTheOneThatIsChosen)
{
    form.frame.sstSearch.setTab(Tab::Manual);
    form.lists.cboMNList.setListIndex(2);
    settle();
    EXPECT_TRUE(widget<QWidget>("lstMN_2").isVisible());
    EXPECT_FALSE(widget<QWidget>("lstMN_0").isVisible());
}

TEST_F(Bound, TheStatusBarTellsMovesAndDoubleClicks)
{
    auto &status = widget<StatusBarLine>("picStatus");
    const Raised moves(form.frame.picStatus, &Control::mouseMoved);
    const Raised doubles(form.frame.picStatus, &Control::doubleClicked);
    const Raised presses(form.frame.picStatus, &Control::mousePressed);
    form.frame.picStatus.print(u"Initialized..."_s);
    settle();
    EXPECT_EQ(status.text(), u"Initialized..."_s);
    QTest::mouseMove(&status, QPoint(20, 10));
    QTest::mouseMove(&status, QPoint(30, 10));
    settle();
    EXPECT_GE(moves.times(), 1);
    doubleClick(status);
    EXPECT_EQ(doubles.times(), 1);
    EXPECT_EQ(presses.times(), 1) << "the second press of a double click is the double click";
    click(status, Qt::RightButton);
    EXPECT_EQ(presses.times(), 2);
}

TEST_F(Bound, TheContextMenuKeyIsARightPressOnTheControlInFocus)
{
    const Raised presses(form.criteria.mustContain.items, &Control::mousePressed);
    MouseButton last = MouseButton::Left;
    QObject::connect(&form.criteria.mustContain.items, &Control::mousePressed, &form, [&](MouseButton b) { last = b; });
    QContextMenuEvent key(QContextMenuEvent::Keyboard, QPoint(5, 5), QPoint(5, 5));
    QCoreApplication::sendEvent(&widget<QWidget>("lstANMC"), &key);
    EXPECT_EQ(presses.times(), 1);
    EXPECT_EQ(last, MouseButton::Right);
    last = MouseButton::Left;
    QTest::keyClick(&widget<QWidget>("lstANMC"), Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(presses.times(), 2) << "where the keyboard has no such key";
    EXPECT_EQ(last, MouseButton::Right);
    QTest::keyClick(&widget<QWidget>("lstANMC"), Qt::Key_F10);
    EXPECT_EQ(presses.times(), 2);
}

TEST_F(Bound, ManyChangesAreShownOnce)
{
    auto &status = widget<StatusBarLine>("picStatus");
    form.frame.picStatus.print(u"one"_s);
    form.frame.picStatus.print(u"two"_s);
    EXPECT_EQ(status.text(), QString()) << "nothing is shown before the event loop turns";
    window.binder().flush();
    EXPECT_EQ(status.text(), u"two"_s);
}

TEST_F(Bound, ARunInsideAClickIsHeldUpByNothing)
{
    // A run is one long call inside the click on Go; its X is a click inside that.
    int depth = 0;
    QObject::connect(&form.autoRun.cmdANStart, &Button::Click, &form, [&] {
        if (++depth == 2)
            return;
        form.autoRun.cmdANStart.setCaption(u"X"_s);
        settle();
        EXPECT_EQ(widget<QPushButton>("cmdANStart").text(), u"X"_s);
        QTest::mouseClick(&widget<QPushButton>("cmdANStart"), Qt::LeftButton);
        form.autoRun.cmdANStart.setCaption(u"Go"_s);
    });
    click(widget<QPushButton>("cmdANStart"));
    EXPECT_EQ(depth, 2);
    EXPECT_EQ(widget<QPushButton>("cmdANStart").text(), u"&Go"_s);
}
