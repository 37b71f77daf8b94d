#include "controls/SimpleControls.h"
#include "controls/ControlArray.h"
#include "controls/SignalCount.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(CheckBoxes, AssigningAChangedValueRaisesClickOnce)
{
    CheckBox box(u"chkSavePages"_s, nullptr);
    const SignalCount clicks(box, &CheckBox::Click);
    box.setValue(1);
    EXPECT_EQ(clicks.times(), 1);
    box.setValue(1);
    EXPECT_EQ(clicks.times(), 1) << "the same value raises nothing";
    box.setValue(0);
    EXPECT_EQ(clicks.times(), 2);
}

TEST(CheckBoxes, TheHandlerOfClickSeesTheNewValue)
{
    CheckBox box(u"chkSavePages"_s, nullptr);
    int seen = -1;
    QObject::connect(&box, &CheckBox::Click, &box, [&] { seen = box.value(); });
    box.setValue(2);
    EXPECT_EQ(seen, 2);
}

TEST(CheckBoxes, AHandlerMayPutTheValueBack)
{
    CheckBox box(u"chkSaveUrl"_s, nullptr);
    const SignalCount clicks(box, &CheckBox::Click);
    QObject::connect(&box, &CheckBox::Click, &box, [&] { box.setValue(0); });
    box.click();
    EXPECT_EQ(box.value(), 0);
    EXPECT_EQ(clicks.times(), 2) << "once for the user's click, once for the value put back";
}

TEST(CheckBoxes, TheUsersClickTurnsOnToOffAndAnythingElseToOn)
{
    CheckBox box(u"chkMCCS"_s, nullptr);
    box.click();
    EXPECT_EQ(box.value(), 1);
    box.click();
    EXPECT_EQ(box.value(), 0);
    box.setValue(2);
    box.click();
    EXPECT_EQ(box.value(), 1);
}

TEST(CheckBoxes, OtherValuesAreError380AndChangeNothing)
{
    CheckBox box(u"chkMCCS"_s, nullptr);
    box.setValue(1);
    for (const int value : {-1, 3, 255}) {
        EXPECT_EQ(errorOf([&] { box.setValue(value); }), 380) << value;
        EXPECT_EQ(box.value(), 1);
    }
}

TEST(TextBoxes, AChangedTextRaisesChangeOnce)
{
    TextBox box(u"txtANStartTag"_s, nullptr);
    const SignalCount changes(box, &TextBox::Change);
    const SignalCount validations(box, &TextBox::Validate);
    box.setText(u"<main"_s);
    box.setText(u"<main"_s);
    EXPECT_EQ(changes.times(), 1);
    EXPECT_EQ(validations.times(), 0);
    box.validate();
    EXPECT_EQ(validations.times(), 1);
}

TEST(Buttons, ADisabledButtonHasNoClick)
{
    Button button(u"cmdANStart"_s, nullptr);
    const SignalCount clicks(button, &Button::Click);
    button.setEnabled(false);
    button.click();
    EXPECT_EQ(clicks.times(), 0);
    button.setEnabled(true);
    button.click();
    button.click();
    EXPECT_EQ(clicks.times(), 2) << "each click counts: a button has no value";
}

TEST(Tabs, AChangedTabRaisesClickAndOneOutsideIsError380)
{
    TabControl tabs(u"sstFiles"_s, {u"Directory"_s, u"Import"_s}, nullptr);
    const SignalCount clicks(tabs, &TabControl::Click);
    tabs.setTab(1);
    tabs.setTab(1);
    EXPECT_EQ(clicks.times(), 1);
    EXPECT_EQ(errorOf([&] { tabs.setTab(2); }), 380);
    EXPECT_EQ(errorOf([&] { tabs.setTab(-1); }), 380);
    EXPECT_EQ(tabs.tab(), 1);
    EXPECT_EQ(clicks.times(), 1);
}

TEST(Controls, EachChangedPropertyIsShownAndAnUnchangedOneIsNot)
{
    PictureBox picture(u"picStatus"_s, nullptr);
    const SignalCount changes(picture, &Control::changed);
    const auto setAll = [&picture] {
        picture.print(u"Initialized..."_s);
        picture.setEnabled(false);
        picture.setVisible(false);
        picture.setCaption(u"caption"_s);
        picture.setToolTipText(u"tip"_s);
        picture.setBackColor(Colours::Yellow);
        picture.setForeColor(Colours::Black);
    };
    setAll();
    EXPECT_EQ(changes.times(), 7);
    setAll();
    EXPECT_EQ(changes.times(), 7);
}

TEST(Controls, NeutralColoursFitTheKind)
{
    const Label label(u"lblMCColor"_s, nullptr);
    const TextBox box(u"txtANStartTag"_s, nullptr);
    EXPECT_EQ(label.backColor(), 0x8000000FU);
    EXPECT_EQ(box.backColor(), 0x80000005U);
}

TEST(ControlArrays, MembersCarryTheirIndexAndOthersAreError340)
{
    QObject form;
    const ControlArray<CheckBox> boxes(u"chkSMA"_s, 10, &form);
    EXPECT_EQ(boxes(9).name(), u"chkSMA(9)"_s);
    EXPECT_EQ(boxes.first(), 0);
    EXPECT_EQ(boxes.last(), 9);
    EXPECT_EQ(errorOf([&] { (void)boxes(10); }), 340);
    EXPECT_EQ(errorOf([&] { (void)boxes(-1); }), 340);
    const ControlArray<CheckBox> fromOne(u"cboSD"_s, 8, &form, 1);
    EXPECT_EQ(fromOne(1).name(), u"cboSD(1)"_s);
    EXPECT_EQ(errorOf([&] { (void)fromOne(0); }), 340);
}

TEST(EveryControl, TellsWhatIsDroppedAndAsksWhatIsDragged)
{
    TextBox box(u"txtSFDBDir"_s, nullptr);
    QStringList dropped;
    QObject::connect(&box, &Control::textDropped, &box, [&](const QString &text) { dropped.append(text); });
    box.dropText(u"/data"_s);
    EXPECT_EQ(dropped, QStringList{u"/data"_s});
    EXPECT_EQ(box.textToDrag(), QString());
    QObject::connect(&box, &Control::dragStarted, &box, [](QString *text) { *text = u"212"_s; });
    EXPECT_EQ(box.textToDrag(), u"212"_s);
}
