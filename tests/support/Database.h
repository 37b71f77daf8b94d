// A real database file in a folder of its own, for the tests of everything that reads and writes rows.
#pragma once

#include "store/DatabaseHolder.h"
#include "store/FixNull.h"
#include "store/Schema.h"
#include "support/Fakes.h"

#include <QTemporaryDir>

/// The values of one field of all rows of a table, in table order.
inline QStringList column(cAdoMdb &database, const QString &table, const QString &field)
{
    QStringList values;
    Recordset rows = database.GetRecordset(QStringLiteral("SELECT * FROM ") + table);
    for (; !rows.Eof(); rows.MoveNext())
        values.append(FixNull(rows.Fields()[field]));
    return values;
}

/// Adds a row from pairs of field and value.
inline void addRow(cAdoMdb &database, const QString &table, const QList<std::pair<QString, QString>> &fields)
{
    QStringList row;
    for (const auto &[name, value] : fields)
        row.append(name + rowMarker + value);
    ASSERT_TRUE(database.AddRecord(row, -1, table, rowMarker));
}

/// Opens a new database of the system's schema in `folder` and puts it into `holder`.
inline void makeDatabase(DatabaseHolder &holder, ErrorReceiver &log, const QString &folder)
{
    holder.set(std::make_unique<cAdoMdb>(log));
    holder->setDatabasePath(folder + QStringLiteral("/Trawlex-0.mdb"));
    declareSchema(*holder);
    ASSERT_TRUE(holder->CreateDatabase(false));
}
