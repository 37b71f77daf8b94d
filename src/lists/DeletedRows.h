// Keeps what a delete takes away: the rows of the last list that was deleted as a whole. Knows the store.
#pragma once

#include "app/LongWork.h"
#include "store/DatabaseHolder.h"

class DeletedRows
{
  public:
    /// What became of a table.
    enum class Outcome { WasEmpty, Moved, Cancelled, Refused };

    DeletedRows(ErrorReceiver &log, DatabaseHolder &database, LongWork &work)
        : mLog(log), mDatabase(database), mWork(work)
    {
    }
    /// Moves all rows of `table` (a family's name and a letter) into the table of deleted addresses, whose own rows go;
    /// all or nothing. A table without rows leaves what was kept before.
    Outcome CacheDeletedData(const QString &table);

  private:
    [[nodiscard]] QList<QStringList> records(const QString &table);
    [[nodiscard]] bool write(const QString &table, const QList<QStringList> &records);

    ErrorReceiver &mLog;
    DatabaseHolder &mDatabase;
    LongWork &mWork;
};
