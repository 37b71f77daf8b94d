// What the tests of the store share: a log that keeps its entries, and a folder with a database of the system's schema.
#pragma once

#include "store/Schema.h"
#include "store/cAdoMdb.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

struct LogEntry
{
    qint64 number;
    QString description;
    QString module;
    QString location;
};

class ListLog : public ErrorReceiver
{
  public:
    void ErrorLogger(qint64 number, const QString &description, const QString &module, const QString &location) override
    {
        entries.append({number, description, module, location});
    }
    [[nodiscard]] bool holds(qint64 number, QLatin1StringView location) const
    {
        return std::any_of(entries.begin(), entries.end(),
                           [&](const LogEntry &it) { return it.number == number && it.location == location; });
    }
    [[nodiscard]] std::string text() const
    {
        QString all;
        for (const LogEntry &entry : entries)
            all += QStringLiteral("%1 %2 (%3)\n").arg(entry.number).arg(entry.description, entry.location);
        return all.toStdString();
    }

    QList<LogEntry> entries;
};

/// Prints texts in failure messages.
inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}

class StoreTest : public testing::Test
{
  protected:
    [[nodiscard]] QString pathOf(const QString &name) const { return mFolder.filePath(name); }

    /// A database object with the system's schema and a path, not opened.
    [[nodiscard]] std::unique_ptr<cAdoMdb> declared(const QString &name)
    {
        auto database = std::make_unique<cAdoMdb>(mLog);
        database->setDatabasePath(pathOf(name));
        declareSchema(*database);
        return database;
    }

    /// A new database of the system's schema, open.
    [[nodiscard]] std::unique_ptr<cAdoMdb> created(const QString &name = QStringLiteral("Trawlex-0.mdb"))
    {
        auto database = declared(name);
        EXPECT_TRUE(database->CreateDatabase(false)) << mLog.text();
        return database;
    }

    /// Adds a record of fields and values.
    static bool add(cAdoMdb &database, const QString &table,
                    std::initializer_list<std::pair<QLatin1StringView, QString>> values)
    {
        QStringList elements;
        for (const auto &[field, value] : values)
            elements.append(recordElement(field, value));
        return database.AddRecord(elements, -1, table, rowMarker);
    }

    /// The number of rows that a statement gives.
    static qint64 count(cAdoMdb &database, const QString &statement)
    {
        return database.GetRecordset(statement).RecordCount();
    }

    /// One field of a statement's first row.
    static QVariant first(cAdoMdb &database, const QString &statement)
    {
        Recordset rows = database.GetRecordset(statement);
        return rows.Eof() ? QVariant() : rows.Fields()[0].Value();
    }

    QTemporaryDir mFolder;
    ListLog mLog;
};
