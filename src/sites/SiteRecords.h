// Search-site records: how the result pages of one web site are read. Knows the store.
#pragma once

#include "driver/BrowserHolder.h"
#include "store/DatabaseHolder.h"

/// The fields of a record by the numbers that address them.
enum class SiteField {
    SiteName = 1,
    CnvHex = 2,
    UrlLen = 3,
    Group = 4,
    Url = 5,
    BeginUrl = 6,
    EndUrl = 7,
    UrlMC = 8,
    UrlMNC = 9,
    BUrlCol = 10,
    EUrlCol = 11
};

class SiteRecords
{
  public:
    SiteRecords(ErrorReceiver &log, DatabaseHolder &database, BrowserHolder &browser)
        : mLog(log), mDatabase(database), mBrowser(browser)
    {
    }

    /// The name of a field, of a family without its slot; "" for what is no field of a record.
    [[nodiscard]] static QLatin1StringView fieldName(SiteField field);
    [[nodiscard]] static bool isFamily(SiteField field);
    /// The name of slot 1 to 5 of a family.
    [[nodiscard]] static QString slotName(SiteField field, int slot);

    /// The values of `field` in the record of `site`: the filled slots of a family in slot order, packed. The empty
    /// list without a record or for a field that cannot be read.
    [[nodiscard]] QStringList GetSearchSiteData(const QString &site, SiteField field);
    /// The server of the page on show belongs to a record.
    [[nodiscard]] bool IsSiteDataSaved();
    /// The record that `address` belongs to, as it stands; with "" the record of the page on show. "" if there is none.
    [[nodiscard]] QString GetSiteNameFromUrl(const QString &address);

  private:
    [[nodiscard]] QString pageServer();
    template <class Visit> bool findServer(const QString &server, Visit visit);

    ErrorReceiver &mLog;
    DatabaseHolder &mDatabase;
    BrowserHolder &mBrowser;
};
