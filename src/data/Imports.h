// Copies rows from another database file into the open one. Each import is one transaction, through a connection of its
// own: what others write meanwhile does not become a part of it. An error ends an import where it stands, and the rows
// so far stay; the user's cancelling takes all of them back. Who has imported loads the database anew.
//
// The answers of the imports are messages: "" when all was done.
#pragma once

#include "app/LongWork.h"
#include "store/DatabaseHolder.h"
#include "util/Errors.h"

#include <functional>

class Imports
{
  public:
    Imports(ErrorReceiver &log, DatabaseHolder &database, LongWork &work) : mLog(log), mDatabase(database), mWork(work)
    {
    }

    /// True if the file has this system's schema.
    [[nodiscard]] bool TestImportDatabase(const QString &path);
    /// True if it is the file of the open database, by whatever path.
    [[nodiscard]] bool isOpenDatabase(const QString &path);

    /// Copies the tables of the data list; rows whose test field is in the table already are passed over.
    [[nodiscard]] QString ImportAllData(const QString &path);
    /// Copies the tables of the settings list, every row.
    [[nodiscard]] QString ImportAllSettings(const QString &path);
    /// Copies the rows of a table into the open database's table of that name, as far as it has their columns. Pictures
    /// stay behind.
    [[nodiscard]] QString ImportTable(const QString &sImportDB, const QString &sImportTable);
    /// Makes a row of each value of a field: the value, and today in a "Date" where the table has one.
    [[nodiscard]] QString ImportField(const QString &sImportDB, const QString &sImportTable,
                                      const QString &sImportField, const QString &sExistingTable,
                                      const QString &sExistingField);

  private:
    [[nodiscard]] QString run(Place place, const std::function<void(cAdoMdb &)> &copy);
    [[nodiscard]] Recordset source(const QString &path, const QString &table);

    ErrorReceiver &mLog;
    DatabaseHolder &mDatabase;
    LongWork &mWork;
};
