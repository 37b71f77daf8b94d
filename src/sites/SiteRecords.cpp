#include "sites/SiteRecords.h"

#include "pages/Addresses.h"
#include "pages/EmailFinder.h"
#include "store/FixNull.h"
#include "util/AddressList.h"
#include "util/Text.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
constexpr int slots = 5;

struct FieldRow
{
    SiteField number;
    bool family;
    QLatin1StringView name;
};

constexpr FieldRow fieldRows[] = {
    {SiteField::CnvHex, false, "CnvHex"_L1},    {SiteField::UrlLen, false, "UrlLen"_L1},
    {SiteField::Group, false, "Group"_L1},      {SiteField::Url, true, "Url"_L1},
    {SiteField::BeginUrl, true, "BeginUrl"_L1}, {SiteField::EndUrl, true, "EndUrl"_L1},
    {SiteField::UrlMC, true, "UrlMC"_L1},       {SiteField::UrlMNC, true, "UrlMNC"_L1},
    {SiteField::BUrlCol, true, "BUrlCol"_L1},   {SiteField::EUrlCol, true, "EUrlCol"_L1},
};

const FieldRow *rowOf(SiteField field)
{
    const auto *row = std::find_if(std::begin(fieldRows), std::end(fieldRows),
                                   [&](const FieldRow &candidate) { return candidate.number == field; });
    return row == std::end(fieldRows) ? nullptr : row;
}
} // namespace

QLatin1StringView SiteRecords::fieldName(SiteField field)
{
    const FieldRow *row = rowOf(field);
    return row ? row->name : QLatin1StringView();
}

bool SiteRecords::isFamily(SiteField field)
{
    const FieldRow *row = rowOf(field);
    return row && row->family;
}

QString SiteRecords::slotName(SiteField field, int slot)
{
    return u"%1-%2"_s.arg(fieldName(field)).arg(slot);
}

QStringList SiteRecords::GetSearchSiteData(const QString &site, SiteField field)
{
    constexpr Place place{module, "Function GetSearchSiteData"_L1};
    return guardedResult(mLog, place, emptyList(), [&](QStringList &result) {
        const QLatin1StringView name = fieldName(field);
        if (name.isEmpty() || site.isEmpty())
            return;
        const Recordset record =
            mDatabase->GetRecordset("SELECT * FROM SearchSites WHERE SiteName='"_L1 + site + u'\'');
        if (record.isEmpty())
            return;
        QStringList found;
        if (!isFamily(field))
            found.append(FixNull(record.Fields()[name]));
        for (int slot = 1; isFamily(field) && slot <= slots; ++slot) {
            if (const QString value = FixNull(record.Fields()[slotName(field, slot)]); !value.isEmpty())
                found.append(value);
        }
        result = orEmptyList(std::move(found));
    });
}

QString SiteRecords::pageServer()
{
    return cIEText::GetServerFromUrl(mBrowser->GetSiteUrl(), cIEText::hostOnly);
}

/// Walks all records and their servers; at the first one equal to `server` (ignoring case) hands the record over.
template <class Visit> bool SiteRecords::findServer(const QString &server, Visit visit)
{
    Recordset records = mDatabase->GetRecordset(u"SELECT * FROM SearchSites"_s);
    for (; !records.Eof(); records.MoveNext()) {
        for (int slot = 1; slot <= slots; ++slot) {
            const QString value = FixNull(records.Fields()[slotName(SiteField::Url, slot)]);
            if (!value.isEmpty() && cUtility::equalIgnoringCase(value, server)) {
                visit(records);
                return true;
            }
        }
    }
    return false;
}

bool SiteRecords::IsSiteDataSaved()
{
    return guardedResult(mLog, {module, "Function IsSiteDataSaved"_L1}, false, [&](bool &saved) {
        const QString server = pageServer();
        saved = !server.isEmpty() && findServer(server, [](const Recordset &) {});
    });
}

QString SiteRecords::GetSiteNameFromUrl(const QString &address)
{
    return guardedResult(mLog, {module, "Function GetSiteNameFromUrl"_L1}, QString(), [&](QString &name) {
        const bool proceeds = address.isEmpty() ? IsSiteDataSaved()
                                                : cIEText::IsThisEmailOrLink(address, true) == cIEText::TextKind::Link;
        if (proceeds)
            findServer(address.isEmpty() ? pageServer() : address,
                       [&](const Recordset &record) { name = FixNull(record.Fields()["SiteName"_L1]); });
    });
}
