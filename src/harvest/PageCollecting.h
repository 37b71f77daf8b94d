// Sends what the page on show is or holds to a manual list: its address, its mail addresses, its telephone numbers.
// Writes nothing to the database. Knows lists.
#pragma once

#include "harvest/Findings.h"
#include "lists/ManualDesk.h"

class PageCollecting
{
  public:
    PageCollecting(ErrorReceiver &log, BrowserHolder &browser, const Findings &findings, const ManualDesk &desk)
        : mLog(log), mBrowser(browser), mFindings(findings), mDesk(desk)
    {
    }

    /// A page stands in the browser, and not one that is still to come.
    [[nodiscard]] bool isThere() const;
    /// The page's address, unless it stands in the list.
    void collectUrl(int list);
    /// "120 loaded A", or "" where nothing was found.
    [[nodiscard]] QString CollectEmailMN(int list);
    [[nodiscard]] QString CollectPhoneMN(int list);

  private:
    [[nodiscard]] QString add(int list, const QStringList &found);

    ErrorReceiver &mLog;
    BrowserHolder &mBrowser;
    const Findings &mFindings;
    const ManualDesk &mDesk;
};
