// One page of a run, whichever run it is: opened, given its time, exchanged where it is an error page, and screened.
// Knows driver.
#pragma once

#include "harvest/ErrorPages.h"
#include "harvest/PageScreening.h"

class SiteVisit : public QObject
{
    Q_OBJECT

  public:
    struct Order
    {
        QString url;
        qint64 seconds = 0;
        bool fallBack = true; ///< an error page gives way to its server's front page
        QString status = {};  ///< told once the page is on its way
    };
    enum class Outcome { Refused, Visited, Stopped };

    SiteVisit(const Context &context, const OptionBoxes &options, Runs &runs, PageVisit &visit, ErrorPages &errorPages,
              PageScreening &screening);

    /// Refused for what is no link. Stopped when the run has been stopped before the page was screened, or when the
    /// page could not be stored: the run stands on it.
    [[nodiscard]] Outcome visit(Runs::Kind kind, const Order &order);
    /// Opens a page that is not screened and gives it its time. False for what is no link.
    [[nodiscard]] bool show(const QString &url, qint64 seconds);
    /// Lets that time pass.
    void wait(qint64 seconds) { mVisit.wait(seconds); }
    /// Where the browser stands. Error 91 without one.
    [[nodiscard]] QString siteUrl() { return mVisit.siteUrl(); }
    /// Sends the browser there; nobody waits for it.
    void open(const QString &url) { mVisit.open(url); }
    /// Opens the page on which a run began, where the user wants that at its end.
    void returnTo(const QString &start);

  Q_SIGNALS:
    /// A page of a run is on its way.
    void visiting(const QString &url);

  private:
    [[nodiscard]] bool screen(bool fallBack);

    Context mContext;
    const OptionBoxes &mOptions;
    Runs &mRuns;
    PageVisit &mVisit;
    ErrorPages &mErrorPages;
    PageScreening &mScreening;
};
