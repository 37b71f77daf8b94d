// The links of the page on show as a manual list takes them: by the record of the page's site or all of them, through
// the user's own filter. Knows the store.
#pragma once

#include "sites/ResultLinks.h"

class DiscoveredLinks
{
  public:
    DiscoveredLinks(ErrorReceiver &log, const UrlFilterBoxes &filter, const BlockingLists &blocking,
                    const OptionBoxes &options, BrowserHolder &browser, SiteRecords &records, ResultLinks &results)
        : mLog(log), mFilter(filter), mBlocking(blocking), mOptions(options), mBrowser(browser), mRecords(records),
          mResults(results)
    {
    }
    enum class Use { AllLinks, SiteData };
    /// The wanted links; the empty list without any. A site without a record gives all its links in either case.
    [[nodiscard]] QStringList DiscoverLinks(Use use);

  private:
    ErrorReceiver &mLog;
    const UrlFilterBoxes &mFilter;
    const BlockingLists &mBlocking;
    const OptionBoxes &mOptions;
    BrowserHolder &mBrowser;
    SiteRecords &mRecords;
    ResultLinks &mResults;
    KeptTextSet mUnwanted;
};
