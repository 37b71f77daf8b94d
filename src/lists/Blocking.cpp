#include "lists/Blocking.h"

#include "app/SettingKeys.h"
#include "controls/cLstBx.h"
#include "lists/BlockedRows.h"
#include "lists/ChosenItem.h"
#include "lists/Entry.h"
#include "pages/Addresses.h"
#include "store/FixNull.h"
#include "store/Schema.h"
#include "store/Transaction.h"
#include "util/AddressList.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
constexpr auto urlField = "UrlsContent"_L1;
constexpr auto emailField = "EmailContent"_L1;
constexpr cIEText::ServerParts nameAlone{false, false, false};

QString allRows()
{
    return u"SELECT * FROM Block"_s;
}
} // namespace

/// What belongs to one of the two lists.
struct Blocking::Row
{
    QLatin1StringView field, otherField;
    ListBox &list;
    CheckBox &box;
    QLatin1StringView boxKey; ///< of the option that the box is
    QLatin1StringView title;
    QLatin1StringView adding, removing;
};

Blocking::Row Blocking::row(Kind kind) const
{
    if (kind == Kind::Url)
        return {urlField,
                emailField,
                mLists.urls.items,
                mLists.urls.on,
                Keys::UrlBlocking,
                "Urls Must Not contain"_L1,
                "Sub AddBlockedUrl"_L1,
                "Sub RemoveBlockedUrl"_L1};
    return {emailField,
            urlField,
            mLists.email.items,
            mLists.email.on,
            Keys::EmailBlocking,
            "Emails Must Not contain"_L1,
            "Sub AddBlockedEC"_L1,
            "Sub RemoveBlockedEC"_L1};
}

void Blocking::LoadBlocked()
{
    guarded(mContext.log, {module, "Sub LoadBlocked"_L1}, [&] {
        mLists.urls.items.clear();
        mLists.email.items.clear();
        Recordset rows = mDatabase->GetRecordset(allRows());
        for (; !rows.Eof(); rows.MoveNext()) {
            for (const Kind kind : {Kind::Url, Kind::Email}) {
                if (const QString text = FixNull(rows.Fields()[row(kind).field]); !text.isEmpty())
                    row(kind).list.addItem(text);
            }
        }
    });
}

QString Blocking::askFor(Kind kind)
{
    QString proposal;
    if (kind == Kind::Url && mBrowser.isSet())
        proposal = cIEText::GetServerFromUrl(mBrowser->GetSiteUrl(), cIEText::hostOnly);
    return mContext.dialogs.input(u"Enter new item"_s, row(kind).title, proposal);
}

/// Into the first row that has room in its column, or into a new one.
/// Rows without a text of this list take the items first; what is left gets rows of its own.
bool Blocking::store(const Row &row, const QStringList &items)
{
    Transaction transaction(*mDatabase);
    QStringList left = items;
    Recordset rows = mDatabase->GetRecordset(allRows());
    for (; !rows.Eof() && !left.isEmpty(); rows.MoveNext()) {
        if (!FixNull(rows.Fields()[row.field]).isEmpty())
            continue;
        rows.Fields()[row.field].setValue(left.takeFirst());
        rows.Update();
    }
    for (const QString &item : std::as_const(left))
        mDatabase->AddRecord({recordElement(row.field, item), recordElement(row.otherField, {})}, -1, u"Block"_s,
                             rowMarker);
    return transaction.commit();
}

/// Adds what does not stand in the list; what did not reach the table is neither shown nor told.
void Blocking::addNew(const Row &row, const QStringList &items)
{
    if (!items.isEmpty() && store(row, items)) {
        row.list.addItems(items);
        mContext.status.UpDateStatus(items.constLast() + " added"_L1);
    }
    if (row.list.listCount() == 0)
        return;
    row.list.setListIndex(0);
    row.box.setValue(mContext.settings.GetSetting(Sections::Main, row.boxKey, u"0"_s).toInt());
}

void Blocking::add(Kind kind, const QString &item)
{
    const Row target = row(kind);
    guarded(mContext.log, {module, target.adding}, [&] {
        const QString added = Entry::asItem(item.isEmpty() ? askFor(kind) : item).remove(u',');
        if (added.isEmpty())
            return;
        const bool exists = target.list.items().contains(added);
        if (exists)
            mContext.status.UpDateStatus(added + " exists"_L1);
        addNew(target, exists ? QStringList() : QStringList{added});
    });
    mContext.states.SetStateOfControls();
}

void Blocking::drop(Kind kind, const QString &text)
{
    if (text.isEmpty())
        return;
    if (Entry::isSingle(text))
        return add(kind, text);
    const Row target = row(kind);
    guarded(mContext.log, {module, "Sub OLEDragDrop"_L1}, [&] {
        QSet<QString> standing;
        for (const QString &item : target.list.items())
            standing.insert(cUtility::lowered(item));
        QStringList added;
        for (QString item : Entry::lines(text)) {
            item.remove(u',');
            const QString key = cUtility::lowered(item);
            if (item.isEmpty() || standing.contains(key))
                continue;
            standing.insert(key);
            added.append(item);
        }
        addNew(target, added);
    });
    mContext.states.SetStateOfControls();
}

bool Blocking::removeFromTable(Kind kind, const QStringList &items)
{
    const Row target = row(kind);
    Transaction transaction(*mDatabase);
    BlockedRows fates;
    Recordset rows = mDatabase->GetRecordset(allRows());
    for (; !rows.Eof(); rows.MoveNext())
        fates.append(FixNull(rows.Fields()[target.field]), !FixNull(rows.Fields()[target.otherField]).isEmpty());
    // The unlike treatment of the two lists is relied upon.
    const auto onTheWay = kind == Kind::Url ? BlockedRows::OnTheWay::WithoutText : BlockedRows::OnTheWay::WhollyEmpty;
    for (const QString &item : items)
        fates.remove(item, onTheWay);
    if (fates.size() > 0)
        rows.MoveFirst();
    for (std::size_t i = 0; i < fates.size(); ++i, rows.MoveNext()) {
        if (fates.fate(i) == BlockedRows::Fate::Gone) {
            rows.Delete();
        } else if (fates.fate(i) == BlockedRows::Fate::Emptied) {
            rows.Fields()[target.field].setValue(QString());
            rows.Update();
        }
    }
    return transaction.commit();
}

/// Takes `items` out of table and list. What the table refuses stays in the list and is not told.
void Blocking::remove(Kind kind, const QStringList &items)
{
    const Row target = row(kind);
    if (firstOf(items).isEmpty() || !removeFromTable(kind, items))
        return;
    QHash<QString, int> left;
    for (const QString &item : items)
        ++left[item];
    std::vector<bool> gone;
    for (const QString &item : target.list.items())
        gone.push_back(left.value(item) > 0 && left[item]-- > 0);
    target.list.removeItems(gone);
    target.list.setListIndex(target.list.listCount() - 1);
    if (target.list.listCount() == 0)
        target.box.setValue(0);
    mContext.status.UpDateStatus(items.constLast() + " removed"_L1);
}

void Blocking::RemoveBlocked(Kind kind)
{
    const Row target = row(kind);
    guarded(mContext.log, {module, target.removing}, [&] {
        const bool several = target.list.selCount() > 1;
        remove(kind,
               several ? cLstBx::GetItems(target.list, cLstBx::Which::Selected) : QStringList{chosenItem(target.list)});
    });
    mContext.states.SetStateOfControls();
}

void Blocking::ClearBlockedList(Kind kind)
{
    const Row target = row(kind);
    guarded(mContext.log, {module, "Sub ClearBlockedList"_L1}, [&] { remove(kind, orEmptyList(target.list.items())); });
    mContext.states.SetStateOfControls();
}

void Blocking::addQuickBlock()
{
    guarded(mContext.log, {module, "Sub lblAutoCollect_MouseDown"_L1}, [&] {
        QStringList &blocked = mLists.mastrQB;
        const QString server = cIEText::GetServerFromUrl(mBrowser->GetSiteUrl(), nameAlone);
        if (server.isEmpty())
            return mContext.status.UpDateStatus(u"Nothing to add"_s);
        if (blocked.contains(server))
            return mContext.status.UpDateStatus("Exists "_L1 + server);
        if (firstOf(blocked).isEmpty())
            blocked.clear();
        blocked.append(server);
        mContext.status.UpDateStatus("QB added "_L1 + server);
    });
}

void Blocking::clearQuickBlock()
{
    mLists.mastrQB = emptyList();
    mContext.status.UpDateStatus(u"Quick Block Cleared"_s);
}
