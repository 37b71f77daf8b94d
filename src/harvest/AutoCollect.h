// Collects from each page, and each frame of one, that finishes loading: behind each of them a collection begins, in a
// turn of the event loop of its own. Meant for browsing by hand; a run that is under way goes on beside it. Knows
// lists.
#pragma once

#include "harvest/CollectChoice.h"
#include "harvest/PageCollecting.h"
#include "lists/ManualFeed.h"
#include "lists/SavedUrls.h"

class AutoCollect : public QObject
{
    Q_OBJECT

  public:
    AutoCollect(const Context &context, CollectChoice &choice, PageCollecting &page, ManualFeed &feed,
                SavedUrls &savedUrls, ResultLinks &links, const ManualDesk &desk)
        : mContext(context), mChoice(choice), mPage(page), mFeed(feed), mSavedUrls(savedUrls), mLinks(links),
          mDesk(desk)
    {
    }

    /// A page, or a frame of one, has finished loading.
    void DocumentComplete();

  private:
    void takeTurnSoon();
    void takeTurn();
    [[nodiscard]] bool ValidData();
    void collect();
    [[nodiscard]] QString collectContent(int list);
    [[nodiscard]] QString collectPage();

    Context mContext;
    CollectChoice &mChoice;
    PageCollecting &mPage;
    ManualFeed &mFeed;
    SavedUrls &mSavedUrls;
    ResultLinks &mLinks;
    const ManualDesk &mDesk;
    bool mIsDue = false; ///< something has finished loading
    bool mIsCollecting = false;
    int mTurns = 0; ///< in a row
};
