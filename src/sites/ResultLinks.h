// Takes the result links out of the page on show: the page's links through the chain of its site's record.
#pragma once

#include "app/FormGroups.h"
#include "sites/SiteRecords.h"
#include "util/search/KeptTextSet.h"

class ResultLinks
{
  public:
    /// `blocked` are the texts that a link must not hold.
    ResultLinks(ErrorReceiver &log, const OptionBoxes &options, const BlockedTexts &blocked, BrowserHolder &browser,
                SiteRecords &records)
        : mLog(log), mOptions(options), mBlocked(blocked), mBrowser(browser), mRecords(records)
    {
    }
    /// The server of the page on show belongs to a record.
    [[nodiscard]] bool IsSiteDataSaved() { return mRecords.IsSiteDataSaved(); }
    /// The result links of the page on show; a stage that would throw away every link is left out.
    [[nodiscard]] QStringList GetLinks();

  private:
    using Stage = QStringList (ResultLinks::*)(const QStringList &, const QString &);
    [[nodiscard]] QStringList SDProcessStartStop(const QStringList &links, const QString &site);
    [[nodiscard]] QStringList SDProcessCnvHex(const QStringList &links, const QString &site);
    [[nodiscard]] QStringList SDProcessMinMax(const QStringList &links, const QString &site);
    [[nodiscard]] QStringList SDProcessMC(const QStringList &links, const QString &site);
    [[nodiscard]] QStringList SDProcessMNC(const QStringList &links, const QString &site);
    [[nodiscard]] QStringList SDProcessBeginEndUrl(const QStringList &links, const QString &site);

    ErrorReceiver &mLog;
    const OptionBoxes &mOptions;
    const BlockedTexts &mBlocked;
    BrowserHolder &mBrowser;
    SiteRecords &mRecords;
    KeptTextSet mUnwanted;
};
