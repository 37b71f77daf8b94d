// A set of rows of one table, with a current row. The rows are fixed when the set is opened and named by their keys;
// keys are fetched as the set is walked, values when they are read. So opening a set of a million rows costs what its
// first rows cost. Knows nothing of the engine.
//
// A Recordset is a handle: copies are the same set with the same current row; `Clone` gives a current row of its own.
// A handle made by default is Nothing: every operation on it raises error 91. A set that was never opened, or that is
// closed, raises error 3704. An open set keeps its file open, also when the database object has gone.
//
// Rows and columns count from 0 where a number names a column, rows from 1 in AbsolutePosition.
#pragma once

#include <QAnyStringView>
#include <QByteArray>
#include <QString>
#include <QVariant>
#include <functional>
#include <memory>
#include <vector>

class RecordsetState;

/// One column of a set; what it reads and writes is the current row.
class Field
{
  public:
    [[nodiscard]] QString Name() const;
    /// The kind of the column: 3, 7, 130, 203, 205 in files of this system.
    [[nodiscard]] int Type() const;

    /// qlonglong, double, QString (texts, dates in ISO 8601, exact decimals), bool or QByteArray; invalid for Null.
    /// Error 3021 without a current row.
    [[nodiscard]] QVariant Value() const;
    /// Writes to the row under edit; `Update` or a move stores it. Without one it begins the edit of the current row.
    /// Error -2147352571 for a value of another nature, -2147217887 for one that the column cannot hold, and for the
    /// column that the engine fills.
    void setValue(const QVariant &value) const;

    /// Puts bytes, or text for a text column, behind what the edit has set; the first piece replaces what the row
    /// holds.
    void AppendChunk(const QVariant &chunk) const;
    /// The next `size` bytes or characters, fewer at the end, Null behind it. Each field handle starts at the
    /// beginning.
    [[nodiscard]] QVariant GetChunk(qint64 size);

  private:
    friend class Fields;
    Field(std::shared_ptr<RecordsetState> state, int column) : mState(std::move(state)), mColumn(column) {}

    std::shared_ptr<RecordsetState> mState;
    int mColumn;
    qint64 mChunkStart = 0;
};

/// The columns of a set.
class Fields
{
  public:
    [[nodiscard]] int Count() const;
    /// By name without regard to case, or by number from 0. Error 3265 where there is none.
    [[nodiscard]] Field operator[](QAnyStringView name) const;
    [[nodiscard]] Field operator[](int column) const;

  private:
    friend class Recordset;
    explicit Fields(std::shared_ptr<RecordsetState> state) : mState(std::move(state)) {}

    std::shared_ptr<RecordsetState> mState;
};

class Recordset
{
  public:
    /// The two forms of a saved set: the compact one that is opened again quickly, and XML.
    enum class SaveFormat { Binary = 0, Xml = 1 };

    /// Nothing.
    Recordset() = default;
    explicit Recordset(std::shared_ptr<RecordsetState> state) : mState(std::move(state)) {}
    /// A set that was never opened.
    [[nodiscard]] static Recordset unopened();
    /// Opens a saved set, to read. Error 53 for a missing file, -2147467259 for one that is no saved set.
    [[nodiscard]] static Recordset open(const QString &filePath);

    [[nodiscard]] bool isNothing() const { return !mState; }
    [[nodiscard]] bool isOpen() const;

    /// BOF and EOF. (The second name belongs to the C library, so both are spelled in words' way.) Error 3704 on a set
    /// that is not open.
    [[nodiscard]] bool Bof() const;
    [[nodiscard]] bool Eof() const;
    /// Both BOF and EOF: the statement gave no row. Costs no count.
    [[nodiscard]] bool isEmpty() const { return Bof() && Eof(); }

    /// Moves; a pending edit is stored first. Error 3021 where there is nothing to move to.
    void MoveFirst();
    void MoveLast();
    void MoveNext();
    void MovePrevious();
    /// The place of the current row, from 1; -1 without one. Setting it is the way to read rows in any order: error
    /// 3021 for a place that the set does not have.
    [[nodiscard]] qint64 AbsolutePosition() const;
    void setAbsolutePosition(qint64 position);
    /// The number of rows. Fetches the keys of all of them, 8 bytes each.
    [[nodiscard]] qint64 RecordCount() const;

    [[nodiscard]] ::Fields Fields() const;

    /// Begins a new row; `Update` appends it and makes it the current one. Error 3251 on a set that is read-only.
    void AddNew();
    /// Stores the pending edit. Does nothing without one.
    void Update();
    void CancelUpdate();
    /// Removes the current row; there is no current row then until the next move. Error 3219 while a row is being
    /// added.
    void Delete();

    /// The same rows with a current row of its own, at the first row. Closing one does not close the other.
    [[nodiscard]] Recordset Clone() const;

    /// The rows from the current one on as text, all or at most `rows`; the set then stands behind them. The row
    /// delimiter follows the last row too.
    [[nodiscard]] QString GetString(const QString &columnDelimiter, const QString &rowDelimiter,
                                    const QString &nullText, qint64 rows = -1);
    /// The same as values: one list for each row. Error 3021 without a current row.
    [[nodiscard]] std::vector<QVariantList> GetRows(qint64 rows = -1);

    /// Writes all rows to a file, which is replaced only once it is complete. The current row stays.
    /// Errors: 75 for a place that cannot be written, 75 or -2147467259 for a full disk.
    void Save(const QString &filePath, SaveFormat format) const;
    /// The same, asking before each row, by its number from 0. False when it may not go on: no file then.
    [[nodiscard]] bool Save(const QString &filePath, SaveFormat format, const std::function<bool(qint64)> &goOn) const;

    /// Closes the set. Error 3219 with an edit pending. Closing twice is error 3704.
    void Close();

  private:
    [[nodiscard]] RecordsetState &state() const;

    std::shared_ptr<RecordsetState> mState;
};
