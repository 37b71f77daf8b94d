#include "lists/UrlFilters.h"

#include "app/SettingKeys.h"
#include "pages/Addresses.h"
#include "pages/EmailFinder.h"
#include "store/FixNull.h"
#include "store/Schema.h"
#include "util/ColumnText.h"
#include "util/Text.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
constexpr auto table = "MNUrlFilters"_L1;
constexpr cIEText::ServerParts withoutType{false, true, true};
constexpr std::array fields{""_L1,           "Date"_L1,      "FilterOne"_L1, "FilterTwo"_L1,
                            "MCMNCIndex"_L1, "ServerOne"_L1, "ServerTwo"_L1};

QLatin1StringView nameOf(UrlFilters::Field field)
{
    return fields[static_cast<std::size_t>(field)];
}

QString rowsWith(QLatin1StringView field, const QString &value)
{
    return "SELECT * FROM "_L1 + table + " WHERE "_L1 + field + "='"_L1 + value + u'\'';
}
} // namespace

QString UrlFilters::text() const
{
    return cUtility::asColumnText(cUtility::Trim(mBoxes.cboMNMCMNCFilter.text()).toString());
}

QString UrlFilters::item() const
{
    return mLists.shown().list(mLists.shown().listIndex());
}

void UrlFilters::LoadMNUrlFilters()
{
    guarded(mContext.log, {module, "Sub LoadMNUrlFilters"_L1}, [&] {
        QStringList filters;
        Recordset rows = mDatabase->GetRecordset("SELECT FilterOne,FilterTwo FROM "_L1 + table);
        for (; !rows.Eof(); rows.MoveNext()) {
            for (const auto field : {nameOf(Field::FilterOne), nameOf(Field::FilterTwo)}) {
                if (const QString filter = FixNull(rows.Fields()[field]); !filter.isEmpty())
                    filters.append(filter);
            }
        }
        mBoxes.cboMNMCMNCFilter.setItems(filters);
    });
}

bool UrlFilters::DoesMNUrlFilterExist(const QString &text)
{
    return !mDatabase->GetRecordset(rowsWith(nameOf(Field::FilterOne), text)).isEmpty();
}

QString UrlFilters::GetMNUrlFilterData(Field wanted, Field search, const QString &value)
{
    const QString none = wanted == Field::MCMNCIndex ? u"0"_s : QString();
    return guardedResult(mContext.log, {module, "Function GetMNUrlFilterData"_L1}, none, [&](QString &found) {
        const Recordset rows = mDatabase->GetRecordset(rowsWith(nameOf(search), value));
        if (rows.isEmpty())
            return;
        const QString data = FixNull(rows.Fields()[nameOf(wanted)]);
        bool isNumber = false;
        static_cast<void>(data.toInt(&isNumber));
        if (wanted != Field::MCMNCIndex || isNumber)
            found = data;
    });
}

QString UrlFilters::addFilter(const QString &filter)
{
    if (filter.isEmpty())
        return u"No new filter text"_s;
    if (DoesMNUrlFilterExist(filter))
        return u"Filter exists"_s;
    const QString server = cIEText::GetServerFromUrl(item(), withoutType);
    if (mBoxes.cboMNMCMNC.listIndex() <= 0)
        return u"MC MNC not selected"_s;
    const QStringList row{
        recordElement(nameOf(Field::FilterOne), filter),
        recordElement(nameOf(Field::MCMNCIndex), QString::number(mBoxes.cboMNMCMNC.listIndex())),
        recordElement(nameOf(Field::ServerOne), server),
    };
    if (!mDatabase->AddRecord(row, -1, table, rowMarker))
        return u"Filter not added"_s;
    mBoxes.cboMNMCMNCFilter.addItem(filter);
    return u"Filter added"_s;
}

void UrlFilters::AddMNUrlFilter()
{
    guarded(mContext.log, {module, "Sub AddMNUrlFilter"_L1}, [&] { mContext.status.UpDateStatus(addFilter(text())); });
}

void UrlFilters::RemoveMNUrlFilter()
{
    guarded(mContext.log, {module, "Sub RemoveMNUrlFilter"_L1}, [&] {
        const QString filter = text();
        if (filter.isEmpty())
            return mContext.status.UpDateStatus(u"No filter selected"_s);
        const auto index = mBoxes.cboMNMCMNCFilter.items().indexOf(filter);
        if (index < 0)
            return mContext.status.UpDateStatus(u"Filter not found"_s);
        mDatabase->DeleteRecords(table, nameOf(Field::FilterOne), filter, false);
        if (DoesMNUrlFilterExist(filter))
            return mContext.status.UpDateStatus(u"Filter not removed"_s);
        mBoxes.cboMNMCMNCFilter.removeItem(static_cast<int>(index));
        mContext.status.UpDateStatus(u"Filter removed"_s);
    });
}

void UrlFilters::mnuMNLocateFilter_Click()
{
    guarded(mContext.log, {module, "Sub mnuMNLocateFilter_Click"_L1}, [&] {
        if (cIEText::IsThisEmailOrLink(item(), true) != cIEText::TextKind::Link)
            return;
        const QString server = cIEText::GetServerFromUrl(item(), withoutType);
        const QString filter = GetMNUrlFilterData(Field::FilterOne, Field::ServerOne, server);
        const auto index = mBoxes.cboMNMCMNCFilter.items().indexOf(filter);
        if (index >= 0)
            mBoxes.cboMNMCMNCFilter.setListIndex(static_cast<int>(index));
        mBoxes.cboMNMCMNC.setListIndex(GetMNUrlFilterData(Field::MCMNCIndex, Field::ServerOne, server).toInt());
    });
}

/// A known filter brings its MC or MNC along, an unknown text the empty entry; blue shows that a filter is in force.
void UrlFilters::SetcboMNMCMNC(bool fromCombo)
{
    guarded(mContext.log, {module, "Sub SetcboMNMCMNC"_L1}, [&] {
        ComboBox &kind = mBoxes.cboMNMCMNC;
        ComboBox &filter = mBoxes.cboMNMCMNCFilter;
        if (!fromCombo) {
            const QString entry = filter.list(filter.listIndex());
            kind.setListIndex(GetMNUrlFilterData(Field::MCMNCIndex, Field::FilterOne, entry).toInt());
            mContext.settings.SaveSetting(Sections::Main, Keys::UrlFilter, cUtility::Trim(filter.text()).toString());
        }
        const bool inForce = kind.listIndex() > 0 && !filter.text().isEmpty();
        for (ComboBox *box : {&kind, &filter}) {
            box->setBackColor(inForce ? Colours::White : Colours::Window);
            box->setForeColor(inForce ? Colours::Blue : Colours::WindowText);
        }
    });
}
