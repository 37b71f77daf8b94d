// Turns an accepted page into rows, each new thing once. What is longer than a column is cut before it is looked up, so
// that it is found again. Knows lists.
#pragma once

#include "harvest/Findings.h"
#include "harvest/PageData.h"
#include "lists/SavedUrls.h"
#include "store/SiteSummaryIndex.h"

#include <QMap>

class ResultWriters
{
  public:
    /// What SaveSummary answers.
    enum Summary { NothingSaved = 0, AddedWithoutPage = 1, AlreadyThere = 2, AddedWithPage = 3 };

    ResultWriters(ErrorReceiver &log, const Outputs &outputs, const OptionBoxes &options, DatabaseHolder &database,
                  SavedUrls &savedUrls, PageData &data, const Findings &findings);

    /// A row in SiteSummary, unless its address (or server) is in the table.
    [[nodiscard]] int SaveSummary(PageReading &page);
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
    [[nodiscard]] bool isOn(int dataOption) const { return mOptions.chkSMD(dataOption).value() == 1; }

    ErrorReceiver &mLog;
    const Outputs &mOutputs;
    const OptionBoxes &mOptions;
    DatabaseHolder &mDatabase;
    SavedUrls &mSavedUrls;
    PageData &mData;
    const Findings &mFindings;
    SiteSummaryIndex mSummaryIndex;
    QMap<QString, int> mAdded;
};
