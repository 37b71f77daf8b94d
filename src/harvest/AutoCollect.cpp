#include "harvest/AutoCollect.h"

#include <QScopedValueRollback>
#include <QTimer>

using namespace Qt::StringLiterals;
using CollectState::Content;
using CollectState::Pages;

namespace {
constexpr auto module = "frmSearch"_L1;
/// A page and its frames, as they finish loading one after the other.
constexpr int turnsInARow = 4;
constexpr std::chrono::milliseconds restPerTurn{50}, longestRest{500};
} // namespace

/// What finishes loading before its turn has come, or in the middle of collecting, shares the next turn.
void AutoCollect::DocumentComplete()
{
    if (!std::exchange(mIsDue, true) && !mIsCollecting)
        takeTurnSoon();
}

/// A page of which something is for ever finishing keeps neither the user nor a wait: collecting takes controls away,
/// so the longer it goes on the longer it rests.
void AutoCollect::takeTurnSoon()
{
    const std::chrono::milliseconds rest = std::max(0, mTurns - turnsInARow) * restPerTurn;
    QTimer::singleShot(std::min(rest, longestRest), this, &AutoCollect::takeTurn);
}

void AutoCollect::takeTurn()
{
    mIsDue = false;
    ++mTurns;
    {
        const QScopedValueRollback<bool> collecting(mIsCollecting, true);
        if (mChoice.state() > 0 && mPage.isThere() && ValidData())
            guarded(mContext.log, {module, "Sub AutoCollect"_L1}, [&] { collect(); });
    }
    if (mIsDue)
        takeTurnSoon();
    else
        mTurns = 0;
}

/// A Saved Url needs the record of its site; without one that kind of collecting goes off.
bool AutoCollect::ValidData()
{
    return guardedResult(mContext.log, {module, "Function ValidData"_L1}, false, [&](bool &valid) {
        valid = CollectState::pagesOf(mChoice.state()) != Pages::Saved || mLinks.IsSiteDataSaved();
        if (valid)
            return;
        mChoice.SetAutoCollectPgUrlsAN(mChoice.GetAutoCollectPgUrlsCheckedAN());
        mContext.status.UpDateStatus(u"No data saved for site"_s);
    });
}

void AutoCollect::collect()
{
    QString text;
    {
        const ManualLock lock(mDesk);
        const bool hasTarget = std::max({mChoice.GetAutoCollectLinksChecked(), mChoice.GetAutoCollectPgUrlsCheckedMN(),
                                         mChoice.GetAutoCollectPgUrlsCheckedAN()}) >= 0;
        if (hasTarget)
            text = collectPage();
    }
    mContext.states.SetStateOfControls();
    if (!text.isEmpty())
        mContext.status.UpDateStatus(text);
}

/// What is still to be told.
QString AutoCollect::collectPage()
{
    const int state = mChoice.state();
    const int links = mChoice.GetAutoCollectLinksChecked();
    const int pages = mChoice.GetAutoCollectPgUrlsCheckedMN();
    const int saved = mChoice.GetAutoCollectPgUrlsCheckedAN();
    const Pages kind = CollectState::pagesOf(state);
    if (kind == Pages::Manual)
        mPage.collectUrl(pages);
    if (kind == Pages::Saved && saved >= 0)
        mSavedUrls.AddSavedUrl(false, mDesk.listName(saved));
    const Content content = CollectState::contentOf(state);
    QString text = collectContent(links);
    if (kind == Pages::Manual)
        mDesk.ShowCountMN(pages, text);
    else if (kind == Pages::Saved && (content == Content::Emails || content == Content::Phones))
        mDesk.ShowCountMN(links, text);
    else
        return text;
    return {};
}

QString AutoCollect::collectContent(int list)
{
    switch (CollectState::contentOf(mChoice.state())) {
    case Content::Nothing:
        return {};
    case Content::Links:
        return mFeed.LoadBrowserLinks(list);
    case Content::Emails:
        return mPage.CollectEmailMN(list);
    case Content::Phones:
        return mPage.CollectPhoneMN(list);
    }
    return {};
}
