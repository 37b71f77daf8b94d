// Takes the result links out of the page on show: the page's links through the chain of its site's record.
#pragma once

#include "app/frmSearch.h"
#include "sites/SiteRecords.h"

class ResultLinks
{
  public:
    ResultLinks(ErrorReceiver &log, frmSearch &form, BrowserHolder &browser, SiteRecords &records)
        : mLog(log), mForm(form), mBrowser(browser), mRecords(records)
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
    frmSearch &mForm;
    BrowserHolder &mBrowser;
    SiteRecords &mRecords;
};
