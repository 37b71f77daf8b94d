// Finds or makes the database file that the program works on, opens it, and says what is wrong where that fails.
#pragma once

#include "app/Context.h"
#include "app/FormGroups.h"
#include "store/DatabaseHolder.h"

class DatabaseFile : public QObject
{
    Q_OBJECT

  public:
    /// `tables` lists the tables of the schema for the import.
    DatabaseFile(const Context &context, FilePlaces &places, ComboBox &tables, DatabaseHolder &database);

    /// True if the caller may go on. With `useFileBox` the name is that of txtSFDBFile, else the stored one; where no
    /// such file exists a new one is made under a vacant name.
    [[nodiscard]] bool LoadDatabase(bool useFileBox);

  Q_SIGNALS:
    /// A new file has been made and is open, empty.
    void created();
    /// The database cannot be used; the main window has to go.
    void unloadRequested();

  private:
    [[nodiscard]] QString path(bool useFileBox);
    [[nodiscard]] bool isPathTaken(const QString &path) const;
    void open(const QString &path);
    [[nodiscard]] bool testExisting(const QString &path, bool useFileBox);
    void make(const QString &path);
    [[nodiscard]] QString reason(QLatin1StringView otherwise) const;
    void fatal(const QString &path, const QString &text);

    Context mContext;
    FilePlaces &mPlaces;
    ComboBox &mTables;
    DatabaseHolder &mDatabase;
};
