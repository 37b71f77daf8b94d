#include "store/Schema.h"
#include "store/cAdoMdb.h"

#include <span>

using namespace Qt::StringLiterals;

namespace {
constexpr qsizetype matrixColumns = 44;

// A field, or a run of fields with numbers from 1 behind their common name.
struct FieldRun
{
    QLatin1StringView name;
    int count = 0;
};

struct TableNames
{
    QLatin1StringView name;
    bool lettered;
    std::span<const FieldRun> fields;
};

constexpr std::array savedUrlFields{FieldRun{"Date"_L1}, FieldRun{"MaskName"_L1}, FieldRun{"Url"_L1}};
constexpr std::array summaryFields{FieldRun{"Date"_L1}, FieldRun{"Title"_L1}, FieldRun{"Url"_L1},
                                   FieldRun{"FullPage"_L1}, FieldRun{"Picture"_L1}};
constexpr std::array addressFields{FieldRun{"Date"_L1}, FieldRun{"SSIndex"_L1}, FieldRun{"Address"_L1},
                                   FieldRun{"Url"_L1}};
constexpr std::array selectUrlFields{FieldRun{"Date"_L1}, FieldRun{"Url"_L1}, FieldRun{"Note"_L1}};
constexpr std::array criteriaFields{FieldRun{"Date"_L1}, FieldRun{"MaskName"_L1}, FieldRun{"Item-"_L1, 40}};
constexpr std::array blockFields{FieldRun{"UrlsContent"_L1}, FieldRun{"EmailContent"_L1}};
constexpr std::array manualFields{FieldRun{"Url"_L1}, FieldRun{"LastUrl"_L1}};
constexpr std::array foundUrlFields{FieldRun{"Date"_L1}, FieldRun{"SSIndex"_L1}, FieldRun{"MaskName"_L1},
                                    FieldRun{"Url"_L1}};
constexpr std::array filterFields{FieldRun{"Date"_L1},       FieldRun{"FilterOne"_L1}, FieldRun{"FilterTwo"_L1},
                                  FieldRun{"MCMNCIndex"_L1}, FieldRun{"ServerOne"_L1}, FieldRun{"ServerTwo"_L1}};
constexpr std::array phoneFields{FieldRun{"Date"_L1}, FieldRun{"SSIndex"_L1}, FieldRun{"Number"_L1},
                                 FieldRun{"Type"_L1}, FieldRun{"Url"_L1}};
constexpr std::array siteFields{FieldRun{"Date"_L1},         FieldRun{"SiteName"_L1},    FieldRun{"CnvHex"_L1},
                                FieldRun{"UrlLen"_L1},       FieldRun{"Group"_L1},       FieldRun{"Url-"_L1, 5},
                                FieldRun{"BeginUrl-"_L1, 5}, FieldRun{"EndUrl-"_L1, 5},  FieldRun{"UrlMC-"_L1, 5},
                                FieldRun{"UrlMNC-"_L1, 5},   FieldRun{"BUrlCol-"_L1, 5}, FieldRun{"EUrlCol-"_L1, 5}};
constexpr std::array seriesFields{FieldRun{"Date"_L1}, FieldRun{"Url"_L1}, FieldRun{"StartNumber"_L1},
                                  FieldRun{"IncrNum"_L1}, FieldRun{"IncrStep"_L1}};

// In the order of the tables' indexes.
constexpr std::array tables{
    TableNames{"RPgUrls"_L1, true, savedUrlFields},
    TableNames{"SiteSummary"_L1, false, summaryFields},
    TableNames{"EmailAddress"_L1, false, addressFields},
    TableNames{"ANSelectUrls"_L1, false, selectUrlFields},
    TableNames{"MC"_L1, false, criteriaFields},
    TableNames{"MNC"_L1, false, criteriaFields},
    TableNames{"Block"_L1, false, blockFields},
    TableNames{"MNUrls"_L1, true, manualFields},
    TableNames{"MNSelectUrls"_L1, false, selectUrlFields},
    TableNames{"UrlsCache"_L1, false, foundUrlFields},
    TableNames{"MNUrlFilters"_L1, false, filterFields},
    TableNames{"PhoneNumber"_L1, false, phoneFields},
    TableNames{"SearchSites"_L1, false, siteFields},
    TableNames{"PassUrls"_L1, true, foundUrlFields},
    TableNames{"AutoText"_L1, true, seriesFields},
};

QStringList rowOf(const QString &name, std::span<const FieldRun> fields)
{
    QStringList row{name, u"Index"_s};
    for (const FieldRun &run : fields) {
        if (run.count == 0)
            row.append(run.name);
        for (int number = 1; number <= run.count; ++number)
            row.append(run.name + QString::number(number));
    }
    row.resize(matrixColumns);
    return row;
}
} // namespace

QString recordElement(QLatin1StringView field, const QString &value)
{
    // One piece of memory for all: values can be whole pages.
    QString element;
    element.reserve(field.size() + rowMarker.size() + value.size());
    return element.append(field).append(rowMarker).append(value);
}

QList<QStringList> LoadTblFldNames()
{
    QList<QStringList> rows;
    for (const TableNames &table : tables) {
        if (!table.lettered) {
            rows.append(rowOf(table.name, table.fields));
            continue;
        }
        for (const char16_t letter : listLetters)
            rows.append(rowOf(table.name + QChar(letter), table.fields));
    }
    return rows;
}

void declareSchema(cAdoMdb &database)
{
    const QList<QStringList> names = LoadTblFldNames();
    for (qsizetype table = 0; table < names.size(); ++table) {
        database.Tables_AddItem(names[table].constFirst());
        for (qsizetype field = 1; field < matrixColumns; ++field)
            database.Fields_AddItem(names[table][field], static_cast<int>(table), QString());
    }
}
