// Widgets and controls find one another by name; nothing is left over.
#include "WindowFixture.h"

#include <QCheckBox>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {
/// The controls that the tab "Auto", the tab strip and the status bar must show.
const QStringList shownControls{
    u"sstSearch"_s,       u"picStatus"_s,         u"picANEnd"_s,         u"cmdANStart"_s,      u"cmdANInitialize"_s,
    u"lblTrawlexTimer"_s, u"incANTiming"_s,       u"cboANWBSelect"_s,    u"chkUseSavedUrls"_s, u"cboANList"_s,
    u"cboANSavedUrls"_s,  u"cmdANSavedAdd"_s,     u"cmdANSavedMinus"_s,  u"cmdANSavedGo"_s,    u"chkSaveSummary"_s,
    u"chkSavePages"_s,    u"chkSaveEmail"_s,      u"chkSavePhone"_s,     u"chkSaveUrl"_s,      u"chkMCMNCStop"_s,
    u"lblSummarySaved"_s, u"lblPageSaved"_s,      u"lblEmailSaved"_s,    u"lblPhoneSaved"_s,   u"lblUrlSaved"_s,
    u"cboANSaveType"_s,   u"txtANStartTag"_s,     u"txtANStopTag"_s,     u"chkUrlBlocking"_s,  u"chkEmailBlocking"_s,
    u"cboANMCMNCMask"_s,  u"cmdANMCMaskAdd"_s,    u"cmdANMCMaskMinus"_s, u"cmdANAddMC"_s,      u"cmdANAddMNC"_s,
    u"chkMustContain"_s,  u"chkMustNotContain"_s, u"chkMCCS"_s,          u"chkMNCCS"_s,        u"lblMCColor"_s,
    u"lblMNCColor"_s,     u"lstANMC"_s,           u"lstANMNC"_s,         u"lstANMCAllAny"_s,   u"lstANMNCAllAny"_s,
    u"lblAutoCollect"_s,  u"lblAutoPgUrls"_s,     u"lblAutoIncrPos"_s};
} // namespace

struct Names : WindowFixture
{
};

TEST_F(Names, EachControlOfTheAutoTabIsBoundToItsWidget)
{
    const QStringList bound = window.binder().boundControls();
    for (const QString &name : shownControls)
        EXPECT_TRUE(bound.contains(name)) << qPrintable(name);
}

TEST_F(Names, EachControlOfTheFormStandsSomewhere)
{
    const QStringList bound = window.binder().boundControls();
    for (const Control *const control : form.findChildren<Control *>(Qt::FindDirectChildrenOnly)) {
        const bool ofMenu =
            qobject_cast<const Menu *>(control) != nullptr || qobject_cast<const MenuItem *>(control) != nullptr;
        EXPECT_TRUE(ofMenu || bound.contains(control->name())) << qPrintable(control->name());
    }
    EXPECT_GE(bound.size(), 190);
}

TEST_F(Names, TheOptionSwitchesAreBoundMemberByMember)
{
    const QStringList bound = window.binder().boundControls();
    struct Array
    {
        const char *name;
        int count;
    };
    for (const Array &array : {Array{"chkSMA", 10}, Array{"chkSMD", 9}, Array{"chkSMV", 5}}) {
        for (int i = 0; i < array.count; ++i) {
            const QString name = u"%1(%2)"_s.arg(QLatin1StringView(array.name)).arg(i);
            EXPECT_TRUE(bound.contains(name)) << qPrintable(name);
        }
    }
    form.options.chkSMV(2).setCaption(u"Block PopUp Windows"_s);
    form.options.chkSMV(2).setValue(1);
    settle();
    EXPECT_EQ(widget<QCheckBox>("chkSMV_2").text(), u"Block PopUp Windows"_s);
    EXPECT_TRUE(widget<QCheckBox>("chkSMV_2").isChecked());
    EXPECT_EQ(widget<QCheckBox>("chkSMV_2").accessibleName(), u"Block PopUp Windows"_s);
}

TEST_F(Names, EachWidgetNamedLikeAControlHasOne)
{
    static const QRegularExpression controlName(u"^(cmd|chk|cbo|lst|txt|lbl|inc|pic|sst|tmr|mnu|fxg)[A-Z]"_s);
    const QStringList bound = window.binder().boundControls();
    QStringList boundWidgets;
    for (const QString &name : bound)
        boundWidgets.append(Binder::widgetName(name));
    for (const QWidget *const widget : window.findChildren<QWidget *>()) {
        if (controlName.match(widget->objectName()).hasMatch()) {
            const QString name = widget->objectName().section(u"_on"_s, 0, 0);
            EXPECT_TRUE(boundWidgets.contains(name)) << qPrintable(widget->objectName());
        }
    }
}

TEST_F(Names, NoNameStandsTwice)
{
    for (const QString &name : window.binder().boundControls()) {
        EXPECT_EQ(window.findChildren<QWidget *>(Binder::widgetName(name)).size(), 1) << qPrintable(name);
    }
}

TEST_F(Names, AnArrayMemberIsWrittenWithAnUnderscore)
{
    EXPECT_EQ(Binder::widgetName(u"chkSMA(9)"_s), u"chkSMA_9"_s);
    EXPECT_EQ(Binder::widgetName(u"picStatus"_s), u"picStatus"_s);
}

TEST_F(Names, EveryWidgetHasAnAccessibleNameEvenWithoutToolTips)
{
    for (const QString &name : shownControls) {
        const auto *const widget = window.findChild<QWidget *>(Binder::widgetName(name));
        if (name != u"picStatus"_s) {
            EXPECT_FALSE(widget->accessibleName().isEmpty()) << qPrintable(name);
        }
    }
}

TEST_F(Names, TheAccessibleNameIsTheCaptionOrElseTheToolTip)
{
    form.autoRun.cmdANStart.setToolTipText(u"Go = Start"_s);
    form.saved.cmdANSavedAdd.setToolTipText(u"Save the page"_s);
    form.outputs.chkSaveSummary.setToolTipText(u"Save a summary"_s);
    form.saved.cboANList.setToolTipText(u"List of saved pages"_s);
    form.autoRun.incANTiming.setToolTipText(u"Seconds"_s);
    form.frame.picStatus.print(u"3/14 http://www.north-harbour.example/contact/"_s);
    settle();
    EXPECT_EQ(widget<QWidget>("cmdANStart").accessibleName(), u"Go"_s);
    EXPECT_EQ(widget<QWidget>("cmdANSavedAdd").accessibleName(), u"Save the page"_s);
    EXPECT_EQ(widget<QWidget>("chkSaveSummary").accessibleName(), u"Summary"_s);
    EXPECT_EQ(widget<QWidget>("cboANList").accessibleName(), u"List of saved pages"_s);
    EXPECT_EQ(widget<QWidget>("incANTiming").focusProxy()->accessibleName(), u"Seconds"_s);
    EXPECT_EQ(widget<QWidget>("picStatus").accessibleName(), u"3/14 http://www.north-harbour.example/contact/"_s);
}
