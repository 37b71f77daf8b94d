// Turns an accepted page into rows and files, each new thing once.
#pragma once

#include "app/frmSearch.h"
#include "harvest/PageData.h"
#include "lists/SavedUrls.h"
#include "store/SiteSummaryIndex.h"

#include <QMap>

class ResultWriters
{
  public:
    /// What SaveSummary answers.
    enum Summary { NothingSaved = 0, AddedWithoutPage = 1, AlreadyThere = 2, AddedWithPage = 3 };

    ResultWriters(ErrorReceiver &log, frmSearch &form, DatabaseHolder &database, SavedUrls &savedUrls, PageData &data);

    /// A row in SiteSummary, unless its address (or server) is in the table.
    [[nodiscard]] int SaveSummary(PageReading &page);
    /// The page as a file of its own, or at the end of the one file. True if it was written.
    [[nodiscard]] bool SaveFile(PageReading &page);
    /// The page's address in the PassUrls of the list in force. These three: True if at least one row was added; an
    /// error on the way is False, whatever was added before it.
    [[nodiscard]] bool SavePassUrl(PageReading &page);
    [[nodiscard]] bool SaveEmail(PageReading &page);
    [[nodiscard]] bool SavePhone(PageReading &page);
    /// Index of the page's row in SiteSummary as text, "-1" if there is none. `url` replaces the page's own address.
    [[nodiscard]] QString GetSSIndex(PageReading &page, const QString &url);
    /// The rows added since the last call, by table.
    [[nodiscard]] QMap<QString, int> takeAdded() { return std::exchange(mAdded, {}); }

  private:
    [[nodiscard]] bool exists(const QString &sql);
    [[nodiscard]] bool add(const QString &table, const QStringList &row);
    [[nodiscard]] bool summaryIndex(PageReading &page, const QString &url, QString &index);

    ErrorReceiver &mLog;
    frmSearch &mForm;
    DatabaseHolder &mDatabase;
    SavedUrls &mSavedUrls;
    PageData &mData;
    SiteSummaryIndex mSummaryIndex;
    QMap<QString, int> mAdded;
};
