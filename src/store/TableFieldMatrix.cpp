#include "store/TableFieldMatrix.h"
#include "store/AdoErrors.h"
#include "util/Text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
bool isKept(QChar character, bool bRemoveSpaces)
{
    const char16_t unit = character.unicode();
    return unit == u'-' || unit == u'_' || (unit == u' ' && !bRemoveSpaces) || (unit >= u'0' && unit <= u'9') ||
           (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z');
}

bool sameName(const QString &left, const QString &right)
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

RuntimeError limitExceeded(qint64 number, QLatin1StringView what, int limit)
{
    return {number, u"Maximum number of %1 %2 exceeded!"_s.arg(what).arg(limit)};
}

} // namespace

QString LetterAndNumbersOnly(const QString &text, bool bRemoveSpaces)
{
    QString kept;
    kept.reserve(text.size());
    std::copy_if(text.begin(), text.end(), std::back_inserter(kept),
                 [=](QChar character) { return isKept(character, bRemoveSpaces); });
    return kept;
}

TableFieldMatrix::TableFieldMatrix()
{
    clear();
}

void TableFieldMatrix::clear()
{
    mRows.assign(maxTables + 1, std::vector<QString>(maxFields + 1));
}

void TableFieldMatrix::replace(const std::vector<QStringList> &rows)
{
    qsizetype width = 1;
    for (const QStringList &row : rows)
        width = std::max(width, row.size());
    mRows.assign(rows.size(), std::vector<QString>(static_cast<std::size_t>(width)));
    for (std::size_t row = 0; row < rows.size(); ++row)
        std::copy(rows[row].begin(), rows[row].end(), mRows[row].begin());
}

const QString &TableFieldMatrix::at(int row, int column) const
{
    if (row < 0 || column < 0 || static_cast<std::size_t>(row) >= mRows.size() ||
        static_cast<std::size_t>(column) >= mRows[static_cast<std::size_t>(row)].size())
        throw AdoError::error(ErrorNumber::SubscriptOutOfRange);
    return mRows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
}

QString &TableFieldMatrix::place(int row, int column)
{
    return const_cast<QString &>(at(row, column));
}

int TableFieldMatrix::tableCount() const
{
    const auto unused = std::find_if(mRows.begin(), mRows.end(), [](const auto &row) { return row.front().isEmpty(); });
    return static_cast<int>(unused - mRows.begin());
}

int TableFieldMatrix::fieldCountOfRow(int row) const
{
    const auto &fields = mRows.at(static_cast<std::size_t>(row));
    const auto unused = std::find_if(fields.begin() + 1, fields.end(), [](const auto &name) { return name.isEmpty(); });
    return static_cast<int>(unused - fields.begin()) - 1;
}

int TableFieldMatrix::fieldCount(int tableIndex, const QString &tableName) const
{
    const int row = rowOf(tableIndex, tableName);
    return row < 0 ? 0 : fieldCountOfRow(row);
}

int TableFieldMatrix::rowOf(int tableIndex, const QString &tableName) const
{
    const int count = tableCount();
    const QString name = cUtility::Trim(tableName).toString();
    if (name.isEmpty())
        return tableIndex >= 0 && tableIndex < count ? tableIndex : -1;
    for (int row = 0; row < count; ++row) {
        if (at(row, 0) == name)
            return row;
    }
    return -1;
}

bool TableFieldMatrix::addTable(const QString &tableName)
{
    if (tableCount() + 1 > maxTables)
        throw limitExceeded(AdoError::TooManyTables, "Tables"_L1, maxTables);
    const QString name = LetterAndNumbersOnly(tableName, true);
    const bool taken =
        std::any_of(mRows.begin(), mRows.end(), [&](const auto &row) { return sameName(row.front(), name); });
    if (taken || name.isEmpty())
        return false;
    place(tableCount(), 0) = name;
    return true;
}

QString TableFieldMatrix::tableItem(int index, const QString &tableName) const
{
    if (tableName.isEmpty())
        return index >= 0 && index <= tableCount() ? at(index, 0) : QString();
    QString found;
    for (int row = 0; row < tableCount(); ++row) {
        if (sameName(at(row, 0), tableName))
            found = QString::number(row);
    }
    return found;
}

void TableFieldMatrix::addField(const QString &field, int tableIndex, const QString &tableName)
{
    if (fieldCount(tableIndex, tableName) + 1 > maxFields)
        throw limitExceeded(AdoError::TooManyFields, "Fields"_L1, maxFields);
    if (field.isEmpty() || sameName(field, u"Index"_s))
        return;
    const QString name = LetterAndNumbersOnly(field, true);
    const int row = rowOf(tableIndex, tableName);
    if (row < 0)
        return;
    const QStringList fields = fieldsOf(row);
    const bool duplicate =
        std::any_of(fields.begin(), fields.end(), [&](const auto &it) { return sameName(it, name); });
    int column = fieldCountOfRow(row) + 1;
    if (!fields.contains("Index"_L1))
        place(row, column++) = u"Index"_s;
    if (!duplicate)
        place(row, column) = name;
}

QString TableFieldMatrix::fieldItem(int index, const QString &fieldName, int tableIndex, const QString &tableName) const
{
    const int row = rowOf(tableIndex, tableName);
    if (row < 0)
        return {};
    const int count = fieldCountOfRow(row);
    if (fieldName.isEmpty())
        return index >= 1 && index <= count ? LetterAndNumbersOnly(at(row, index), false) : QString();
    for (int column = 1; column <= count; ++column) {
        if (sameName(at(row, column), fieldName))
            return QString::number(column);
    }
    return {};
}

bool TableFieldMatrix::removeTable(const QString &tableName)
{
    const auto found =
        std::find_if(mRows.begin(), mRows.end(), [&](const auto &row) { return sameName(row.front(), tableName); });
    if (tableName.isEmpty() || found == mRows.end())
        return false;
    mRows.erase(found + 1, mRows.end());
    mRows.back().clear();
    for (auto &row : mRows)
        row.resize(maxFields + 1);
    return true;
}

QStringList TableFieldMatrix::fieldsOf(int row) const
{
    const int count = fieldCountOfRow(row);
    const auto &names = mRows.at(static_cast<std::size_t>(row));
    return {names.begin() + 1, names.begin() + 1 + count};
}
