// The names of the tables and fields that a database is expected to have: a matrix of texts in which column 0 of a row
// is the table's name and the columns behind it are its fields. Knows no database.
// Positions are those of the rules: rows from 0, fields from 1. An empty text marks an unused place; a reader stops at
// the first one. A place outside the matrix is error 9.
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

/// The letters, digits, "-", "_" and blanks of `text`; without the blanks on request. Letters are A to Z and a to z.
[[nodiscard]] QString LetterAndNumbersOnly(const QString &text, bool bRemoveSpaces);

class TableFieldMatrix
{
  public:
    static constexpr int maxTables = 50;
    static constexpr int maxFields = 100;

    TableFieldMatrix();

    /// Empties the matrix: rows 0 to 50, columns 0 to 100.
    void clear();

    /// Replaces the matrix by these rows, each the table's name followed by its fields, as they stand. The matrix is
    /// then as wide as its widest row.
    void replace(const std::vector<QStringList> &rows);

    [[nodiscard]] int tableCount() const;
    [[nodiscard]] int fieldCount(int tableIndex, const QString &tableName) const;

    /// The row of a table, or -1. A name that is not blank is searched with regard to case and the index is not looked
    /// at; with a blank one the index must be that of a row in use.
    [[nodiscard]] int rowOf(int tableIndex, const QString &tableName) const;

    /// True if the table was added; False if its name is there already or has nothing that is kept. Error
    /// AdoError::TooManyTables behind the 50th.
    bool addTable(const QString &tableName);

    /// With an empty name, the name in row `index`, or "". With a name, its row as decimal text, or "".
    [[nodiscard]] QString tableItem(int index, const QString &tableName) const;

    /// Adds a field behind the others, and the field "Index" first where the table has none. An empty name, "Index",
    /// a name that is there already and an unknown table add nothing. Error AdoError::TooManyFields behind the 100th.
    void addField(const QString &field, int tableIndex, const QString &tableName);

    /// With an empty field name, the name in column `index`, or "". With a name, its column as decimal text, or "".
    [[nodiscard]] QString fieldItem(int index, const QString &fieldName, int tableIndex,
                                    const QString &tableName) const;

    /// Takes the table out. The rows behind it are lost with it and the matrix shrinks to the rows before it and an
    /// empty one: a deliberate oddity of the removal. False for a name that no row holds.
    bool removeTable(const QString &tableName);

    /// The text at a place; error 9 outside the matrix.
    [[nodiscard]] const QString &at(int row, int column) const;

    /// The fields of a row in use, in order.
    [[nodiscard]] QStringList fieldsOf(int row) const;

  private:
    QString &place(int row, int column);
    [[nodiscard]] int fieldCountOfRow(int row) const;

    std::vector<std::vector<QString>> mRows;
};
