// Fills a table of its own with rows from elsewhere: from a recordset that is saved, a saved file, another program's
// file. Columns keep their kinds; none is filled by the engine. Inside store/ only.
#pragma once

#include "store/sqlite/Connection.h"

class TableFiller
{
  public:
    struct Column
    {
        QString name;
        int kind;
    };

    /// Makes the table and begins. The connection outlives the filler.
    /// Error AdoError::BadSql for names that cannot be, or stand twice.
    TableFiller(Connection &connection, const QString &table, const std::vector<Column> &columns);
    /// Undoes what was not finished.
    ~TableFiller();
    TableFiller(const TableFiller &) = delete;
    TableFiller &operator=(const TableFiller &) = delete;

    /// One value for each column, Null among them. Values are taken as they are.
    void addRow(const std::vector<QVariant> &values);
    void finish();

  private:
    Connection &mConnection;
    std::string mInsert;
    bool mOpen = true;
};
