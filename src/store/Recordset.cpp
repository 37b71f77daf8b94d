#include "store/Recordset.h"
#include "store/AdoErrors.h"
#include "store/rows/ColumnKinds.h"
#include "store/rows/RecordsetState.h"
#include "store/rows/SavedRecordset.h"

QString Field::Name() const
{
    mState->requireOpen();
    return mState->column(mColumn).name;
}

int Field::Type() const
{
    mState->requireOpen();
    return mState->column(mColumn).kind;
}

QVariant Field::Value() const
{
    return mState->value(mColumn);
}

void Field::setValue(const QVariant &value) const
{
    mState->requireOpen();
    mState->setValue(mColumn, value);
}

void Field::AppendChunk(const QVariant &chunk) const
{
    const QVariant held = mState->pendingValue(mColumn);
    const bool bytes = chunk.typeId() == QMetaType::QByteArray;
    mState->setValue(mColumn, bytes ? QVariant(held.toByteArray() + chunk.toByteArray())
                                    : QVariant(held.toString() + chunk.toString()));
}

QVariant Field::GetChunk(qint64 size)
{
    if (size < 0)
        throw AdoError::error(ErrorNumber::InvalidProcedureCall);
    const QVariant held = mState->value(mColumn);
    const qint64 start = mChunkStart;
    mChunkStart += size;
    if (held.typeId() == QMetaType::QByteArray)
        return start < held.toByteArray().size() ? QVariant(held.toByteArray().mid(start, size)) : QVariant();
    const QString text = valueText(held);
    return start < text.size() ? QVariant(text.mid(start, size)) : QVariant();
}

int Fields::Count() const
{
    mState->requireOpen();
    return static_cast<int>(mState->query().columns.size());
}

Field Fields::operator[](QAnyStringView name) const
{
    mState->requireOpen();
    const int column = mState->columnOf(name.toString());
    if (column < 0)
        throw AdoError::error(AdoError::NoSuchField);
    return {mState, column};
}

Field Fields::operator[](int column) const
{
    if (column < 0 || column >= Count())
        throw AdoError::error(AdoError::NoSuchField);
    return {mState, column};
}

RecordsetState &Recordset::state() const
{
    if (!mState)
        throw AdoError::error(ErrorNumber::ObjectNotSet);
    mState->requireOpen();
    return *mState;
}

Recordset Recordset::unopened()
{
    return Recordset(std::make_shared<RecordsetState>());
}

Recordset Recordset::open(const QString &filePath)
{
    return Recordset(std::make_shared<RecordsetState>(SavedRecordset::open(filePath), true));
}

void Recordset::Save(const QString &filePath, SaveFormat format) const
{
    static_cast<void>(Save(filePath, format, [](qint64) { return true; }));
}

bool Recordset::Save(const QString &filePath, SaveFormat format, const std::function<bool(qint64)> &goOn) const
{
    return format == SaveFormat::Binary ? SavedRecordset::saveBinary(state().keys(), filePath, goOn)
                                        : SavedRecordset::saveXml(state().keys(), filePath, goOn);
}

bool Recordset::isOpen() const
{
    return mState && mState->isOpen();
}

bool Recordset::Bof() const
{
    return state().atStart();
}

bool Recordset::Eof() const
{
    return state().atEnd();
}

void Recordset::MoveFirst()
{
    state().moveFirst();
}

void Recordset::MoveLast()
{
    state().moveLast();
}

void Recordset::MoveNext()
{
    state().moveNext();
}

void Recordset::MovePrevious()
{
    state().movePrevious();
}

qint64 Recordset::AbsolutePosition() const
{
    const RecordsetState &set = state();
    return set.atStart() || set.atEnd() ? -1 : set.place() + 1;
}

void Recordset::setAbsolutePosition(qint64 position)
{
    state().moveTo(position - 1);
}

qint64 Recordset::RecordCount() const
{
    return state().recordCount();
}

::Fields Recordset::Fields() const
{
    static_cast<void>(state());
    return ::Fields(mState);
}

void Recordset::AddNew()
{
    state().addNew();
}

void Recordset::Update()
{
    state().update();
}

void Recordset::CancelUpdate()
{
    state().cancelUpdate();
}

void Recordset::Delete()
{
    state().remove();
}

Recordset Recordset::Clone() const
{
    return Recordset(std::make_shared<RecordsetState>(state().keys(), state().isReadOnly()));
}

QString Recordset::GetString(const QString &columnDelimiter, const QString &rowDelimiter, const QString &nullText,
                             qint64 rows)
{
    RecordsetState &set = state();
    QString text;
    for (qint64 row = 0; !set.atEnd() && (rows < 0 || row < rows); ++row) {
        bool first = true;
        for (const QVariant &value : set.row()) {
            if (!first)
                text += columnDelimiter;
            first = false;
            text += value.isValid() ? valueText(value) : nullText;
        }
        text += rowDelimiter;
        set.moveNext();
    }
    return text;
}

std::vector<QVariantList> Recordset::GetRows(qint64 rows)
{
    RecordsetState &set = state();
    std::vector<QVariantList> taken;
    if (set.atEnd() || set.atStart())
        throw AdoError::error(AdoError::NoCurrentRow);
    while (!set.atEnd() && (rows < 0 || static_cast<qint64>(taken.size()) < rows)) {
        const auto &row = set.row();
        taken.emplace_back(row.begin(), row.end());
        set.moveNext();
    }
    return taken;
}

void Recordset::Close()
{
    state().close();
}
