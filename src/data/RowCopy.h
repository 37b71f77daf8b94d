// Copies rows of another file into a table, as the records that the database object takes. Knows store.
#pragma once

#include "app/LongWork.h"
#include "store/cAdoMdb.h"

#include <QSet>

class RowCopy
{
  public:
    /// `delimiter` parts field and value in the records. All outlive the copy.
    RowCopy(cAdoMdb &target, const QString &table, QLatin1StringView delimiter, LongWork &work)
        : mTarget(target), mTable(table), mDelimiter(delimiter), mWork(work)
    {
    }

    /// Copies the named columns of all rows, or ends where the user cancels. With a test field a row is passed over
    /// whose value there is in the table already, one of this copy included. Errors: a row that cannot be read or
    /// written; a test value with a quote, which no statement can hold. The error names the row, from 1.
    void run(Recordset rows, const QStringList &columns, const QString &testField);

  private:
    [[nodiscard]] bool isKnown(const QString &value, qint64 row);
    void collectKnown(const QString &testField);
    void write(const QStringList &record, qint64 row);

    cAdoMdb &mTarget;
    QString mTable;
    QLatin1StringView mDelimiter;
    LongWork &mWork;
    QSet<QString> mKnown;
};
