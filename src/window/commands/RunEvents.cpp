#include "window/commands/RunEvents.h"

#include "app/OptionNumbers.h"
#include "window/BrowserConnection.h"
#include "window/LifeCycle.h"

using namespace Qt::StringLiterals;

RunEvents::RunEvents(const Context &context, frmSearch &form, cTimer &timer, Desktop &desktop, AutoRun &run,
                     BrowserConnection &connection, LifeCycle &lifeCycle)
    : mContext(context), mForm(form), mTimer(timer), mDesktop(desktop)
{
    BrowserPanel &browser = form.browser;
    connect(&form.autoRun.cmdANStart, &Button::Click, this, [&run] { run.cmdANStart_Click(); });
    connect(&browser.cmdANInitialize, &Button::Click, this, [&connection] { connection.cmdANInitialize_Click(); });
    connect(&browser.cboANWBSelect, &ComboBox::Click, this, [&form, &connection] {
        if (form.mbFormReady)
            connection.cmdANInitialize_Click();
    });
    connect(&timer, &cTimer::TimeCount, this,
            [&browser](qint64 count) { browser.lblTrawlexTimer.setCaption(QString::number(count)); });
    connect(&browser.lblTrawlexTimer, &Label::mousePressed, this, &RunEvents::lblTrawlexTimer_MouseDown);
    connect(&browser.lblTrawlexTimer, &Label::mouseMoved, this, &RunEvents::lblTrawlexTimer_MouseMove);
    connect(&form.outputs.lblPageSaved, &Label::mousePressed, this, &RunEvents::lblPageSaved_MouseDown);
    connect(&browser.picANEnd, &PictureBox::mousePressed, this, [&connection, &lifeCycle](MouseButton button) {
        if (button == MouseButton::Left)
            lifeCycle.Terminate();
        else
            connection.SetStandardPosition();
    });
}

void RunEvents::lblTrawlexTimer_MouseDown(MouseButton button)
{
    if (!mForm.browser.mbInitialized)
        return;
    if (button == MouseButton::Right)
        return showWhatIsWaitedFor();
    mForm.browser.lblTrawlexTimer.setCaption(u"0"_s);
    mTimer.CancelTimer();
}

/// The start address of the tab "Auto", or what the tab "Manual" is at: the item, or the folder that downloads go to.
void RunEvents::showWhatIsWaitedFor()
{
    guarded(mContext.log, {"frmSearch"_L1, "Sub lblTrawlexTimer_MouseDown"_L1}, [&] {
        const int tab = mForm.frame.sstSearch.tab();
        if (tab == Tab::Auto)
            Q_EMIT savedUrlAsked();
        else if (tab == Tab::Manual && mForm.options.chkSMA(SMA::OpenDirOnTimer).value() == 1)
            mDesktop.open(mForm.places.txtSFMNDir.text());
        else if (tab == Tab::Manual)
            Q_EMIT activeItemAsked();
    });
}

void RunEvents::lblTrawlexTimer_MouseMove()
{
    const int tab = mForm.frame.sstSearch.tab();
    QString tip;
    if (tab == Tab::Auto)
        tip = u"Left click cancels timer. Right click to magnify Saved Url"_s;
    else if (tab != Tab::Manual)
        tip = u"Trawlex Timer (Sec). Left click cancels timer"_s;
    else if (mForm.options.chkSMA(SMA::OpenDirOnTimer).value() == 1)
        tip = u"(Left click) - cancel timer. Right click to open file save directory"_s;
    else
        tip = u"(Left click) - cancel timer. Right click to magnify active item"_s;
    mForm.browser.lblTrawlexTimer.setToolTipText(mContext.tips.ifShown(tip));
}

/// Pages that went into files are shown where they lie.
void RunEvents::lblPageSaved_MouseDown(MouseButton button)
{
    guarded(mContext.log, {"frmSearch"_L1, "Sub lblPageSaved_MouseDown"_L1}, [&] {
        const Outputs &outputs = mForm.outputs;
        if (button == MouseButton::Left && outputs.chkSaveToSS.value() != 1 && outputs.chkSaveToFile.value() == 1)
            mDesktop.open(mForm.places.txtSFMNDir.text());
    });
}
