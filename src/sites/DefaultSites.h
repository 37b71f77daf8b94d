// The records that a new database begins with: 26 services of the early 2000s, as their result pages were then. Knows
// the store.
#pragma once

#include "store/DatabaseHolder.h"

class DefaultSites
{
  public:
    DefaultSites(ErrorReceiver &log, DatabaseHolder &database) : mLog(log), mDatabase(database) {}

    static constexpr int count = 26;
    /// Row 0 to 25: SiteName, Url-1, UrlMC-1, BeginUrl-1, EndUrl-1, BUrlCol-1, EUrlCol-1, UrlMNC-1, CnvHex.
    [[nodiscard]] QStringList GetSiteData(int row);
    /// True if there is any record, whosever it is.
    [[nodiscard]] bool IsDefaultSDLoaded();
    /// Puts the 26 records in the place of all there are. False, and nothing is changed, if the file refuses them.
    bool AddDefaultSSData();
    /// A summary of this address is stored; single quotes in it do not count.
    [[nodiscard]] bool SSExists(QString address);

  private:
    ErrorReceiver &mLog;
    DatabaseHolder &mDatabase;
};
