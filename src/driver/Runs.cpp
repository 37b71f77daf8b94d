#include "driver/Runs.h"

using namespace Qt::StringLiterals;

namespace {
const QString goCaption = u"Go"_s;
const QString stopCaption = u"X"_s;
} // namespace

Runs::Runs(const Context &context, RunFlags &flags, BrowserPanel &browser, Button &cmdANStart, Button &cmdMNStart,
           cTimer &timer)
    : mContext(context), mFlags(flags), mBrowser(browser), mStartAuto(cmdANStart), mStartManual(cmdMNStart),
      mTimer(timer)
{
}

struct Runs::Row
{
    bool &running;
    bool &cancel;
    bool &stoppedOnPass;
    Button &start;
};

Runs::Row Runs::row(Kind kind) const
{
    if (kind == Kind::Auto)
        return {mFlags.mbANRunning, mFlags.mbANCancel, mFlags.mbANMCMNCStopped, mStartAuto};
    return {mFlags.mbMNRunning, mFlags.mbMNCancel, mFlags.mbMNMCMNCStopped, mStartManual};
}

bool Runs::isUnderWay(Kind kind) const
{
    return row(kind).running;
}

void Runs::begin(Kind kind)
{
    mReason.clear();
    mMessage.clear();
    row(kind).running = true;
    mContext.states.SetStateOfControls();
}

bool Runs::mayGoOn(Kind kind) const
{
    return !row(kind).cancel && mBrowser.mbInitialized;
}

bool Runs::mayGoOn() const
{
    return !idle() && mayGoOn(mFlags.mbANRunning ? Kind::Auto : Kind::Manual);
}

void Runs::showStop(Kind kind)
{
    Q_EMIT starting(kind);
    row(kind).start.setCaption(stopCaption);
    row(kind).cancel = false;
}

void Runs::cancel(Kind kind)
{
    row(kind).start.setCaption(goCaption);
    if (kind == Kind::Auto)
        mBrowser.lblTrawlexTimer.setCaption(u"0"_s);
    row(kind).cancel = true;
    mTimer.CancelTimer();
    Q_EMIT stopping();
}

bool Runs::stop()
{
    for (const Kind kind : {Kind::Auto, Kind::Manual}) {
        if (isUnderWay(kind))
            row(kind).cancel = true;
    }
    if (!idle())
        mTimer.CancelTimer();
    Q_EMIT stopping();
    return !idle();
}

void Runs::stopFor(const QString &status, const QString &message)
{
    if (!stop() || !mReason.isEmpty())
        return;
    mReason = status;
    mMessage = message;
}

std::optional<Runs::Kind> Runs::stopOnPass()
{
    for (const Kind kind : {Kind::Auto, Kind::Manual}) {
        if (!isUnderWay(kind))
            continue;
        row(kind).stoppedOnPass = true;
        row(kind).cancel = true;
        return kind;
    }
    return {};
}

bool Runs::isStopped(Kind kind) const
{
    return row(kind).cancel;
}

bool Runs::isStoppedOnPass(Kind kind) const
{
    return row(kind).stoppedOnPass;
}

void Runs::forgetPass(Kind kind)
{
    row(kind).stoppedOnPass = false;
}

void Runs::FinalizeProcess(const QString &status)
{
    for (const Kind kind : {Kind::Auto, Kind::Manual}) {
        row(kind).start.setCaption(goCaption);
        row(kind).running = false;
        row(kind).cancel = false;
    }
    mContext.status.UpDateStatus(status);
    mContext.states.SetStateOfControls();
    Q_EMIT finalized(status);
    if (!mMessage.isEmpty())
        mContext.dialogs.tell(u"* ERROR *"_s, std::exchange(mMessage, {}));
}
