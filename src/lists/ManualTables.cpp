#include "lists/ManualTables.h"

#include "controls/cLstBx.h"
#include "pages/Addresses.h"
#include "store/FixNull.h"
#include "store/Schema.h"
#include "store/Transaction.h"
#include "util/ColumnText.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
constexpr cIEText::ServerParts withoutType{false, true, true};
/// Rows of one transaction: between two of them others may write, and the user may cancel.
constexpr qsizetype portion = 5000;

QString selectUrls(const QString &table)
{
    return "SELECT Url FROM "_L1 + table;
}
} // namespace

QStringList ManualTables::urls(const QString &table)
{
    QStringList found;
    Recordset rows = mDatabase->GetRecordset(selectUrls(table));
    for (; !rows.Eof() && mWork.goOn(found.size()); rows.MoveNext()) {
        if (const QString url = FixNull(rows.Fields()[0]); !url.isEmpty())
            found.append(url);
    }
    return mWork.isCancelled() ? QStringList() : found;
}

/// One look at the whole table instead of one question an item.
QStringList ManualTables::newItems(const ListBox &list, const QString &table)
{
    QSet<QString> known;
    for (const QString &url : urls(table))
        known.insert(cUtility::columnKey(url));
    QStringList found;
    for (const QString &item : list.items()) {
        if (item.isEmpty() || item.contains(u'\''))
            continue;
        const QString stored = cUtility::asColumnText(item);
        const auto before = known.size();
        known.insert(cUtility::columnKey(stored));
        if (known.size() != before)
            found.append(stored);
    }
    return found;
}

bool ManualTables::write(const QString &table, const QStringList &items)
{
    Transaction transaction(*mDatabase);
    for (const QString &item : items) {
        if (!mDatabase->AddRecord({recordElement("Url"_L1, item)}, -1, table, rowMarker))
            return false;
    }
    return transaction.commit();
}

QString ManualTables::SaveMN(const ListBox &list, const QString &table)
{
    return guardedResult(mLog, {module, "Sub SaveMN"_L1}, u"Not saved"_s, [&](QString &refused) {
        const QStringList items = newItems(list, table);
        for (qsizetype at = 0; at < items.size() && mWork.goOn(at, items.size()); at += portion) {
            if (write(table, items.mid(at, portion)))
                continue;
            refused = u"Not saved. "_s + StoreFaults::text(mDatabase->fault());
            return;
        }
        refused = mWork.isCancelled() ? u"Cancelled"_s : QString();
    });
}

/// Hands the addresses of `table` to `take` once all are read.
template <class Take> QString ManualTables::load(QLatin1StringView location, const QString &table, Take &&take)
{
    return guardedResult(mLog, {module, location}, u"Not readable"_s, [&](QString &hindrance) {
        try {
            take(urls(table));
            hindrance = mWork.isCancelled() ? u"Cancelled"_s : QString();
        } catch (const std::exception &error) {
            const StoreFault fault = StoreFaults::of(error);
            const QString text = StoreFaults::text(fault == StoreFault::None ? mDatabase->fault() : fault);
            if (!text.isEmpty())
                hindrance = text;
            throw;
        }
    });
}

QString ManualTables::LoadMN(ListBox &list, const QString &table)
{
    return load("Sub LoadMN"_L1, table, [&](const QStringList &found) {
        if (mWork.isCancelled())
            return;
        list.addItems(found);
        cLstBx::FindText(list, SaveMNLastUrl(list, table, false), 0);
    });
}

QString ManualTables::SaveMNLastUrl(const ListBox &list, const QString &table, bool save)
{
    return guardedResult(mLog, {module, "Function SaveMNLastUrl"_L1}, QString(), [&](QString &last) {
        Recordset rows = mDatabase->GetRecordset("SELECT TOP 1 LastUrl FROM "_L1 + table);
        if (rows.Eof())
            return;
        const QString item = list.list(list.listIndex());
        if (save && !item.isEmpty() && item.size() <= cUtility::columnLength) {
            rows.Fields()["LastUrl"_L1].setValue(item);
            rows.Update();
        }
        last = FixNull(rows.Fields()["LastUrl"_L1]);
    });
}

QString ManualTables::addNew(ListBox &list, const QString &table)
{
    return load("Sub LoadDBItemsMN"_L1, table,
                [&](const QStringList &found) { cLstBx::PopulateListBox(list, found, true, false); });
}

bool ManualTables::hasRows(const QString &table)
{
    return guardedResult(mLog, {module, "Sub mnuPopUpMN_Click"_L1}, false, [&](bool &found) {
        found = !mDatabase->GetRecordset("SELECT Index FROM "_L1 + table).isEmpty();
    });
}

QString ManualTables::summary(const QString &table)
{
    return guardedResult(mLog, {module, "Sub cboMNList_Click"_L1}, table + " no saved"_L1, [&](QString &text) {
        Recordset rows = mDatabase->GetRecordset(selectUrls(table));
        if (rows.isEmpty())
            return;
        rows.MoveLast();
        text =
            u"%1 saved: "_s.arg(rows.RecordCount()) + cIEText::GetServerFromUrl(FixNull(rows.Fields()[0]), withoutType);
    });
}
