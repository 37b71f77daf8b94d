#include "window/commands/AutoTab.h"

#include "window/BrowserConnection.h"
#include "window/LifeCycle.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
constexpr int autoTabIndex = 0;
constexpr int manualTabIndex = 1;
constexpr int settingsTabIndex = 2;
constexpr int filesTabIndex = 1;
constexpr int miscTabIndex = 2;

/// A tab as the status bar knows it: where it is, what its tool tip says, how its double click is named.
struct TabRow
{
    QLatin1StringView caption; ///< of the innermost tab
    QLatin1StringView tip;
    QLatin1StringView unassigned; ///< empty where a double click does something
};

constexpr TabRow tabRows[] = {
    {"Auto"_L1, "Add select Url [ANSelectUrls]"_L1, {}},
    {"Manual"_L1, "Add select Url [MNSelectUrls]"_L1, {}},
    {"Blocking"_L1, "Settings/Blocking Not assigned"_L1, "Blocking"_L1},
    {"Directory"_L1, "Settings/Files/Files Not assigned"_L1, "Directory"_L1},
    {"Import"_L1, "Settings/Files/Import Not assigned"_L1, "Import"_L1},
    {"A-M"_L1, "Settings/Misc/A-M Not assigned"_L1, "A-M"_L1},
    {"Save"_L1, "Settings/Misc/Data Not assigned"_L1, "Save"_L1},
    {"View"_L1, "Settings/Misc/View Not assigned"_L1, "View"_L1},
    {"Sites"_L1, "Clear fields and add title and Url from web browser"_L1, {}},
    {"Data"_L1, "Data Not assigned"_L1, "DB"_L1},
};

QString caption(const TabControl &tabs)
{
    return tabs.captions().value(tabs.tab());
}

/// The captions of the tabs in force on the Settings tab, from "Settings" inwards.
QStringList settingsPath(const frmSearch &form)
{
    QStringList path{caption(form.frame.sstSearch), caption(form.frame.sstSettings)};
    if (form.frame.sstSettings.tab() == filesTabIndex)
        path.append(caption(form.frame.sstFiles));
    else if (form.frame.sstSettings.tab() == miscTabIndex)
        path.append(caption(form.frame.sstMiscOptions));
    return path;
}

const TabRow &tabInForce(const frmSearch &form)
{
    const QString innermost =
        form.frame.sstSearch.tab() == settingsTabIndex ? settingsPath(form).constLast() : caption(form.frame.sstSearch);
    return *std::find_if(std::begin(tabRows), std::end(tabRows),
                         [&](const TabRow &row) { return row.caption == innermost; });
}
} // namespace

AutoTab::AutoTab(const Parts &parts) : m(parts)
{
    connectRun();
    connectSavedUrls();
    connectStatus();
}

void AutoTab::connectRun()
{
    connect(&m.form.autoRun.cmdANStart, &Button::Click, this, [this] { m.run.cmdANStart_Click(); });
    connect(&m.form.browser.cmdANInitialize, &Button::Click, this, [this] { m.connection.cmdANInitialize_Click(); });
    connect(&m.form.browser.cboANWBSelect, &ComboBox::Click, this, [this] {
        if (m.form.mbFormReady)
            m.connection.cmdANInitialize_Click();
    });
    connect(&m.timer, &cTimer::TimeCount, this,
            [this](qint64 count) { m.form.browser.lblTrawlexTimer.setCaption(QString::number(count)); });
    connect(&m.form.browser.lblTrawlexTimer, &Label::mousePressed, this, &AutoTab::lblTrawlexTimer_MouseDown);
    connect(&m.form.browser.lblTrawlexTimer, &Label::mouseMoved, this, &AutoTab::lblTrawlexTimer_MouseMove);
    connect(&m.form.collect.lblAutoCollect, &Label::mousePressed, this, &AutoTab::lblAutoCollect_MouseDown);
    connect(&m.form.collect.lblAutoCollect, &Label::mouseMoved, this, &AutoTab::lblAutoCollect_MouseMove);
    connect(&m.form.outputs.lblPageSaved, &Label::mousePressed, this, &AutoTab::lblPageSaved_MouseDown);
    connect(&m.form.browser.picANEnd, &PictureBox::mousePressed, this, [this](MouseButton button) {
        if (button == MouseButton::Left)
            m.lifeCycle.Terminate();
        else
            m.connection.SetStandardPosition();
    });
}

void AutoTab::connectSavedUrls()
{
    connect(&m.form.saved.cmdANSavedAdd, &Button::Click, this, [this] { m.savedUrls.AddSavedUrl(true, {}); });
    connect(&m.form.saved.cmdANSavedAdd, &Button::Click, this, [this] { m.states.SetStateOfControls(); });
    connect(&m.form.saved.cmdANSavedMinus, &Button::Click, this, [this] { m.savedUrls.RemoveSavedUrl(); });
    connect(&m.form.saved.cmdANSavedGo, &Button::Click, this, [this] { m.savedUrls.cmdANSavedGo_Click(); });
    connect(&m.form.saved.cboANSavedUrls, &ComboBox::Click, this, [this] { m.states.SetStateOfControls(); });
    connect(&m.form.saved.cboANList, &ComboBox::DropDown, this, [this] { m.savedUrls.SaveSavedUrlPos(); });
    connect(&m.form.saved.cboANList, &ComboBox::Click, this, &AutoTab::cboANList_Click);
}

void AutoTab::connectStatus()
{
    connect(&m.form.frame.sstSearch, &TabControl::Click, this, [this] { tab_Click(false); });
    for (const TabControl *tabs : {&m.form.frame.sstSettings, &m.form.frame.sstFiles, &m.form.frame.sstMiscOptions})
        connect(tabs, &TabControl::Click, this, [this] { tab_Click(true); });
    connect(&m.form.frame.picStatus, &PictureBox::mouseMoved, this, [this] {
        m.status.UpDateStatus({}, "Double Click "_L1 + tabInForce(m.form).tip + " Right click for menu"_L1);
    });
    connect(&m.form.frame.picStatus, &PictureBox::doubleClicked, this, &AutoTab::picStatus_DblClick);
}

void AutoTab::picStatus_DblClick()
{
    if (!m.form.browser.mbInitialized)
        return m.status.UpDateStatus(u"Not initialized"_s);
    if (const QLatin1StringView name = tabInForce(m.form).unassigned; !name.isEmpty())
        m.status.UpDateStatus(name + " double click, unassigned"_L1);
}

void AutoTab::lblTrawlexTimer_MouseDown(MouseButton button)
{
    if (!m.form.browser.mbInitialized || button != MouseButton::Left)
        return;
    m.form.browser.lblTrawlexTimer.setCaption(u"0"_s);
    m.timer.CancelTimer();
}

void AutoTab::lblTrawlexTimer_MouseMove()
{
    QString tip;
    if (m.form.options.chkSMV(0).value() == 1) {
        const int tab = m.form.frame.sstSearch.tab();
        if (tab == autoTabIndex)
            tip = u"Left click cancels timer. Right click to magnify Saved Url"_s;
        else if (tab != manualTabIndex)
            tip = u"Trawlex Timer (Sec). Left click cancels timer"_s;
        else if (m.form.options.chkSMA(8).value() == 1)
            tip = u"(Left click) - cancel timer. Right click to open file save directory"_s;
        else
            tip = u"(Left click) - cancel timer. Right click to magnify active item"_s;
    }
    m.form.browser.lblTrawlexTimer.setToolTipText(tip);
}

void AutoTab::lblAutoCollect_MouseDown(MouseButton button)
{
    if (m.form.frame.sstSearch.tab() != autoTabIndex)
        return;
    if (button == MouseButton::Left)
        m.blocking.addQuickBlock();
    else
        m.blocking.clearQuickBlock();
}

void AutoTab::lblAutoCollect_MouseMove()
{
    if (m.form.frame.sstSearch.tab() != autoTabIndex || m.form.options.chkSMV(0).value() != 1)
        return;
    const QStringList &blocked = m.form.blocking.mastrQB;
    const QString count = firstOf(blocked).isEmpty() ? QString() : QString::number(blocked.size());
    m.form.collect.lblAutoCollect.setToolTipText("Left click Add Quick Block. Right click Clear Quick Block. "_L1 +
                                                 count + " blocked"_L1);
}

/// Pages that went into files are shown where they lie.
void AutoTab::lblPageSaved_MouseDown(MouseButton button)
{
    guarded(m.log, {module, "Sub lblPageSaved_MouseDown"_L1}, [&] {
        if (button == MouseButton::Left && m.form.outputs.chkSaveToSS.value() != 1 &&
            m.form.outputs.chkSaveToFile.value() == 1)
            m.desktop.open(m.form.places.txtSFMNDir.text());
    });
}

void AutoTab::cboANList_Click()
{
    guarded(m.log, {module, "Sub cboANList_Click"_L1}, [&] {
        if (!m.form.mbFormReady)
            return;
        m.savedUrls.LoadSavedUrls(SavedUrls::Kind::SavedUrl);
        m.savedUrls.SetSavedUrlPos();
        m.run.ResetProcessAN();
        m.status.UpDateStatus(u"%1 loaded"_s.arg(m.form.saved.cboANSavedUrls.listCount()));
    });
}

/// Tells where the user is: on the outer tabs one step into the Settings, on the inner ones all the way.
void AutoTab::tab_Click(bool ofSettings)
{
    const bool onSettings = m.form.frame.sstSearch.tab() == settingsTabIndex;
    const QStringList path =
        ofSettings || onSettings ? settingsPath(m.form) : QStringList{caption(m.form.frame.sstSearch)};
    // What is set back for the new tab reports too; the last word is where the user is.
    m.states.SetStateOfControls();
    m.status.UpDateStatus(ofSettings ? path.join(" - "_L1) : path.mid(0, 2).join(" - "_L1));
}
