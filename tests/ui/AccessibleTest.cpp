// What a screen reader hears of the program's own widgets.
#include "WindowFixture.h"
#include "ui/widgets/DropDown.h"
#include "ui/widgets/NumberEdit.h"

#include <QAccessible>

using namespace Qt::StringLiterals;

struct ScreenReaders : WindowFixture
{
    QAccessibleInterface &of(const char *name)
    {
        return *QAccessible::queryAccessibleInterface(&widget<QWidget>(name));
    }
};

TEST_F(ScreenReaders, HearWhatEachWidgetIs)
{
    struct Row
    {
        const char *name;
        QAccessible::Role role;
    };
    const Row rows[] = {{"lblSummarySaved", QAccessible::Indicator}, {"picANEnd", QAccessible::PushButton},
                        {"lblAutoPgUrls", QAccessible::PushButton},  {"lblTrawlexTimer", QAccessible::PushButton},
                        {"incANTiming", QAccessible::SpinBox},       {"cboANList", QAccessible::ComboBox},
                        {"startGroup", QAccessible::Grouping},       {"startHeading", QAccessible::PushButton},
                        {"picStatus", QAccessible::StatusBar},       {"chkSavePages", QAccessible::CheckBox},
                        {"cmdANStart", QAccessible::PushButton},     {"lstANMC", QAccessible::List},
                        {"fxgTrawlex", QAccessible::Table},          {"txtANStartTag", QAccessible::EditableText}};
    for (const Row &row : rows)
        EXPECT_EQ(of(row.name).role(), row.role) << row.name;
}

TEST_F(ScreenReaders, HearTheNameOfACombosAndItsValueApart)
{
    form.outputs.cboANSaveType.setToolTipText(u"What of a page is saved"_s);
    form.autoRun.incANTiming.setText(u"30"_s);
    settle();
    EXPECT_EQ(of("cboANSaveType").text(QAccessible::Name), u"What of a page is saved"_s);
    EXPECT_EQ(of("cboANSaveType").text(QAccessible::Value), u"Html"_s);
    EXPECT_EQ(of("incANTiming").text(QAccessible::Value), u"030"_s);
    EXPECT_EQ(of("startGroup").text(QAccessible::Name), u"Start from"_s);
}

TEST_F(ScreenReaders, HearNoMarkup)
{
    form.outputs.txtANStartTag.setToolTipText(u"<main class=\"wide\">"_s);
    form.autoRun.incANTiming.setToolTipText(
        u"Seconds that each page is given to arrive, however long the whole of it takes"_s);
    form.outputs.lblSummarySaved.setBackColor(Colours::Green);
    settle();
    EXPECT_EQ(of("txtANStartTag").text(QAccessible::Description), u"<main class=\"wide\">"_s);
    EXPECT_FALSE(of("incANTiming").text(QAccessible::Description).contains(u'<'));
    EXPECT_EQ(of("lblSummarySaved").text(QAccessible::Description), u"yes"_s);
}

TEST_F(ScreenReaders, PressWhatAnswersTheMouse)
{
    const Raised presses(form.collect.lblAutoPgUrls, &Control::mousePressed);
    QAccessibleActionInterface *const actions = of("lblAutoPgUrls").actionInterface();
    ASSERT_NE(actions, nullptr);
    EXPECT_TRUE(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
    actions->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(presses.times(), 1);
    form.collect.lblAutoPgUrls.setEnabled(false);
    settle();
    EXPECT_FALSE(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
    EXPECT_FALSE(of("picStatus").actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
}
