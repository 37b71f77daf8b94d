// Texts that keep links and mail addresses out of a harvest, stored in one table of two columns that have nothing to do
// with each other but their rows; and the Quick Block list of servers, which is kept in memory alone. Knows sites.
#pragma once

#include "app/Context.h"
#include "app/FormGroups.h"
#include "driver/BrowserHolder.h"
#include "store/DatabaseHolder.h"

class Blocking
{
  public:
    enum class Kind { Url, Email };

    Blocking(const Context &context, BlockingLists &lists, DatabaseHolder &database, BrowserHolder &browser)
        : mContext(context), mLists(lists), mDatabase(database), mBrowser(browser)
    {
    }

    /// Fills both lists.
    void LoadBlocked();
    /// Adds `item`, asking for one with "".
    void add(Kind kind, const QString &item = {});
    /// What was dropped on a list: a text of one line as if it had been typed; of several, each that does not stand
    /// there already (ignoring case).
    void drop(Kind kind, const QString &text);
    /// Takes out every selected item, or the one with the focus. Of link texts, a row without one that stands before an
    /// item's row goes too, with the address text that it holds; of address texts, only a row that is empty.
    void RemoveBlocked(Kind kind);
    void ClearBlockedList(Kind kind);

    /// The server of the page on show joins the Quick Block list.
    void addQuickBlock();
    void clearQuickBlock();

  private:
    struct Row;
    [[nodiscard]] Row row(Kind kind) const;
    [[nodiscard]] QString askFor(Kind kind);
    void addNew(const Row &row, const QStringList &items);
    [[nodiscard]] bool store(const Row &row, const QStringList &items);
    void remove(Kind kind, const QStringList &items);
    [[nodiscard]] bool removeFromTable(Kind kind, const QStringList &items);

    Context mContext;
    BlockingLists &mLists;
    DatabaseHolder &mDatabase;
    BrowserHolder &mBrowser;
};
