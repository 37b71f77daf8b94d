// A table as a grid shows it: its rows by position, filtered by a text and sorted by a column where that is wanted.
// Rows are named by their keys and fetched as far as positions are asked for, so the first rows of a million cost what
// they cost of a few; values are read in the rows that are on show. The rows are those that stood there when they were
// chosen: one that was removed since has no values, one that was added since is not met.
//
// Rows and columns count from 0. The pages keep their file open.
#pragma once

#include <QStringList>
#include <QVariant>
#include <memory>
#include <optional>

class KeySet;
class RowReader;
struct Query;
class cAdoMdb;

class TablePages
{
  public:
    /// Where the text stands in a value.
    enum class Place { Anywhere, AtStart, Whole };
    struct Filter
    {
        QString column;
        /// What the column's values hold, whatever the case of letters; "%" stands for any text, "_" for one
        /// character. An empty text lets all rows pass.
        QString text;
        Place place = Place::Anywhere;
        /// The text as LIKE takes it.
        [[nodiscard]] QString pattern() const;
    };
    struct Sorting
    {
        /// Empty: table order.
        QString column;
        Qt::SortOrder order = Qt::AscendingOrder;
    };

    /// Chooses all rows of the table; what takes long is done when it is asked for. Errors: AdoError::ConnectionClosed,
    /// AdoError::NoSuchTable, AdoError::Engine.
    TablePages(const cAdoMdb &database, const QString &table);
    TablePages(const cAdoMdb &database, const QString &table, const Filter &filter, const Sorting &sorting);
    ~TablePages();
    TablePages(TablePages &&) noexcept;
    TablePages &operator=(TablePages &&) noexcept;

    [[nodiscard]] QStringList columns() const;
    /// The kind of a column, as Field::Type gives it.
    [[nodiscard]] int kind(int column) const;

    /// How many rows were chosen. Without a filter that is a quick count; else all rows are looked at.
    [[nodiscard]] qint64 rowCount() const;
    /// Goes on looking for rows, or waits for their order, about so many milliseconds. True once all are known.
    [[nodiscard]] bool advance(int milliseconds) const;
    /// How many rows are known; all of them once advance() has said so. Sorted ones are known together.
    [[nodiscard]] qint64 knownRows() const;

    /// The same rows, chosen anew, in another order. Error AdoError::BadSql for a column that is none.
    [[nodiscard]] TablePages sorted(const Sorting &sorting) const;
    [[nodiscard]] const Sorting &sorting() const { return mSorting; }

    /// The row's key, which is its Index where the table has one; nothing behind the last row.
    [[nodiscard]] std::optional<qint64> key(qint64 row) const;
    /// A value, whole; invalid for Null, for a row that has gone and behind the last row.
    [[nodiscard]] QVariant value(qint64 row, int column) const;
    /// A value as a cell shows it: of a long text the beginning, of bytes nothing. "" where `value` is invalid.
    [[nodiscard]] QString cell(qint64 row, int column) const;

    /// The most characters that a cell shows.
    static constexpr int longestCell = 1000;

  private:
    TablePages(Query query, const Sorting &sorting);
    [[nodiscard]] bool isCounted() const;
    [[nodiscard]] bool hasCell(qint64 row, int column) const;

    Sorting mSorting;
    std::shared_ptr<KeySet> mKeys;
    std::unique_ptr<RowReader> mReader;
    mutable qint64 mCount = -1;
};

/// Removes the rows of these keys in one transaction. The number of rows that are gone by it; -1, with the error in the
/// database object's log and nothing removed, where that failed.
[[nodiscard]] qint64 removeRows(cAdoMdb &database, const QString &table, const QList<qint64> &keys);
