// Controls set by name from a terminal.
#include "cli/ControlSetter.h"

#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {
void setControl(frmSearch &form, const QString &name, const QString &value)
{
    CountingStates states;
    setControls(form, states, {{name, value}});
}

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
                    RefusedCase{"chkSMA(11)", "1", "--set chkSMA(11): there is no such control"},
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

// In any order.

namespace {
/// A value that each kind of control takes.
QString sample(const Control &control)
{
    if (qobject_cast<const ListBox *>(&control) || qobject_cast<const TextBox *>(&control))
        return u"tea"_s;
    if (const auto *combo = qobject_cast<const ComboBox *>(&control); combo && combo->listCount() == 0)
        return u"www.tea.com"_s;
    return control.hasValue() ? u"1"_s : QString();
}

/// All that a user can set.
QList<Arguments::Setting> samples(const frmSearch &form)
{
    QList<Arguments::Setting> all;
    for (const Control *control : form.findChildren<Control *>(Qt::FindDirectChildrenOnly)) {
        if (const QString value = sample(*control); !value.isEmpty())
            all.append({control->name(), value});
    }
    return all;
}

QStringList names(const QList<Arguments::Setting> &settings)
{
    QStringList all;
    for (const Arguments::Setting &setting : settings)
        all.append(setting.control);
    return all;
}

class AnyOrder : public ProgramTest
{
  protected:
    /// A form in a program of its own, with both set in this order.
    void start(const Arguments::Setting &one, const Arguments::Setting &other)
    {
        if (program)
            program->lifeCycle.end();
        program.reset();
        load();
        if (!mFilled) {
            mFilled = true;
            addSaved(u"Results-100"_s, u"http://www.a.com/"_s, u"RPgUrlsA"_s);
            addSaved(u"Results-200"_s, u"http://www.c.com/"_s, u"RPgUrlsC"_s);
            addSaved(u"Results-201"_s, u"http://www.cc.com/"_s, u"RPgUrlsC"_s);
            for (const auto *set : {"One", "Two"}) {
                for (const auto *table : {"MC", "MNC"})
                    addRow(database(), QString::fromLatin1(table),
                           {{u"MaskName"_s, QString::fromLatin1(set)}, {u"Item-1"_s, QString::fromLatin1(set)}});
            }
            program->loader.LoadDBData(false);
        }
        form().outputs.chkMCMNCStop.setValue(1);
        setControls(form(), program->states, {one, other});
    }
    [[nodiscard]] QStringList everything()
    {
        QStringList all;
        for (const Control *control : form().findChildren<Control *>(Qt::FindDirectChildrenOnly)) {
            const auto *list = qobject_cast<const ListControl *>(control);
            all.append(control->name() + u' ' + control->stored() + (control->isEnabled() ? u" on "_s : u" off "_s) +
                       (list ? list->items().join(u',') : QString()));
        }
        return all;
    }

  private:
    bool mFilled = false;
};
} // namespace

TEST(ControlSetter, EveryPairOfControlsIsSetInOneOrderHoweverItWasGiven)
{
    const frmSearch form;
    const QList<Arguments::Setting> all = samples(form);
    ASSERT_GT(all.size(), 100);
    const QStringList order = names(inOrderOfSetting(form, all));
    QHash<QString, qsizetype> places;
    for (qsizetype i = 0; i < order.size(); ++i)
        places.insert(order[i], i);
    for (const Arguments::Setting &one : all) {
        for (const Arguments::Setting &other : all) {
            const QStringList pair = names(inOrderOfSetting(form, {one, other}));
            ASSERT_LE(places[pair[0]], places[pair[1]]) << pair.join(u' ').toStdString();
        }
    }
}

TEST(ControlSetter, ValuesOfOneControlStayInTheirOrder)
{
    frmSearch form;
    CountingStates states;
    setControls(form, states, {{u"lstANMC"_s, u"tea"_s}, {u"cboANList"_s, u"B"_s}, {u"lstANMC"_s, u"ale"_s}});
    EXPECT_EQ(form.criteria.mustContain.items.items(), (QStringList{u"tea"_s, u"ale"_s}));
}

TEST(ControlSetter, AnUnknownNameChangesNothingAtAll)
{
    frmSearch form;
    CountingStates states;
    EXPECT_THROW(setControls(form, states, {{u"chkSaveSummary"_s, u"1"_s}, {u"chkNothing"_s, u"1"_s}}), RuntimeError);
    EXPECT_EQ(form.outputs.chkSaveSummary.value(), 0);
}

TEST_F(AnyOrder, WhatFillsOthersAndWhatItFillsAgreeInBothOrders)
{
    const std::pair<Arguments::Setting, Arguments::Setting> pairs[] = {
        {{u"cboANList"_s, u"C"_s}, {u"cboANSavedUrls"_s, u"Results-201"_s}},
        {{u"cboANList"_s, u"C"_s}, {u"chkUseSavedUrls"_s, u"1"_s}},
        {{u"cboANMCMNCMask"_s, u"Two"_s}, {u"lstANMC"_s, u"tea"_s}},
        {{u"cboANMCMNCMask"_s, u"Two"_s}, {u"lstANMCAllAny"_s, u"Select"_s}},
        {{u"lstANMNC"_s, u"tea"_s}, {u"lstANMNCAllAny"_s, u"Select"_s}},
        {{u"chkMustContain"_s, u"1"_s}, {u"chkSaveSummary"_s, u"1"_s}},
        {{u"chkSavePages"_s, u"1"_s}, {u"cboANSaveType"_s, u"Links"_s}},
        {{u"cboMNList"_s, u"B"_s}, {u"cboMNAutoUrl"_s, u"www.tea.com/1"_s}},
    };
    for (const auto &[one, other] : pairs) {
        start(one, other);
        const QStringList first = everything();
        start(other, one);
        EXPECT_EQ(first.join(u'\n'), everything().join(u'\n')) << one.control.toStdString();
    }
}

TEST_F(AnyOrder, TheListThatIsChosenIsTheOneThatIsWalked)
{
    start({u"chkUseSavedUrls"_s, u"1"_s}, {u"cboANList"_s, u"C"_s});
    EXPECT_EQ(form().saved.cboANSavedUrls.items(), (QStringList{u"Results-200"_s, u"Results-201"_s}));
    EXPECT_EQ(form().saved.chkUseSavedUrls.value(), 1);
}

TEST_F(AnyOrder, AnItemStaysWhenItsSetIsChosenBehindIt)
{
    start({u"lstANMC"_s, u"tea"_s}, {u"cboANMCMNCMask"_s, u"Two"_s});
    EXPECT_EQ(form().criteria.mustContain.items.items(), (QStringList{u"Two"_s, u"tea"_s}));
    EXPECT_EQ(form().criteria.mustNotContain.items.items(), QStringList{u"Two"_s});
}

TEST_F(AnyOrder, SelectNeverStandsWithNothingSelected)
{
    start({u"lstANMCAllAny"_s, u"Select"_s}, {u"cboANMCMNCMask"_s, u"Two"_s});
    EXPECT_EQ(form().criteria.mustContain.demand.text(), u"Select"_s);
    EXPECT_TRUE(form().criteria.mustContain.items.isSelected(0));
    for (const auto *table : {"MC", "MNC"})
        (void)database().GetRecordset("DELETE * FROM "_L1 + QLatin1StringView(table));
    start({u"lstANMCAllAny"_s, u"Select"_s}, {u"chkSaveSummary"_s, u"1"_s});
    EXPECT_EQ(form().criteria.mustContain.items.listCount(), 0);
    EXPECT_EQ(form().criteria.mustContain.demand.text(), u"All"_s);
}
