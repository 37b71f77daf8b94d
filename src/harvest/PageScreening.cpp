#include "harvest/PageScreening.h"

using namespace Qt::StringLiterals;

namespace {
Colour reported(bool on, bool saved)
{
    return !on ? Colours::ButtonFace : saved ? Colours::Green : Colours::Red;
}
} // namespace

KeepingOrder PageScreening::order() const
{
    return {
        .summary = mOutputs.chkSaveSummary.isOn(),
        .page =
            mOutputs.chkSavePages.isOn() && (mOutputs.chkSaveToFile.value() == 1 || mOutputs.chkSaveToSS.value() == 1),
        .email = mOutputs.chkSaveEmail.isOn(),
        .phone = mOutputs.chkSavePhone.isOn(),
        .url = mOutputs.chkSaveUrl.isOn(),
    };
}

bool PageScreening::CollectData(PageReading &page)
{
    return guardedResult(mContext.log, {"frmSearch"_L1, "Sub CollectData"_L1}, true,
                         [&](bool &done) { done = screen(page); });
}

bool PageScreening::screen(PageReading &page)
{
    const KeepingOrder wanted = order();
    const qint64 least = mLimits.incSMDMinHtmlSize.value();
    const bool isLookedAt = least > 0 || mTests.areOn() || !wanted.isEmpty();
    if (isLookedAt && !page.isReadable()) {
        leaveOut(u"Not readable"_s);
        return true;
    }
    if (least > 0 && page.html().size() < least) {
        leaveOut(u"Insufficient Size"_s);
        return true;
    }
    if (!mTests.IsMCGo(page) || !mTests.IsMNCGo(page)) {
        mEndMark.setBackColor(mOutputs.chkMCMNCStop.isOn() ? Colours::Green : Colours::ButtonFace);
        return true;
    }
    Kept kept;
    const bool isKept = mKeeping.keep(page, wanted, kept);
    if (isKept)
        mEndMark.setBackColor(passed());
    showOutcome(wanted, kept);
    return isKept;
}

void PageScreening::leaveOut(const QString &status)
{
    for (Label *lamp : {&mOutputs.lblSummarySaved, &mOutputs.lblPageSaved, &mOutputs.lblEmailSaved,
                        &mOutputs.lblPhoneSaved, &mOutputs.lblUrlSaved})
        lamp->setBackColor(Colours::ButtonFace);
    mContext.status.UpDateStatus(status);
}

/// The colour of the end mark for a page that has passed: the run that is stopped by that, if one is.
Colour PageScreening::passed()
{
    if (!mOutputs.chkMCMNCStop.isOn())
        return Colours::ButtonFace;
    const std::optional<Runs::Kind> stopped = mRuns.stopOnPass();
    return !stopped ? Colours::ButtonFace : *stopped == Runs::Kind::Auto ? Colours::Red : Colours::Blue;
}

void PageScreening::showOutcome(const KeepingOrder &order, const Kept &kept)
{
    constexpr Colour bySummary[] = {Colours::Red, Colours::Green, Colours::Yellow, Colours::Green};
    mOutputs.lblSummarySaved.setBackColor(order.summary ? bySummary[kept.summary] : Colours::ButtonFace);
    mOutputs.lblPageSaved.setBackColor(reported(order.page, kept.file));
    mOutputs.lblEmailSaved.setBackColor(reported(order.email, kept.email));
    mOutputs.lblPhoneSaved.setBackColor(reported(order.phone, kept.phone));
    mOutputs.lblUrlSaved.setBackColor(reported(order.url, kept.url));
}
