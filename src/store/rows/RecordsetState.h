// What stands behind a Recordset: the rows, the current one, the pending edit. Inside store/ only.
#pragma once

#include "store/rows/RowBuffer.h"
#include "store/rows/RowReader.h"

#include <optional>

class RecordsetState
{
  public:
    /// A set that was never opened.
    RecordsetState() = default;
    RecordsetState(std::shared_ptr<KeySet> keys, bool readOnly);

    [[nodiscard]] bool isOpen() const { return static_cast<bool>(mKeys); }
    /// Error 3704.
    void requireOpen() const;
    [[nodiscard]] const Query &query() const { return mKeys->query(); }
    [[nodiscard]] const std::shared_ptr<KeySet> &keys() const { return mKeys; }
    [[nodiscard]] bool isReadOnly() const { return mReadOnly; }
    [[nodiscard]] const ColumnInfo &column(int column) const;
    /// The place of the column of that name, or -1.
    [[nodiscard]] int columnOf(QStringView name) const;

    [[nodiscard]] bool atStart() const { return mPlace < 0; }
    [[nodiscard]] bool atEnd() const { return mAtEnd; }
    [[nodiscard]] qint64 place() const { return mPlace; }
    void moveFirst();
    void moveLast();
    void moveNext();
    void movePrevious();
    void moveTo(qint64 place);
    [[nodiscard]] qint64 recordCount();

    [[nodiscard]] QVariant value(int column);
    /// What the edit under way has set; Null where it has set nothing.
    [[nodiscard]] QVariant pendingValue(int column) const;
    void setValue(int column, const QVariant &value);

    void addNew();
    void update();
    void cancelUpdate() { mEdit.reset(); }
    void remove();
    void close();

    /// The current row's values in the order of the columns. Error 3021 without a row.
    [[nodiscard]] std::vector<QVariant> row();

  private:
    void requireRow() const;
    void requireWritable() const;
    void settle(qint64 place, int step);

    std::shared_ptr<KeySet> mKeys;
    std::optional<RowReader> mReader;
    bool mReadOnly = false;
    // -1 stands before the first row.
    qint64 mPlace = -1;
    bool mAtEnd = true;
    bool mOnDeleted = false;
    std::optional<RowBuffer> mEdit;
    bool mAdding = false;
};
