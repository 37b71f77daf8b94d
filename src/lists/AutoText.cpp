#include "lists/AutoText.h"

#include "app/SettingKeys.h"
#include "store/FixNull.h"
#include "store/Schema.h"
#include "util/ColumnText.h"
#include "util/Text.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;

/// As an address stands in its row.
QString asStored(const QString &url)
{
    return cUtility::asColumnText(SeriesRules::storedUrl(url));
}

/// No statement can hold a quote, so no row of such an address is ever found.
bool canBeAsked(const QString &url)
{
    return !url.contains(u'\'');
}
} // namespace

QString AutoText::table() const
{
    return "AutoText"_L1 + mDesk.listName();
}

AutoText::Stored AutoText::stored(const QString &table, const QString &url)
{
    const Recordset rows = mDatabase->GetRecordset("SELECT StartNumber,IncrNum,IncrStep FROM "_L1 + table +
                                                   " WHERE Url='"_L1 + url + u'\'');
    if (rows.isEmpty())
        return {};
    return {FixNull(rows.Fields()[0]), FixNull(rows.Fields()[1]), FixNull(rows.Fields()[2])};
}

bool AutoText::isStored(const QString &url)
{
    return !mDatabase->GetRecordset("SELECT * FROM "_L1 + table() + " WHERE Url='"_L1 + url + u'\'').isEmpty();
}

SeriesRules::Row AutoText::GetAutoTextData()
{
    return guardedResult(mContext.log, {module, "Function GetAutoTextData"_L1}, SeriesRules::Row(),
                         [&](SeriesRules::Row &row) {
                             const QString url = mPanel.cboMNAutoUrl.text();
                             if (url.isEmpty())
                                 return;
                             const Stored texts = stored(table(), url);
                             row = SeriesRules::row(texts.start, texts.position, texts.step);
                         });
}

qint64 AutoText::GetAutoIncrNumber(const QString &otherTable, const QString &url)
{
    return guardedResult(mContext.log, {module, "Function GetAutoIncrNumber"_L1}, qint64(0), [&](qint64 &position) {
        const QString wanted = url.isEmpty() ? mPanel.cboMNAutoUrl.text() : url;
        if (wanted.isEmpty())
            return;
        position =
            SeriesRules::row({}, stored(otherTable.isEmpty() ? table() : otherTable, wanted).position, {}).position;
    });
}

bool AutoText::isRemembered(int position)
{
    const QString url = asStored(mPanel.cboMNAutoUrl.text());
    return canBeAsked(url) && !url.isEmpty() && GetAutoIncrNumber({}, url) == position;
}

void AutoText::LoadAutoTextUrls()
{
    guarded(mContext.log, {module, "Sub LoadAutoTextUrls"_L1}, [&] {
        QStringList urls;
        Recordset rows = mDatabase->GetRecordset("SELECT * FROM "_L1 + table());
        for (; !rows.Eof(); rows.MoveNext())
            urls.append(FixNull(rows.Fields()["Url"_L1]));
        const QString text = mPanel.cboMNAutoUrl.text();
        mPanel.cboMNAutoUrl.setItems(urls);
        mPanel.cboMNAutoUrl.setText(text);
    });
}

QString AutoText::add(const QString &url, int position)
{
    const QString added = asStored(url.isEmpty() ? mPanel.cboMNAutoUrl.text() : url);
    if (!canBeAsked(added))
        return u"Not added. Url holds a quote"_s;
    if (isStored(added))
        return u"Url exists"_s;
    if (position <= 0)
        return u"(AutoIncr # Unknown)"_s;
    const QStringList row{recordElement("Url"_L1, added), recordElement("StartNumber"_L1, mPanel.incMNAutoUrl.text()),
                          recordElement("IncrNum"_L1, QString::number(position)),
                          recordElement("IncrStep"_L1, mPanel.incMNStep.text())};
    if (!mDatabase->AddRecord(row, -1, table(), rowMarker))
        return u"Not added. "_s + StoreFaults::text(mDatabase->fault());
    mPanel.cboMNAutoUrl.addItem(added);
    return table() + ", Url Added"_L1;
}

void AutoText::AddAutoTextUrl(const QString &url, int position)
{
    guarded(mContext.log, {module, "Sub AddAutoTextUrl"_L1}, [&] {
        mContext.status.UpDateStatus(add(url, position));
        mContext.states.SetStateOfControls();
    });
}

/// Its place among the addresses on offer, whatever its case; -1 if it is none of them.
int AutoText::placeOf(const QString &url) const
{
    const QStringList &offered = mPanel.cboMNAutoUrl.items();
    const auto found = std::find_if(offered.begin(), offered.end(),
                                    [&](const QString &item) { return cUtility::equalIgnoringCase(item, url); });
    return found == offered.end() ? -1 : static_cast<int>(found - offered.begin());
}

/// Why the table still has the address; nothing once it has not.
std::optional<QString> AutoText::forget(const QString &url)
{
    // What was only typed is not in the table, what was loaded from it stays there.
    if (!canBeAsked(url))
        return placeOf(url) < 0 ? std::nullopt : std::optional(u"Url holds a quote"_s);
    mDatabase->DeleteRecords(table(), u"Url"_s, url, false);
    return isStored(url) ? std::optional(StoreFaults::text(mDatabase->fault())) : std::nullopt;
}

QString AutoText::remove(const QString &url)
{
    ComboBox &box = mPanel.cboMNAutoUrl;
    const QString removed = url.isEmpty() ? box.text() : url;
    if (removed.isEmpty())
        return u"Auto Text Is Empty"_s;
    if (const auto reason = forget(removed))
        return u"Not deleted. "_s + *reason;
    const int place = placeOf(removed);
    if (place >= 0)
        box.removeItem(place);
    box.setText({});
    mContext.settings.SaveSetting(Sections::Main, Keys::AutoTextUrl + mDesk.listName(), {});
    return place >= 0 ? u"Auto Text Url Deleted"_s : u"Auto Text Cleared"_s;
}

void AutoText::RemoveAutoTextUrl(const QString &url)
{
    guarded(mContext.log, {module, "Sub RemoveAutoTextUrl"_L1}, [&] {
        mContext.status.UpDateStatus(remove(url));
        mContext.states.SetStateOfControls();
    });
}

void AutoText::removeSameSeries(const Series &series)
{
    ComboBox &box = mPanel.cboMNAutoUrl;
    for (int i = box.listCount() - 1; i >= 0; --i) {
        const QString url = box.list(i);
        if (!series.isSameAs(Series(url, series.position())) || GetAutoIncrNumber({}, url) != series.position())
            continue;
        mDatabase->DeleteRecords(table(), u"Url"_s, url, false);
        box.removeItem(i);
    }
}
