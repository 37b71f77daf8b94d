#include "window/AutoTab.h"

#include "web/Addresses.h"
#include "window/BrowserConnection.h"
#include "window/LifeCycle.h"

using namespace Qt::StringLiterals;

namespace
{
constexpr auto module = "frmSearch"_L1;
constexpr int autoTabIndex = 0;
constexpr int manualTabIndex = 1;
constexpr int settingsTabIndex = 2;
} // namespace

AutoTab::AutoTab(const Parts &parts) : m(parts)
{
    connectRun();
    connectSavedUrls();
    connectStatus();
}

void AutoTab::connectRun()
{
    connect(&m.form.cmdANStart, &Button::Click, this, [this] { m.run.cmdANStart_Click(); });
    connect(&m.form.cmdANInitialize, &Button::Click, this, [this] { m.connection.cmdANInitialize_Click(); });
    connect(&m.form.cboANWBSelect, &ComboBox::Click, this, [this] {
        if (m.form.mbFormReady)
            m.connection.cmdANInitialize_Click();
    });
    connect(&m.timer, &cTimer::TimeCount, this,
            [this](qint64 count) { m.form.lblTrawlexTimer.setCaption(QString::number(count)); });
    connect(&m.form.lblTrawlexTimer, &Label::mousePressed, this, &AutoTab::lblTrawlexTimer_MouseDown);
    connect(&m.form.lblTrawlexTimer, &Label::mouseMoved, this, &AutoTab::lblTrawlexTimer_MouseMove);
    connect(&m.form.lblAutoCollect, &Label::mousePressed, this, &AutoTab::lblAutoCollect_MouseDown);
    connect(&m.form.picANEnd, &PictureBox::mousePressed, this, [this](MouseButton button) {
        if (button == MouseButton::Left)
            m.lifeCycle.Terminate();
        else
            m.connection.SetStandardPosition();
    });
}

void AutoTab::connectSavedUrls()
{
    connect(&m.form.cmdANSavedAdd, &Button::Click, this, [this] { m.savedUrls.AddSavedUrl(true, {}); });
    connect(&m.form.cmdANSavedAdd, &Button::Click, this, [this] { m.states.SetStateOfControls(); });
    connect(&m.form.cmdANSavedMinus, &Button::Click, this, [this] { m.savedUrls.RemoveSavedUrl(); });
    connect(&m.form.cmdANSavedGo, &Button::Click, this, [this] { m.savedUrls.cmdANSavedGo_Click(); });
    connect(&m.form.cboANSavedUrls, &ComboBox::Click, this, [this] { m.states.SetStateOfControls(); });
    connect(&m.form.cboANList, &ComboBox::DropDown, this, [this] { m.savedUrls.SaveSavedUrlPos(); });
    connect(&m.form.cboANList, &ComboBox::Click, this, &AutoTab::cboANList_Click);
}

void AutoTab::connectStatus()
{
    connect(&m.form.sstSearch, &TabControl::Click, this, &AutoTab::sstSearch_Click);
    connect(&m.form.picStatus, &PictureBox::mouseMoved, this, [this] {
        const int tab = m.form.sstSearch.tab();
        const QString middle = tab == autoTabIndex     ? u"Add select Url [ANSelectUrls]"_s
                               : tab == manualTabIndex ? u"Add select Url [MNSelectUrls]"_s
                                                       : m.form.sstSearch.captions().value(tab) + " Not assigned"_L1;
        m.status.UpDateStatus({}, "Double Click "_L1 + middle + " Right click for menu"_L1);
    });
}

void AutoTab::lblTrawlexTimer_MouseDown(MouseButton button)
{
    if (!m.form.mbInitialized || button != MouseButton::Left)
        return;
    m.form.lblTrawlexTimer.setCaption(u"0"_s);
    m.timer.CancelTimer();
}

void AutoTab::lblTrawlexTimer_MouseMove()
{
    QString tip;
    if (m.form.chkSMV(0).value() == 1) {
        const int tab = m.form.sstSearch.tab();
        if (tab == autoTabIndex)
            tip = u"Left click cancels timer. Right click to magnify Saved Url"_s;
        else if (tab != manualTabIndex)
            tip = u"Trawlex Timer (Sec). Left click cancels timer"_s;
        else if (m.form.chkSMA(8).value() == 1)
            tip = u"(Left click) - cancel timer. Right click to open file save directory"_s;
        else
            tip = u"(Left click) - cancel timer. Right click to magnify active item"_s;
    }
    m.form.lblTrawlexTimer.setToolTipText(tip);
}

/// The Quick Block list: the server of the page on show is added, or all are dropped.
void AutoTab::lblAutoCollect_MouseDown(MouseButton button)
{
    guarded(m.log, {module, "Sub lblAutoCollect_MouseDown"_L1}, [&] {
        if (m.form.sstSearch.tab() != autoTabIndex)
            return;
        QStringList &blocked = m.form.mastrQB;
        if (button == MouseButton::Right) {
            blocked = emptyList();
            return m.status.UpDateStatus(u"Quick Block Cleared"_s);
        }
        const QString server = cIEText::GetServerFromUrl(m.browser->GetSiteUrl(), {false, false, false});
        if (server.isEmpty())
            return m.status.UpDateStatus(u"Nothing to add"_s);
        if (blocked.contains(server))
            return m.status.UpDateStatus("Exists "_L1 + server);
        if (firstOf(blocked).isEmpty())
            blocked.clear();
        blocked.append(server);
        m.status.UpDateStatus("QB added "_L1 + server);
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
        m.status.UpDateStatus(u"%1 loaded"_s.arg(m.form.cboANSavedUrls.listCount()));
    });
}

void AutoTab::sstSearch_Click()
{
    const int tab = m.form.sstSearch.tab();
    QString status = m.form.sstSearch.captions().value(tab);
    if (tab == settingsTabIndex)
        status += " - "_L1 + m.form.sstSettings.captions().value(m.form.sstSettings.tab());
    m.status.UpDateStatus(status);
    m.states.SetStateOfControls();
}
