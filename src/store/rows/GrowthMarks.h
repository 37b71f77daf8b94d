// Marks beside tables, kept in the database. A mark stands as long as its table only grows at its end, whoever writes
// to it: triggers take it away with the first row that is changed, removed or put in between. So what was found out
// about the rows up to some place need not be found out again while the mark stands, in this run and in later ones. The
// names of the marks' table and of the triggers do not count as the user's. Inside store/ only.
#pragma once

#include "store/sqlite/Connection.h"

#include <optional>

class GrowthMarks
{
  public:
    struct Mark
    {
        /// Another one whenever the mark was taken away and set again.
        qint64 id = 0;
        QString value;
    };

    /// The marks of one table. Both outlive the object.
    GrowthMarks(Connection &connection, const TableInfo &table) : mConnection(connection), mTable(table) {}

    /// The mark of that name, or nothing where none was set or it was taken away since.
    [[nodiscard]] std::optional<Mark> read(const QString &name);
    /// Sets the mark, or gives another value to one that stands. To be called inside a transaction only.
    Mark set(const QString &name, const QString &value);

    /// Takes the marks away, for a change that no trigger sees.
    void removeAll();

  private:
    [[nodiscard]] bool exist();
    void prepare();

    Connection &mConnection;
    const TableInfo &mTable;
};

/// Makes the triggers that run `onAdded` for a row put in before the table's end, and `onChanged` and `onRemoved` for
/// one that was changed and removed. `name` begins their names; those that are there already stay.
void makeGrowthTriggers(Connection &connection, const TableInfo &table, const std::string &name,
                        const std::string &onAdded, const std::string &onChanged, const std::string &onRemoved);
