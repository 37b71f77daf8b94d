#include "data/ImportLists.h"

#include "store/Schema.h"

using namespace Qt::StringLiterals;

namespace {
struct Family
{
    QLatin1StringView name;
    bool lettered = false;
    QLatin1StringView testField = {};
};

constexpr Family dataFamilies[] = {{"SiteSummary"_L1, false, "Url"_L1},
                                   {"ANSelectUrls"_L1},
                                   {"MNSelectUrls"_L1},
                                   {"EmailAddress"_L1},
                                   {"PhoneNumber"_L1},
                                   {"PassUrls"_L1, true, "MaskName"_L1},
                                   {"MNUrls"_L1, true, "Url"_L1},
                                   {"RPgUrls"_L1, true, "MaskName"_L1},
                                   {"AutoText"_L1, true, "Url"_L1}};
constexpr Family settingFamilies[] = {{"Block"_L1}, {"MNUrlFilters"_L1}, {"SearchSites"_L1}, {"MC"_L1}, {"MNC"_L1}};

QStringList columnsOf(const QList<QStringList> &schema, const QString &table)
{
    const auto row = std::find_if(schema.begin(), schema.end(),
                                  [&](const QStringList &names) { return names.constFirst() == table; });
    QStringList columns = row->mid(1);
    columns.removeIf([](const QString &name) { return name.isEmpty() || name == "Index"_L1 || name == "Picture"_L1; });
    return columns;
}

std::vector<ImportedTable> tablesOf(std::span<const Family> families)
{
    const QList<QStringList> schema = LoadTblFldNames();
    std::vector<ImportedTable> tables;
    for (const Family &family : families) {
        QStringList names{family.name};
        if (family.lettered) {
            names.clear();
            for (const char16_t letter : listLetters)
                names.append(family.name + QChar(letter));
        }
        for (const QString &name : names)
            tables.push_back({name, columnsOf(schema, name), family.testField});
    }
    return tables;
}
} // namespace

std::vector<ImportedTable> ImportLists::data()
{
    return tablesOf(dataFamilies);
}

std::vector<ImportedTable> ImportLists::settings()
{
    return tablesOf(settingFamilies);
}
