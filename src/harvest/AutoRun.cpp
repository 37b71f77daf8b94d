#include "harvest/AutoRun.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
constexpr auto kind = Runs::Kind::Auto;
const QString goCaption = u"Go"_s;
} // namespace

AutoRun::AutoRun(const Context &context, AutoPanel &panel, const OptionBoxes &options, Runs &runs, ResultPages &pages,
                 PageTests &tests, SiteVisit &visit)
    : mContext(context), mPanel(panel), mOptions(options), mRuns(runs), mPages(pages), mTests(tests), mVisit(visit)
{
}

void AutoRun::cmdANStart_Click()
{
    if (mPanel.cmdANStart.caption() != goCaption)
        return mRuns.cancel(kind);
    // A run that was told to stop unwinds first; a second one on top of it would take its waits and its flags away.
    if (!mRuns.idle())
        return;
    mRuns.showStop(kind);
    StartProcessAN();
}

void AutoRun::StartProcessAN()
{
    try {
        run();
    } catch (...) {
        const RuntimeError error = currentError();
        mRuns.FinalizeProcess(u"Stopped (ERROR, UNKNOWN)"_s);
        mContext.log.ErrorLogger(error.number(), error.description(), module, u"Sub StartProcessAN"_s);
    }
}

void AutoRun::run()
{
    Walk walk;
    walk.serversOnly = mOptions.chkSMA(SMA::ServersOnly).isOn();
    if (!mPages.begin(walk.serversOnly)) {
        mPanel.cmdANStart.setCaption(goCaption);
        return mContext.status.UpDateStatus(u"No data saved for site"_s);
    }
    mRuns.begin(kind);
    mPages.goToChosen();
    mRuns.forgetPass(kind);
    while (walkPage(walk) == Next::GoOn) {
        mPanel.mlngANLinkIndex = 0;
        if (!mPages.next())
            break;
    }
    mRuns.FinalizeProcess(end(walk));
}

/// One turn of the main loop.
AutoRun::Next AutoRun::walkPage(Walk &walk)
{
    if (!mPages.open())
        return Next::LeaveMainLoop;
    walk.lastLink = upperBound(mPanel.mastrLinks);
    if (walk.lastLink == 0 && mPanel.mastrLinks.constFirst().isEmpty()) {
        walk.emptyCount = walk.lastEmpty ? walk.emptyCount + 1 : 1;
        walk.lastEmpty = true;
        walk.noUrls = walk.emptyCount >= 2;
        return walk.noUrls ? Next::LeaveMainLoop : Next::GoOn;
    }
    walk.lastEmpty = false;
    return walkLinks(walk);
}

AutoRun::Next AutoRun::walkLinks(const Walk &walk)
{
    Q_EMIT mRuns.walking(mPanel.mlngANLinkIndex > 0 ? u"ReSet starts anew"_s : QString());
    for (int i = mPanel.mlngANLinkIndex; i <= walk.lastLink; ++i) {
        mPanel.mlngANLinkIndex = i;
        if (!mRuns.mayGoOn(kind) || visit(walk, i) == Next::LeaveMainLoop)
            return Next::LeaveMainLoop;
    }
    return Next::GoOn;
}

AutoRun::Next AutoRun::visit(const Walk &walk, int index)
{
    const QString link = mPanel.mastrLinks.value(index);
    if (!mTests.NotQB(link))
        return Next::GoOn;
    mContext.status.UpDateStatus(u"%1/%2 "_s.arg(index + 1).arg(walk.lastLink + 1) + link);
    Q_EMIT mRuns.progress(index + 1, walk.lastLink + 1);
    const SiteVisit::Order order{.url = link, .seconds = mPanel.incANTiming.value(), .fallBack = !walk.serversOnly};
    return mVisit.visit(kind, order) == SiteVisit::Outcome::Stopped ? Next::LeaveMainLoop : Next::GoOn;
}

QString AutoRun::end(const Walk &walk)
{
    if (walk.noUrls)
        return u"Stopped (ERROR, NO URLS)"_s;
    if (!mRuns.isStopped(kind)) {
        mVisit.returnTo(mPanel.mstrANStartUrl);
        return u"Stopped (FINISHED)"_s;
    }
    if (!mRuns.reason().isEmpty()) {
        // A walk that stands on its first link is begun anew by Go, from the page on show.
        if (mPanel.mlngANLinkIndex == 0 && !mPages.areSaved())
            mVisit.open(mPanel.mstrANStartUrl);
        return mRuns.reason();
    }
    return mRuns.isStoppedOnPass(kind) ? endOnPass(walk) : u"Stopped (USER)"_s;
}

/// The loop has moved on by one before it saw the stop; one more is passed over, and near the end no text is given.
QString AutoRun::endOnPass(const Walk &walk)
{
    if (mPanel.mlngANLinkIndex + 1 >= walk.lastLink)
        return {};
    ++mPanel.mlngANLinkIndex;
    return u"Stopped (MCMNC)"_s;
}

void AutoRun::ResetProcessAN()
{
    mRuns.cancel(kind);
    mPanel.mlngANLinkIndex = 0;
    mPanel.mastrLinks = emptyList();
}
