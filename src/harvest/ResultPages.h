// Where an Auto run gets its links from: the result page on show, one saved result page after the other, or PassUrls,
// which are pages to visit themselves. Knows lists.
#pragma once

#include "app/Context.h"
#include "driver/PageVisit.h"
#include "lists/SavedUrls.h"
#include "sites/ResultLinks.h"

class ResultPages
{
  public:
    ResultPages(const Context &context, AutoPanel &run, SavedAddresses &saved, const Limits &limits, PageVisit &visit,
                ResultLinks &links, SavedUrls &savedUrls);

    /// A new walk over the pages, with the servers of the links alone or the links themselves. A fresh one without
    /// saved pages takes the links of the page on show; False when no record tells how that page is read.
    [[nodiscard]] bool begin(bool serversOnly);
    /// The walk goes over rows of the saved addresses.
    [[nodiscard]] bool areSaved() const { return mUseSaved; }
    /// The walk begins at the row that the user has chosen.
    void goToChosen();
    /// Puts the links of the page that has its turn into mastrLinks, opening it where it is a saved one. False when the
    /// browser has gone meanwhile: then there is nothing to read.
    [[nodiscard]] bool open();
    /// The next page has its turn. False behind the last one.
    [[nodiscard]] bool next() { return ++mPage <= mLastPage; }

  private:
    [[nodiscard]] bool openSaved();
    void readLinks();
    [[nodiscard]] QString savedUrl();

    Context mContext;
    AutoPanel &mRun;
    SavedAddresses &mSaved;
    const Limits &mLimits;
    PageVisit &mVisit;
    ResultLinks &mLinks;
    SavedUrls &mSavedUrls;
    bool mUseSaved = false;
    bool mServersOnly = false;
    int mPage = 0;
    int mLastPage = 0;
};
