// Controls set by name from a terminal.
#include "cli/ControlSetter.h"

#include "support/Fakes.h"

using namespace Qt::StringLiterals;

namespace {
QString refusal(frmSearch &form, const QString &name, const QString &value)
{
    try {
        setControl(form, name, value);
    } catch (const RuntimeError &error) {
        return error.description();
    }
    return {};
}
} // namespace

TEST(ControlSetter, SetsEachKindOfControl)
{
    frmSearch form;
    setControl(form, u"chkSaveSummary"_s, u"1"_s);
    setControl(form, u"chkSMA(9)"_s, u"1"_s);
    setControl(form, u"cboANSaveType"_s, u"Links"_s);
    setControl(form, u"cboANList"_s, u"3"_s);
    setControl(form, u"incANTiming"_s, u"5"_s);
    setControl(form, u"incNotFoundMinSize"_s, u"005000"_s);
    setControl(form, u"txtANStartTag"_s, u"<b>"_s);
    setControl(form, u"lstANMC"_s, u"tea"_s);
    setControl(form, u"lstANMC"_s, u"coffee"_s);
    EXPECT_EQ(form.outputs.chkSaveSummary.value(), 1);
    EXPECT_EQ(form.options.chkSMA(9).value(), 1);
    EXPECT_EQ(form.outputs.cboANSaveType.listIndex(), 2);
    EXPECT_EQ(form.saved.cboANList.text(), u"D"_s);
    EXPECT_EQ(form.autoRun.incANTiming.text(), u"005"_s);
    EXPECT_EQ(form.limits.incNotFoundMinSize.value(), 5000);
    EXPECT_EQ(form.outputs.txtANStartTag.text(), u"<b>"_s);
    EXPECT_EQ(form.criteria.mustContain.items.items(), (QStringList{u"tea"_s, u"coffee"_s}));
}

namespace {
struct RefusedCase
{
    const char *control;
    const char *value;
    const char *line;
};
class Refused : public testing::TestWithParam<RefusedCase>
{
};
} // namespace

TEST_P(Refused, IsOneClearLineAndChangesNothing)
{
    frmSearch form;
    EXPECT_EQ(refusal(form, QString::fromLatin1(GetParam().control), QString::fromLatin1(GetParam().value)),
              QString::fromLatin1(GetParam().line));
    EXPECT_EQ(form.outputs.chkSaveSummary.value(), 0);
    EXPECT_EQ(form.autoRun.incANTiming.value(), 0);
    EXPECT_EQ(form.saved.cboANList.listIndex(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    ControlSetter, Refused,
    testing::Values(RefusedCase{"chkNothing", "1", "--set chkNothing: there is no such control"},
                    RefusedCase{"chkSMA(10)", "1", "--set chkSMA(10): there is no such control"},
                    RefusedCase{"", "1", "--set : there is no such control"},
                    RefusedCase{"lblMCColor", "1", "--set lblMCColor: this control has no value"},
                    RefusedCase{"cmdANStart", "1", "--set cmdANStart: this control has no value"},
                    RefusedCase{"chkSaveSummary", "yes", "--set chkSaveSummary: a box takes 0 or 1, not \"yes\""},
                    RefusedCase{"chkSaveSummary", "2", "--set chkSaveSummary: a box takes 0 or 1, not \"2\""},
                    RefusedCase{"cboANList", "F", "--set cboANList: there is no item \"F\""},
                    RefusedCase{"cboANList", "5", "--set cboANList: there is no item \"5\""},
                    RefusedCase{"cboANList", "-1", "--set cboANList: there is no item \"-1\""},
                    RefusedCase{"incANTiming", "1000", "--set incANTiming: takes up to 3 digits, not \"1000\""},
                    RefusedCase{"incANTiming", "-5", "--set incANTiming: takes up to 3 digits, not \"-5\""},
                    RefusedCase{"incANTiming", "", "--set incANTiming: takes up to 3 digits, not \"\""},
                    RefusedCase{"incANTiming", "1.5", "--set incANTiming: takes up to 3 digits, not \"1.5\""},
                    RefusedCase{"incANTiming", "+0", "--set incANTiming: takes up to 3 digits, not \"+0\""}),
    [](const auto &row) { return "row" + std::to_string(row.index); });

TEST(ControlSetter, ClicksAMenuItemThatHasNotTheWantedMark)
{
    frmSearch form;
    MenuItem &item = form.menus.mnuPopUpMNStatus.item("mnuMNUseAutoBase"_L1);
    QObject::connect(&item, &MenuItem::Click, &form, [&] { item.setChecked(!item.isChecked()); });
    setControl(form, item.name(), u"0"_s);
    EXPECT_FALSE(item.isChecked());
    setControl(form, item.name(), u"1"_s);
    EXPECT_TRUE(item.isChecked());
    setControl(form, item.name(), u"1"_s);
    EXPECT_TRUE(item.isChecked());
    setControl(form, item.name(), u"0"_s);
    EXPECT_FALSE(item.isChecked());
    EXPECT_EQ(refusal(form, item.name(), u"on"_s), u"--set mnuMNUseAutoBase: a menu item takes 0 or 1, not \"on\""_s);
    item.setEnabled(false);
    EXPECT_EQ(refusal(form, item.name(), u"1"_s),
              u"--set mnuMNUseAutoBase: this menu item is disabled at the moment"_s);
}
