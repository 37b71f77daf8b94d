#include "data/RowCopy.h"

#include "store/AdoErrors.h"
#include "store/FixNull.h"
#include "util/ColumnText.h"

using namespace Qt::StringLiterals;

namespace {
/// A value as text. A Null is none: the record makes an empty text of it, nought, or today.
QString textOf(const Field &field)
{
    return field.Value().isValid() ? FixNull(field) : QString();
}
} // namespace

/// One look at the whole table instead of one question a row.
void RowCopy::collectKnown(const QString &testField)
{
    Recordset rows = mTarget.GetRecordset("SELECT ["_L1 + testField + "] FROM ["_L1 + mTable + ']'_L1);
    const Field field = rows.Fields()[0];
    for (; !rows.Eof() && mWork.goOn(0); rows.MoveNext()) {
        if (field.Value().isValid()) // no text is equal to Null
            mKnown.insert(cUtility::columnKey(FixNull(field)));
    }
}

bool RowCopy::isKnown(const QString &value, qint64 row)
{
    if (value.contains(u'\''))
        throw RuntimeError(AdoError::BadSql, u"row %1 of %2 has a quote in \"%3\""_s.arg(row).arg(mTable, value));
    const auto before = mKnown.size();
    mKnown.insert(cUtility::columnKey(value));
    return mKnown.size() == before;
}

void RowCopy::write(const QStringList &record, qint64 row)
{
    if (!mTarget.AddRecord(record, -1, mTable, mDelimiter))
        throw RuntimeError(AdoError::Engine, u"row %1 of %2 could not be written"_s.arg(row).arg(mTable));
}

void RowCopy::run(Recordset rows, const QStringList &columns, const QString &testField)
{
    if (!testField.isEmpty())
        collectKnown(testField);
    std::vector<Field> fields;
    QStringList heads;
    for (const QString &column : columns) {
        fields.push_back(rows.Fields()[column]);
        heads.append(column + mDelimiter);
    }
    const qsizetype tested = columns.indexOf(testField);
    QStringList record(columns.size());
    for (qint64 row = 1; !rows.Eof() && mWork.goOn(row); rows.MoveNext(), ++row) {
        if (tested >= 0 && isKnown(textOf(fields[std::size_t(tested)]), row))
            continue;
        for (qsizetype i = 0; i < columns.size(); ++i)
            record[i] = heads[i] + textOf(fields[std::size_t(i)]);
        write(record, row);
    }
}
