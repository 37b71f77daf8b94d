#include "store/rows/RecordsetState.h"
#include "store/AdoErrors.h"

#include <algorithm>

RecordsetState::RecordsetState(std::shared_ptr<KeySet> keys, bool readOnly)
    : mKeys(std::move(keys)), mReader(std::in_place, mKeys), mReadOnly(readOnly)
{
    settle(0, 1);
    if (mAtEnd)
        mPlace = -1;
}

void RecordsetState::requireOpen() const
{
    if (!mKeys)
        throw AdoError::error(AdoError::ObjectClosed);
}

void RecordsetState::requireRow() const
{
    requireOpen();
    if (mPlace < 0 || mAtEnd)
        throw AdoError::error(AdoError::NoCurrentRow);
    if (mOnDeleted)
        throw AdoError::error(AdoError::RowDeleted);
}

void RecordsetState::requireWritable() const
{
    requireOpen();
    if (mReadOnly)
        throw AdoError::error(AdoError::NoReadWrite);
}

const ColumnInfo &RecordsetState::column(int column) const
{
    const int place = query().columns[static_cast<std::size_t>(column)];
    return query().table->columns[static_cast<std::size_t>(place)];
}

int RecordsetState::columnOf(QStringView name) const
{
    const auto count = static_cast<int>(query().columns.size());
    for (int place = 0; place < count; ++place) {
        if (name.compare(column(place).name, Qt::CaseInsensitive) == 0)
            return place;
    }
    return -1;
}

// Stands on the first row at or beyond `place`, in the direction of `step`, that has not been removed.
void RecordsetState::settle(qint64 place, int step)
{
    while (place >= 0 && mKeys->reach(place) && mKeys->isDeleted(place))
        place += step;
    mOnDeleted = false;
    mPlace = place;
    mAtEnd = place >= 0 && !mKeys->reach(place);
}

void RecordsetState::moveFirst()
{
    requireOpen();
    update();
    settle(0, 1);
    if (!mAtEnd)
        return;
    mPlace = -1;
    throw AdoError::error(AdoError::NoCurrentRow);
}

void RecordsetState::moveLast()
{
    requireOpen();
    update();
    settle(mKeys->size() - 1, -1);
    if (mPlace >= 0)
        return;
    mAtEnd = true;
    throw AdoError::error(AdoError::NoCurrentRow);
}

void RecordsetState::moveNext()
{
    requireOpen();
    update();
    if (mAtEnd)
        throw AdoError::error(AdoError::NoCurrentRow);
    settle(mPlace + 1, 1);
}

void RecordsetState::movePrevious()
{
    requireOpen();
    update();
    if (mPlace < 0)
        throw AdoError::error(AdoError::NoCurrentRow);
    settle((mAtEnd ? mKeys->size() : mPlace) - 1, -1);
}

void RecordsetState::moveTo(qint64 place)
{
    requireOpen();
    update();
    if (!mKeys->reach(place))
        throw AdoError::error(AdoError::NoCurrentRow);
    mPlace = place;
    mAtEnd = false;
    mOnDeleted = mKeys->isDeleted(place);
}

qint64 RecordsetState::recordCount()
{
    requireOpen();
    return mKeys->size() - mKeys->deleted();
}

std::vector<QVariant> RecordsetState::row()
{
    requireRow();
    std::vector<QVariant> values;
    const auto count = static_cast<int>(query().columns.size());
    values.reserve(query().columns.size());
    for (int place = 0; place < count; ++place)
        values.push_back(mReader->value(mPlace, place));
    return values;
}

QVariant RecordsetState::value(int column)
{
    requireOpen();
    const int place = query().columns[static_cast<std::size_t>(column)];
    if (mEdit && (mAdding || mEdit->isSet(place)))
        return mEdit->value(place);
    requireRow();
    return mReader->value(mPlace, column);
}

QVariant RecordsetState::pendingValue(int column) const
{
    requireOpen();
    return mEdit ? mEdit->value(query().columns[static_cast<std::size_t>(column)]) : QVariant();
}

void RecordsetState::setValue(int column, const QVariant &value)
{
    requireWritable();
    if (!mEdit) {
        requireRow();
        mEdit.emplace(*query().connection, query().table);
        mAdding = false;
    }
    mEdit->set(query().columns[static_cast<std::size_t>(column)], value);
}

void RecordsetState::addNew()
{
    requireWritable();
    update();
    mEdit.emplace(*query().connection, query().table);
    mAdding = true;
}

void RecordsetState::update()
{
    requireOpen();
    if (!mEdit)
        return;
    if (mAdding) {
        const qint64 key = mEdit->insert();
        mEdit.reset();
        settle(mKeys->append(key), 1);
    } else {
        mEdit->update(mKeys->key(mPlace));
        mEdit.reset();
    }
}

void RecordsetState::remove()
{
    requireWritable();
    if (mEdit && mAdding)
        throw AdoError::error(AdoError::NotAllowed);
    requireRow();
    const Query &from = query();
    Statement statement =
        from.connection->prepare("DELETE FROM " + from.table->quoted + " WHERE " + from.table->key + "=?1");
    statement.bind(1, mKeys->key(mPlace));
    ++from.table->changes->revision;
    from.connection->change(statement);
    mEdit.reset();
    mKeys->markDeleted(mPlace);
    mOnDeleted = true;
}

void RecordsetState::close()
{
    requireOpen();
    if (mEdit)
        throw AdoError::error(AdoError::NotAllowed);
    mReader.reset();
    mKeys.reset();
}
