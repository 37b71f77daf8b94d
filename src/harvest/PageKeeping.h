// Stores what a page holds that has passed its tests: all of it or nothing. What the disk or another program refuses
// is tried again for a minute, during which the run stands on that page; then the run stops there. Knows lists.
#pragma once

#include "app/Context.h"
#include "driver/Runs.h"
#include "harvest/PageFiles.h"
#include "harvest/ResultWriters.h"

/// What the user wants of a page that has passed.
struct KeepingOrder
{
    bool summary = false, page = false, email = false, phone = false, url = false;
    [[nodiscard]] bool isEmpty() const { return !summary && !page && !email && !phone && !url; }
};

/// What was stored of it.
struct Kept
{
    int summary = ResultWriters::NothingSaved;
    bool file = false, email = false, phone = false, url = false;
};

class PageKeeping : public QObject
{
    Q_OBJECT

  public:
    PageKeeping(const Context &context, const OptionBoxes &options, DatabaseHolder &database, ResultWriters &rows,
                PageFiles &files, Runs &runs, EventPump &pump);

    /// True when the page's rows and file are on the disk; `kept` says which there were. False when nothing of it is,
    /// and then the run has been told to stop, unless the user did that.
    [[nodiscard]] bool keep(PageReading &page, const KeepingOrder &order, Kept &kept);

  Q_SIGNALS:
    /// Rows of a page have reached the file: how many, by table.
    void rowsStored(const QMap<QString, int> &rows);

  private:
    /// What is in the way, in words, and whether waiting can help.
    struct Trouble
    {
        QString text;
        bool mayPass = false;
    };
    [[nodiscard]] std::optional<Trouble> attempt(PageReading &page, const KeepingOrder &order, Kept &kept,
                                                 int patience);
    [[nodiscard]] StoreFault write(PageReading &page, const KeepingOrder &order, Kept &kept);
    [[nodiscard]] bool waitOut(const Trouble &trouble, int attempts);
    void giveUp(const Trouble &trouble);

    Context mContext;
    const OptionBoxes &mOptions;
    DatabaseHolder &mDatabase;
    ResultWriters &mRows;
    PageFiles &mFiles;
    Runs &mRuns;
    cTimer mPause; ///< its own: whoever ends the waits for pages leaves this one alone
};
