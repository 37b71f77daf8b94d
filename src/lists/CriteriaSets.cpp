#include "lists/CriteriaSets.h"

#include "controls/cLstBx.h"
#include "lists/ChosenItem.h"
#include "store/FixNull.h"
#include "store/Schema.h"
#include "store/Transaction.h"
#include "util/AddressList.h"
#include "util/Incr.h"
#include "util/Text.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
constexpr auto firstName = "Criteria-0"_L1;
constexpr auto namePrompt = "Enter New (Must Contain - Must Not Contain) Group Name"_L1;
constexpr int columns = 40;
constexpr int selectDemand = 2;
constexpr int allDemand = 0;

QString columnName(int number)
{
    return u"Item-%1"_s.arg(number);
}

bool isEmpty(const Recordset &rows)
{
    return rows.Bof() && rows.Eof();
}

/// The first column whose value equals `item` without regard to case; 0 if there is none.
int columnOf(const Recordset &set, const QString &item)
{
    for (int column = 1; column <= columns; ++column) {
        if (cUtility::equalIgnoringCase(FixNull(set.Fields()[columnName(column)]), item))
            return column;
    }
    return 0;
}
} // namespace

/// What belongs to one of the two lists.
struct CriteriaSets::Row
{
    QString table;
    QString label;
    ListBox &list;
    ComboBox &demand;
};

CriteriaSets::CriteriaSets(ErrorReceiver &log, frmSearch &form, StatusLine &status, ControlStates &states,
                           UserDialogs &dialogs, DatabaseHolder &database)
    : mLog(log), mForm(form), mStatus(status), mStates(states), mDialogs(dialogs), mDatabase(database)
{
}

CriteriaSets::Row CriteriaSets::row(List list) const
{
    if (list == List::MustContain)
        return {u"MC"_s, u"Must Contain"_s, mForm.criteria.mustContain.items, mForm.criteria.mustContain.demand};
    return {u"MNC"_s, u"Must Not Contain"_s, mForm.criteria.mustNotContain.items, mForm.criteria.mustNotContain.demand};
}

Recordset CriteriaSets::openSet(const Row &row)
{
    return mDatabase->GetRecordset("SELECT * FROM "_L1 + row.table + " WHERE MaskName='"_L1 +
                                   mForm.criteria.cboANMCMNCMask.text() + u'\'');
}

bool CriteriaSets::exists(const QString &name)
{
    return !isEmpty(mDatabase->GetRecordset("SELECT MaskName FROM MC WHERE MaskName='"_L1 + name + u'\''));
}

void CriteriaSets::LoadMCMNC()
{
    guarded(mLog, {module, "Sub LoadMCMNC"_L1}, [&] {
        mForm.criteria.cboANMCMNCMask.clear();
        mForm.criteria.mustContain.items.clear();
        mForm.criteria.mustNotContain.items.clear();
        for (const QString &name : mDatabase->GetFieldData(u"MaskName"_s, u"MC"_s)) {
            if (!name.isEmpty())
                mForm.criteria.cboANMCMNCMask.addItem(name);
        }
    });
}

void CriteriaSets::fill(const Row &row, const QString &name)
{
    row.list.clear();
    const Recordset set =
        mDatabase->GetRecordset("SELECT * FROM "_L1 + row.table + " WHERE MaskName='"_L1 + name + u'\'');
    for (int column = 1; column <= columns && !isEmpty(set); ++column) {
        if (const QString item = FixNull(set.Fields()[columnName(column)]); !item.isEmpty())
            row.list.addItem(item);
    }
}

void CriteriaSets::AssignMaskElements(const QString &name)
{
    guarded(mLog, {module, "Sub AssignMaskElements"_L1}, [&] {
        const QString chosen = name.isEmpty() ? mForm.criteria.cboANMCMNCMask.text() : name;
        if (chosen.isEmpty())
            return;
        fill(row(List::MustContain), chosen);
        fill(row(List::MustNotContain), chosen);
    });
}

/// A name that no set has; "" if the user gives none.
QString CriteriaSets::askForName()
{
    QString name = firstName;
    while (exists(name))
        name = cUtility::Incr(name, 4, false, 1, u"", u"1", u"", false);
    name = mDialogs.input(namePrompt, u"New MC - MNC Set"_s, name).remove(u',');
    while (!name.isEmpty() && exists(name))
        name = mDialogs.input(namePrompt, u"Item Exists"_s, name).remove(u',');
    return name;
}

QString CriteriaSets::AddMCMNCSet()
{
    return guardedResult(mLog, {module, "Sub AddMCMNCSet"_L1}, QString(), [&](QString &status) {
        const QString name = askForName();
        status = u"Nothing Added"_s;
        if (name.isEmpty())
            return;
        const QStringList record{recordElement("MaskName"_L1, name)};
        Transaction transaction(*mDatabase);
        if (!mDatabase->AddRecord(record, -1, u"MC"_s, rowMarker) ||
            !mDatabase->AddRecord(record, -1, u"MNC"_s, rowMarker) || !transaction.commit())
            return;
        mForm.criteria.cboANMCMNCMask.addItem(name);
        mForm.criteria.cboANMCMNCMask.setListIndex(mForm.criteria.cboANMCMNCMask.listCount() - 1);
        status = u"Group Added"_s;
    });
}

QString CriteriaSets::RemoveMCMNCSet()
{
    return guardedResult(mLog, {module, "Sub RemoveMCMNCSet"_L1}, QString(), [&](QString &status) {
        const QString name = mForm.criteria.cboANMCMNCMask.text();
        status = u"Nothing Selected"_s;
        if (name.isEmpty())
            return;
        for (const List list : {List::MustContain, List::MustNotContain})
            static_cast<void>(
                mDatabase->GetRecordset("DELETE * FROM "_L1 + row(list).table + " WHERE MaskName='"_L1 + name + u'\''));
        const int index = mForm.criteria.cboANMCMNCMask.listIndex();
        mForm.criteria.cboANMCMNCMask.removeItem(index);
        mForm.criteria.mustContain.items.clear();
        mForm.criteria.mustNotContain.items.clear();
        mForm.criteria.cboANMCMNCMask.setListIndex(index - 1);
        status = name + " Removed"_L1;
    });
}

QString CriteriaSets::AddMC(List list, const QString &item)
{
    return guardedResult(mLog, {module, "Sub AddMC"_L1}, QString(), [&](QString &status) {
        if (mForm.criteria.cboANMCMNCMask.text().isEmpty())
            return;
        const Row target = row(list);
        const QString added =
            !item.isEmpty() ? item : mDialogs.input("Enter new "_L1 + target.label + " text"_L1, u"New Item"_s, {});
        if (added.isEmpty()) {
            status = u"Add Canceled"_s;
            return;
        }
        Recordset set = openSet(target);
        if (isEmpty(set))
            return;
        if (columnOf(set, added) > 0) {
            status = added + " Exists"_L1;
            return;
        }
        const int column = columnOf(set, {});
        if (column == 0) {
            status = u"Not Added. Max 40"_s;
            return;
        }
        set.Fields()[columnName(column)].setValue(added);
        set.Update();
        target.list.addItem(added);
        status = added + " Added"_L1;
    });
}

QString CriteriaSets::RemoveMC(List list, const QString &item)
{
    return guardedResult(mLog, {module, "Sub RemoveMC"_L1}, QString(), [&](QString &status) {
        if (mForm.criteria.cboANMCMNCMask.text().isEmpty())
            return;
        const Row target = row(list);
        const QString removed = item.isEmpty() ? chosenItem(target.list) : item;
        if (removed.isEmpty()) {
            status = u"Nothing Selected"_s;
            return;
        }
        Recordset set = openSet(target);
        if (isEmpty(set))
            return;
        const int column = columnOf(set, removed);
        if (column == 0) {
            status = u"Not Removed. Didn't exist"_s;
            return;
        }
        set.Fields()[columnName(column)].setValue(QString());
        set.Update();
        const QStringList items = target.list.items();
        const auto shown = std::find_if(items.begin(), items.end(), [&](const QString &candidate) {
            return cUtility::equalIgnoringCase(candidate, removed);
        });
        if (shown != items.end())
            target.list.removeItem(static_cast<int>(shown - items.begin()));
        status = removed + " Removed"_L1;
    });
}

QString CriteriaSets::ClearMC(List list)
{
    return guardedResult(mLog, {module, "Sub ClearMC"_L1}, QString(), [&](QString &status) {
        const QString name = mForm.criteria.cboANMCMNCMask.text();
        if (name.isEmpty())
            return;
        const Row target = row(list);
        Recordset set = openSet(target);
        if (isEmpty(set)) {
            status = u"No Data Exists"_s;
            return;
        }
        for (int column = 1; column <= columns; ++column)
            set.Fields()[columnName(column)].setValue(QString());
        set.Update();
        target.list.clear();
        status = u"%1 (%2) Cleared"_s.arg(name, target.table);
    });
}

void CriteriaSets::RemoveMCMNC(List list)
{
    guarded(mLog, {module, "Sub RemoveMCMNC"_L1}, [&] {
        ListBox &box = row(list).list;
        if (box.selCount() < 2) {
            RemoveMC(list);
            return;
        }
        const QStringList selected = cLstBx::GetItems(box, cLstBx::Which::Selected);
        cLstBx::UnSelect(box);
        for (const QString &item : selected) {
            if (!item.isEmpty() && box.items().contains(item))
                RemoveMC(list, item);
        }
    });
}

void CriteriaSets::drop(List list, const QString &text)
{
    constexpr auto lineEnd = "\r\n"_L1;
    guarded(mLog, {module, "Sub OLEDragDrop"_L1}, [&] {
        if (text.isEmpty())
            return;
        int count = 0;
        if (!text.contains(lineEnd)) {
            AddMC(list, text);
            count = 1;
        } else {
            for (const QString &line : text.split(lineEnd, Qt::SkipEmptyParts)) {
                if (cLstBx::DoesItemExist(row(list).list, line))
                    continue;
                AddMC(list, line);
                ++count;
            }
        }
        mStatus.UpDateStatus(u"%1 Added"_s.arg(count));
        mStates.SetStateOfControls();
    });
}

void CriteriaSets::demandChosen(List list)
{
    guarded(mLog, {module, "Sub lstANMCAllAny_Click"_L1}, [&] {
        const Row target = row(list);
        if (!mForm.mbFormReady || target.demand.listIndex() != selectDemand)
            return;
        if (target.list.listCount() == 0) {
            target.demand.setListIndex(allDemand);
            mStatus.UpDateStatus(target.table + " Not selected"_L1);
        } else if (target.list.selCount() == 0) {
            target.list.setSelected(0, true);
        }
    });
}

void CriteriaSets::showTip(List list)
{
    if (mForm.options.chkSMV(0).value() != 1)
        return;
    const Row target = row(list);
    target.list.setToolTipText(target.list.selCount() == 1
                                   ? u"%2, %1 items"_s.arg(target.list.listCount()).arg(chosenItem(target.list))
                                   : u"%1 (%2) list"_s.arg(target.label, target.table));
}
