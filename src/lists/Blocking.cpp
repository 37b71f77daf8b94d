#include "lists/Blocking.h"

#include "controls/cLstBx.h"
#include "lists/ChosenItem.h"
#include "pages/Addresses.h"
#include "store/FixNull.h"
#include "store/Schema.h"
#include "util/AddressList.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
constexpr auto section = "SecFrmSearch"_L1;
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
    QLatin1StringView title;
    QLatin1StringView adding, removing;
};

Blocking::Blocking(ErrorReceiver &log, frmSearch &form, StatusLine &status, ControlStates &states, UserDialogs &dialogs,
                   SettingsStore &settings, DatabaseHolder &database, BrowserHolder &browser)
    : mLog(log), mForm(form), mStatus(status), mStates(states), mDialogs(dialogs), mSettings(settings),
      mDatabase(database), mBrowser(browser)
{
}

Blocking::Row Blocking::row(Kind kind) const
{
    if (kind == Kind::Url)
        return {urlField,
                emailField,
                mForm.blocking.urls.items,
                mForm.blocking.urls.on,
                "Urls Must Not contain"_L1,
                "Sub AddBlockedUrl"_L1,
                "Sub RemoveBlockedUrl"_L1};
    return {emailField,
            urlField,
            mForm.blocking.email.items,
            mForm.blocking.email.on,
            "Emails Must Not contain"_L1,
            "Sub AddBlockedEC"_L1,
            "Sub RemoveBlockedEC"_L1};
}

void Blocking::LoadBlocked()
{
    guarded(mLog, {module, "Sub LoadBlocked"_L1}, [&] {
        mForm.blocking.urls.items.clear();
        mForm.blocking.email.items.clear();
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
    return mDialogs.input(u"Enter new item"_s, row(kind).title, proposal);
}

/// Into the first row that has room in its column, or into a new one.
bool Blocking::store(const Row &target, const QString &item)
{
    Recordset rows = mDatabase->GetRecordset(allRows());
    for (; !rows.Eof(); rows.MoveNext()) {
        if (!FixNull(rows.Fields()[target.field]).isEmpty())
            continue;
        rows.Fields()[target.field].setValue(item);
        rows.Update();
        return true;
    }
    return mDatabase->AddRecord({recordElement(target.field, item), recordElement(target.otherField, {})}, -1,
                                u"Block"_s, rowMarker);
}

void Blocking::add(Kind kind, const QString &item)
{
    const Row target = row(kind);
    guarded(mLog, {module, target.adding}, [&] {
        const QString added = (item.isEmpty() ? askFor(kind) : QString(item)).remove(u',');
        if (added.isEmpty())
            return;
        if (target.list.items().contains(added)) {
            mStatus.UpDateStatus(added + " exists"_L1);
        } else if (store(target, added)) {
            target.list.addItem(added);
            mStatus.UpDateStatus(added + " added"_L1);
        }
        if (target.list.listCount() == 0)
            return;
        target.list.setListIndex(0);
        target.box.setValue(mSettings.GetSetting(section, target.box.name(), u"0"_s).toInt());
    });
    mStates.SetStateOfControls();
}

void Blocking::removeFromTable(Kind kind, const QString &item)
{
    const Row target = row(kind);
    Recordset rows = mDatabase->GetRecordset(allRows());
    for (; !rows.Eof(); rows.MoveNext()) {
        const QString text = FixNull(rows.Fields()[target.field]);
        const bool otherIsEmpty = FixNull(rows.Fields()[target.otherField]).isEmpty();
        // A row on the way that holds no link text goes, whatever else it holds; one without an address text only if it
        // is empty. The unlike treatment of the two is relied upon.
        if (text.isEmpty() && (kind == Kind::Url || otherIsEmpty)) {
            rows.Delete();
        } else if (text == item && otherIsEmpty) {
            rows.Delete();
            return;
        } else if (text == item) {
            rows.Fields()[target.field].setValue(QString());
            rows.Update();
            return;
        }
    }
}

void Blocking::removeChosen(Kind kind, Batch batch)
{
    const Row target = row(kind);
    guarded(mLog, {module, target.removing}, [&] {
        const QString item = chosenItem(target.list);
        if (item.isEmpty())
            return;
        removeFromTable(kind, item);
        target.list.removeItem(static_cast<int>(target.list.items().indexOf(item)));
        target.list.setListIndex(target.list.listCount() - 1);
        if (target.list.listCount() == 0)
            target.box.setValue(0);
        mStatus.UpDateStatus(item + " removed"_L1);
    });
    if (batch == Batch::No)
        mStates.SetStateOfControls();
}

void Blocking::RemoveBlocked(Kind kind)
{
    ListBox &list = row(kind).list;
    if (list.selCount() < 2)
        return removeChosen(kind, Batch::No);
    guarded(mLog, {module, "Sub RemoveBlocked"_L1}, [&] {
        const QStringList selected = cLstBx::GetItems(list, cLstBx::Which::Selected);
        cLstBx::UnSelect(list);
        for (const QString &item : selected) {
            const auto index = list.items().indexOf(item);
            if (item.isEmpty() || index < 0)
                continue;
            list.setListIndex(static_cast<int>(index));
            removeChosen(kind, Batch::Yes);
        }
    });
    mStates.SetStateOfControls();
}

void Blocking::ClearBlockedList(Kind kind)
{
    guarded(mLog, {module, "Sub ClearBlockedList"_L1}, [&] {
        ListBox &list = row(kind).list;
        cLstBx::UnSelect(list);
        // A removal that fails leaves its item in the list; it is not tried for ever.
        for (int left = list.listCount(); left > 0 && list.listCount() > 0; --left) {
            list.setListIndex(0);
            removeChosen(kind, Batch::Yes);
        }
    });
    mStates.SetStateOfControls();
}

void Blocking::addQuickBlock()
{
    guarded(mLog, {module, "Sub lblAutoCollect_MouseDown"_L1}, [&] {
        QStringList &blocked = mForm.blocking.mastrQB;
        const QString server = cIEText::GetServerFromUrl(mBrowser->GetSiteUrl(), nameAlone);
        if (server.isEmpty())
            return mStatus.UpDateStatus(u"Nothing to add"_s);
        if (blocked.contains(server))
            return mStatus.UpDateStatus("Exists "_L1 + server);
        if (firstOf(blocked).isEmpty())
            blocked.clear();
        blocked.append(server);
        mStatus.UpDateStatus("QB added "_L1 + server);
    });
}

void Blocking::clearQuickBlock()
{
    mForm.blocking.mastrQB = emptyList();
    mStatus.UpDateStatus(u"Quick Block Cleared"_s);
}
