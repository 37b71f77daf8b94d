#include "window/LifeCycle.h"

#include <QTimer>

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
} // namespace

LifeCycle::LifeCycle(const Context &context, frmSearch &form, cTimer &timer, Runs &runs, BrowserHolder &browser,
                     BrowserConnection &connection, LongWork &work)
    : mContext(context), mForm(form), mTimer(timer), mRuns(runs), mBrowser(browser), mConnection(connection),
      mWork(work)
{
    // A run that has been told to end may still have a wait before it; that wait is over as it begins.
    connect(&mTimer, &cTimer::started, this, [this] {
        if (mEnding)
            mTimer.CancelTimer();
    });
}

void LifeCycle::Terminate()
{
    const bool asks = mForm.options.chkSMA(SMA::PromptBeforeEnd).value() == 1;
    if (asks && mContext.dialogs.ask(u"Program will terminate"_s, u"Shut down Trawlex?"_s, UserDialogs::Icon::Critical,
                                     UserDialogs::Answer::Yes) != UserDialogs::Answer::Yes)
        return;
    end();
}

void LifeCycle::stopRun()
{
    guarded(mContext.log, {module, "Sub Terminate"_L1}, [&] {
        if (mRuns.stop() && mBrowser.isSet())
            mBrowser->IEStop();
    });
}

void LifeCycle::end()
{
    mEnding = true;
    mConnection.giveUp();
    stopRun();
    mWork.cancel();
    // No object goes away while a run, a long command or the connecting of a browser stands on the stack.
    if (mRuns.idle() && !mWork.isUnderWay() && mHolds == 0)
        Form_Unload();
}

void LifeCycle::endWithoutSaving()
{
    mSaving = false;
    end();
}

void LifeCycle::unwound()
{
    if (mEnding)
        QTimer::singleShot(0, this, &LifeCycle::end);
}

void LifeCycle::Form_Unload()
{
    if (mUnloaded)
        return;
    mUnloaded = true;
    guarded(mContext.log, {module, "Sub Form_Unload"_L1}, [&] {
        if (mForm.mbFormReady && mSaving)
            Q_EMIT saving();
        Q_EMIT releasing();
    });
    Q_EMIT ended();
}
