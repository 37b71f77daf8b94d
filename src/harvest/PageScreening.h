// Decides what happens to the page on show: error page or real, wanted or not; runs the writers over a wanted one and
// shows the outcome. Knows lists.
#pragma once

#include "app/cTimer.h"
#include "app/frmSearch.h"
#include "driver/Navigation.h"
#include "harvest/ResultWriters.h"

class PageScreening : public QObject
{
    Q_OBJECT

  public:
    PageScreening(ErrorReceiver &log, frmSearch &form, StatusLine &status, cTimer &timer, DatabaseHolder &database,
                  Navigation &navigation, ResultWriters &writers);

    /// True if a run may open `url`: no Quick Block text stands in it.
    [[nodiscard]] bool NotQB(const QString &url);
    /// An error page gives way to its server's front page; the wait for that one is in here.
    void PageNotFound(PageReading &page);
    /// Tests the page and, if it passes, stores what it holds. All rows of one page go into the database together.
    void CollectData(PageReading &page);
    /// The page may go on, by the texts that it must hold, or must not.
    [[nodiscard]] bool IsMCGo(PageReading &page);
    [[nodiscard]] bool IsMNCGo(PageReading &page);

  Q_SIGNALS:
    /// Rows of a page have reached the file: how many, by table.
    void rowsStored(const QMap<QString, int> &rows);

  private:
    /// What the writers answered for one page.
    struct Outcome
    {
        bool wantPage = false;
        int summary = 0;
        bool file = false, email = false, phone = false, url = false;
    };
    Outcome write(PageReading &page, bool wantPage);
    [[nodiscard]] Colour stopOnPass();
    void showOutcome(const Outcome &outcome);

    ErrorReceiver &mLog;
    frmSearch &mForm;
    StatusLine &mStatus;
    cTimer &mTimer;
    DatabaseHolder &mDatabase;
    Navigation &mNavigation;
    ResultWriters &mWriters;
};
