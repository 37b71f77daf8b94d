// The one object that talks to the database engine: one connection to one file, and the names of the tables and fields
// that the file is expected to have. Its procedures end their own errors: each goes to the log under "cAdoMdb" and the
// procedure's name, and the procedure yields its default (False, 0, "", Nothing).
//
// Table argument pairs: a name that is not empty wins; otherwise the index is used. Tables count from 0, fields from 1.
#pragma once

#include "store/Recordset.h"
#include "store/StoreFault.h"
#include "store/TableFieldMatrix.h"
#include "util/Errors.h"

#include <QObject>
#include <QStringList>
#include <functional>
#include <memory>

class Connection;

class cAdoMdb : public QObject
{
    Q_OBJECT

  public:
    /// Asks the user a question that is answered with Yes (true) or No.
    using AskYesNo = std::function<bool(const QString &title, const QString &text)>;

    /// What `GetExternalTablesFields` lists.
    enum class ExternalList { Tables = 1, FieldsOfTable = 2 };

    /// `log` and what `ask` refers to outlive the object. Nothing is opened.
    explicit cAdoMdb(ErrorReceiver &log, AskYesNo ask = {});
    ~cAdoMdb() override;

    /// The file with its path; "Default.mdb" until one is given.
    [[nodiscard]] QString DatabasePath();
    /// Blanks around the path are dropped; an empty one changes nothing. A path that cannot be written to is refused;
    /// a folder that is not there silently. The open connection stays where it is.
    void setDatabasePath(const QString &sNewDatabasePathValue);

    /// 4 until set. Takes 4 to 8, and changes nothing else.
    [[nodiscard]] int ConnectionType();
    void setConnectionType(int eNewConnectionTypeValue);

    // The names of the expected tables and fields: see TableFieldMatrix.
    void Fields_AddItem(const QString &sNewField, int nTableIndex, const QString &strTableName);
    [[nodiscard]] QString Fields_ListItem(int nIndex, const QString &strFieldName, int nTableIndex,
                                          const QString &strTableName) const;
    [[nodiscard]] int Fields_Count(int nTableIndex, const QString &strTableName) const;
    bool Tables_AddItem(const QString &strTableName);
    [[nodiscard]] QString Tables_ListItem(int nIndex, const QString &strTableName) const;
    [[nodiscard]] int Tables_Count() const;
    void Tables_Clear();
    /// Reads the names from a table list file. A missing file and one without a table empty the matrix.
    void LoadTableFieldListFile(const QString &sFileName = QStringLiteral("TableFld.txt"));

    /// Makes the file at `DatabasePath` with the tables of the matrix, and opens it. A file that is there is asked
    /// about, or overwritten. The new file takes its place only once it is complete. False when there is none.
    [[nodiscard]] bool CreateDatabase(bool bOverWriteExisting);
    /// True if the file has exactly the tables and columns of the matrix. With `bOpenConnection` it is then open.
    [[nodiscard]] bool TestDatabase(bool bOpenConnection);
    /// Opens a file, whatever it holds, and reads its names into the matrix. An empty path takes `DatabasePath`.
    [[nodiscard]] bool LoadDatabase(const QString &sNewDatabasePath);
    /// Gives unused space back. The report tells the size in bytes before and after; "" for an error.
    [[nodiscard]] QString CompactDatabase();

    /// Appends a record. Each element is a field's name, the delimiter and its value; see RecordWriter for what becomes
    /// of values that do not fit. Texts are cut to 255 characters but in "FullPage". True when the record is written
    /// (inside a Transaction: when it belongs to it).
    bool AddRecord(const QStringList &sNewFieldData, int nTableIndex, const QString &sTableName,
                   const QString &sDelimiter);
    /// Removes the rows in which the field equals the criteria, all rows with empty criteria.
    void DeleteRecords(const QString &sTableName, const QString &sFieldName, const QString &sCriteria,
                       bool bCriteriaIsNumeric);

    /// Makes a table that stands in the matrix in the open file; all fields but "Index" and "Date" are texts.
    bool AddTable(const QString &sTableName);
    /// Takes a table out of the open file and the matrix.
    bool RemoveTable(const QString &sTableName);

    /// Runs one statement. A statement that is none of the system's, one on a table that is not there, and one without
    /// an open connection give a set that was never opened, without an entry in the log; a DELETE gives one too. Other
    /// errors are logged and give Nothing.
    [[nodiscard]] Recordset GetRecordset(const QString &sSQLString);
    /// The field's values that are not empty, in table order; one empty element where there are none.
    [[nodiscard]] QStringList GetFieldData(const QString &sField, const QString &sTable);

    /// Lists another file's tables or one table's fields; see ForeignDatabase for the files that are read. Tables that
    /// are not the user's are empty elements. A blank name or a missing file give one empty element.
    [[nodiscard]] QStringList GetExternalTablesFields(const QString &sFileName, ExternalList eReturnType,
                                                      const QString &sTableNameOfFields);
    /// All tables of another file: in each row the table's name followed by its fields. No row for a missing file.
    [[nodiscard]] QList<QStringList> GetExternalTablesFields(const QString &sFileName);
    /// Runs a query on another file, to read. Nothing for a missing file, an empty statement and any error.
    [[nodiscard]] Recordset GetRecordSetFromExternalDB(const QString &sDatabaseNameWithPath, const QString &sSQLString);

    /// Closes the connection. Sets that are open keep what they need of it. Without an open one, error 3704 is logged.
    void CloseConnection();

    /// What the file did to the last procedure that made, tested, opened, read or wrote it; None where it went well,
    /// and where something else was wrong (TestDatabase: tables that are not those of the matrix). Inside a Transaction
    /// ask that: it knows of every step.
    [[nodiscard]] StoreFault fault() const { return mFault; }
    /// The programs that hold the file for writing, each as "name (process number)", as far as the system tells.
    [[nodiscard]] QStringList lockHolders();

    // For the store's own use.
    [[nodiscard]] const std::shared_ptr<Connection> &connection() const { return mobjAdoConn; }
    [[nodiscard]] ErrorReceiver &log() const { return mLog; }

  Q_SIGNALS:
    void ConnectionTypeChanged(int eNewConnectionType);
    void DatabasePathChanged(const QString &sNewDatabasePath);

  private:
    template <class Work> void watched(Work &&work);
    void openToWrite();
    [[nodiscard]] Connection &openConnection() const;
    [[nodiscard]] bool mayReplaceFile(bool bOverWriteExisting);
    [[nodiscard]] QString tableName(int nTableIndex, const QString &sTableName) const;
    [[nodiscard]] Recordset run(const QString &sSQLString);

    ErrorReceiver &mLog;
    AskYesNo mAsk;
    TableFieldMatrix mMatrix;
    std::shared_ptr<Connection> mobjAdoConn;
    QString mDatabasePath;
    StoreFault mFault = StoreFault::None;
    int mConnectionType = 0;
};
