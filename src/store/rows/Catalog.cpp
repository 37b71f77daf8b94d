#include "store/rows/Catalog.h"
#include "store/AdoErrors.h"
#include "store/rows/ColumnKinds.h"
#include "store/rows/GrowthMarks.h"
#include "store/rows/SummaryKeys.h"
#include "store/sql/SqlTranslator.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {
// The fields by which rows are looked for before one is added. An index changes no result and no name that counts.
constexpr std::array lookedForIn{
    std::pair{"SiteSummary"_L1, "Url"_L1},    std::pair{"EmailAddress"_L1, "Address"_L1},
    std::pair{"PhoneNumber"_L1, "Number"_L1}, std::pair{"PassUrls"_L1, "Url"_L1},
    std::pair{"PassUrls"_L1, "MaskName"_L1},  std::pair{"RPgUrls"_L1, "Url"_L1},
    std::pair{"RPgUrls"_L1, "MaskName"_L1},   std::pair{"MNUrls"_L1, "Url"_L1},
    std::pair{"AutoText"_L1, "Url"_L1},       std::pair{"ANSelectUrls"_L1, "Url"_L1},
    std::pair{"MNSelectUrls"_L1, "Url"_L1},   std::pair{"SearchSites"_L1, "SiteName"_L1},
};

std::string columnText(const Catalog::NewField &field)
{
    std::string text = bracketed(field.name) + " ";
    if (field.name == "Index"_L1)
        return text + "INTEGER PRIMARY KEY AUTOINCREMENT";
    text += declaredType(field.kind);
    if (startsAsEmptyText(field.kind))
        text += " COLLATE NOCASE";
    if (field.kind == ColumnKind::Integer)
        text += " DEFAULT 0";
    return text;
}

// True for "PassUrlsA" where the family is "PassUrls", and for a table of just that name.
bool isOfFamily(const QString &table, QLatin1StringView family)
{
    return table == family || (table.size() == family.size() + 1 && table.startsWith(family));
}

void createIndexes(Connection &connection, const QString &table, const QStringList &fields)
{
    for (const auto &[family, field] : lookedForIn) {
        if (isOfFamily(table, family) && fields.contains(field))
            connection.administer("CREATE INDEX " + bracketed("By"_L1 + field + "In"_L1 + table) + " ON " +
                                  bracketed(table) + "(" + bracketed(field) + ")");
    }
}
} // namespace

void Catalog::createTable(Connection &connection, const QString &name, const std::vector<NewField> &fields)
{
    std::string columns;
    for (const NewField &field : fields)
        columns.append(columns.empty() ? "" : ",").append(columnText(field));
    connection.administer("CREATE TABLE " + bracketed(name) + "(" + columns + ")");
}

void Catalog::dropTable(Connection &connection, const QString &name)
{
    const auto table = connection.requireTable(name);
    ++table->changes->revision;
    GrowthMarks(connection, *table).removeAll();
    if (SummaryKeys keys(connection, *table); keys.exist())
        keys.drop();
    connection.administer("DROP TABLE " + table->quoted);
}

void Catalog::createAll(Connection &connection, const TableFieldMatrix &matrix)
{
    connection.begin();
    try {
        connection.administer("PRAGMA application_id=" + std::to_string(applicationId) +
                              "; PRAGMA user_version=" + std::to_string(schemaVersion));
        for (int row = 0; row < matrix.tableCount(); ++row) {
            const QStringList names = matrix.fieldsOf(row);
            std::vector<NewField> fields;
            std::transform(names.begin(), names.end(), std::back_inserter(fields), [](const QString &name) {
                return NewField{name, columnKindOf(name)};
            });
            createTable(connection, matrix.at(row, 0), fields);
            createIndexes(connection, matrix.at(row, 0), names);
        }
        connection.commit();
    } catch (...) {
        connection.rollBack();
        throw;
    }
}

bool Catalog::isUserTable(const QString &name)
{
    return !name.startsWith("sqlite_"_L1, Qt::CaseInsensitive) && !name.startsWith("sys"_L1, Qt::CaseInsensitive) &&
           name != "MSysAccessObjects"_L1;
}

QStringList Catalog::userTables(Connection &connection)
{
    QStringList names = connection.tableNames(false);
    names.removeIf([](const QString &name) { return !isUserTable(name); });
    return names;
}

bool Catalog::matches(Connection &connection, const TableFieldMatrix &matrix)
{
    const QStringList tables = userTables(connection);
    if (tables.size() != matrix.tableCount())
        return false;
    for (int row = 0; row < matrix.tableCount(); ++row) {
        const QStringList fields = matrix.fieldsOf(row);
        qsizetype hits = 0;
        if (tables.contains(matrix.at(row, 0))) {
            const QStringList columns = connection.columnNames(matrix.at(row, 0));
            if (columns.size() == fields.size())
                hits =
                    std::count_if(columns.begin(), columns.end(), [&](const auto &it) { return fields.contains(it); });
        }
        if (hits != fields.size())
            return false;
    }
    return true;
}
