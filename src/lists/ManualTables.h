// The lists of the Manual tab in the database: a table for each, with one address a row; the first row also remembers
// the position in the list. Knows the store.
#pragma once

#include "controls/ListControls.h"
#include "lists/DeletedRows.h"

class ManualTables
{
  public:
    ManualTables(ErrorReceiver &log, DatabaseHolder &database, LongWork &work)
        : mLog(log), mDatabase(database), mWork(work)
    {
    }

    /// Adds the items that `table` has not yet; saves nothing that holds a single quote, removes and reorders nothing.
    /// Cancelling keeps what was saved until then. "" when all is kept, otherwise what is not.
    [[nodiscard]] QString SaveMN(const ListBox &list, const QString &table);
    /// Adds the addresses of `table` to the list, repeats and all, and selects the remembered one. "" when all are
    /// there, otherwise what was in the way: the list is as it was then.
    [[nodiscard]] QString LoadMN(ListBox &list, const QString &table);
    /// The item that `table` remembers; with `save` the one at the list's index, if it is not empty and fits, is
    /// remembered first. A table without rows remembers nothing.
    QString SaveMNLastUrl(const ListBox &list, const QString &table, bool save);
    /// Adds the addresses of `table` that the list has not yet. Answers like LoadMN.
    [[nodiscard]] QString addNew(ListBox &list, const QString &table);
    [[nodiscard]] bool hasRows(const QString &table);
    /// "120 saved: http://www.site.com", or that nothing is.
    [[nodiscard]] QString summary(const QString &table);

  private:
    template <class Take> [[nodiscard]] QString load(QLatin1StringView location, const QString &table, Take &&take);
    [[nodiscard]] QStringList urls(const QString &table);
    [[nodiscard]] QStringList newItems(const ListBox &list, const QString &table);
    [[nodiscard]] bool write(const QString &table, const QStringList &items);

    ErrorReceiver &mLog;
    DatabaseHolder &mDatabase;
    LongWork &mWork;
};
