#include "store/rows/RecordWriter.h"
#include "store/AdoErrors.h"
#include "store/rows/ColumnKinds.h"
#include "store/rows/StoredDates.h"
#include "store/sqlite/BlobFiles.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {
// What is met while one value is set, and loses that value alone.
constexpr std::array passedOver{AdoError::NotAllowed, AdoError::NoSuchField, AdoError::TypeMismatch,
                                AdoError::MultipleStep};

// The value is a view on the element's own characters: pages are long, and a copy of each would show.
struct FieldValue
{
    QString field;
    QString value;
};

QString viewFrom(const QString &text, qsizetype place)
{
    return QString::fromRawData(text.constData() + place, text.size() - place);
}

FieldValue split(const QString &element, const RecordDelimiter &delimiter)
{
    const qsizetype first = delimiter.find(element, 0);
    if (first < 0)
        throw AdoError::error(ErrorNumber::SubscriptOutOfRange);
    if (delimiter.find(element, first + 1) < 0)
        return {element.left(first), viewFrom(element, first + delimiter.text().size())};
    // Where there are more, the value is cut as if the delimiter were one character long, so it keeps the delimiter's
    // tail: a deliberate oddity of the record format.
    const qsizetype place = element.indexOf(delimiter.text(), 0, Qt::CaseInsensitive);
    return {element.left(place), viewFrom(element, place + 1)};
}
} // namespace

RecordWriter::RecordWriter(Connection &connection, const QString &table, const QStringList &fields)
    : mRow(connection, connection.requireTable(table))
{
    setDefaults(fields);
}

void RecordWriter::setDefaults(const QStringList &fields)
{
    for (const QString &field : fields) {
        const int column = mRow.table().columnOf(field);
        if (column < 0)
            continue;
        const int kind = mRow.table().columns[static_cast<std::size_t>(column)].kind;
        if (kind == ColumnKind::Date)
            mRow.setStored(column, StoredDates::today());
        else if (startsAsEmptyText(kind))
            mRow.setStored(column, u""_s);
    }
}

void RecordWriter::take(const QString &element, const RecordDelimiter &delimiter)
{
    if (element.isEmpty())
        return;
    const auto [field, value] = split(element, delimiter);
    if (field == "Index"_L1)
        return;
    try {
        setValue(field, value);
    } catch (const RuntimeError &error) {
        if (std::find(passedOver.begin(), passedOver.end(), error.number()) == passedOver.end())
            throw;
    }
}

void RecordWriter::setValue(const QString &field, const QString &value)
{
    const int column = mRow.table().columnOf(field);
    if (column < 0)
        throw AdoError::error(AdoError::NoSuchField);
    mRow.set(column, valueFor(mRow.table().columns[static_cast<std::size_t>(column)].kind, field, value));
}

QVariant RecordWriter::valueFor(int kind, const QString &field, const QString &value) const
{
    if (field == "Date"_L1)
        return kind == ColumnKind::Date && !StoredDates::isStored(value) && !StoredDates::parse(value)
                   ? StoredDates::today()
                   : value;
    if (field == "Picture"_L1)
        return fileToBlob(value);
    if (field == "FullPage"_L1)
        return value;
    if (value.isEmpty() && (kind == ColumnKind::Integer || kind == ColumnKind::Numeric))
        return 0;
    return value.left(maxTextLength);
}
