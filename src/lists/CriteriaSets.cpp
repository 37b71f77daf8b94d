#include "lists/CriteriaSets.h"

#include "controls/cLstBx.h"
#include "lists/ChosenItem.h"
#include "lists/Entry.h"
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

CriteriaSets::Row CriteriaSets::row(List list) const
{
    if (list == List::MustContain)
        return {u"MC"_s, u"Must Contain"_s, mCriteria.mustContain.items, mCriteria.mustContain.demand};
    return {u"MNC"_s, u"Must Not Contain"_s, mCriteria.mustNotContain.items, mCriteria.mustNotContain.demand};
}

Recordset CriteriaSets::openSet(const Row &row)
{
    return mDatabase->GetRecordset("SELECT * FROM "_L1 + row.table + " WHERE MaskName='"_L1 +
                                   mCriteria.cboANMCMNCMask.text() + u'\'');
}

bool CriteriaSets::exists(const QString &name)
{
    return !mDatabase->GetRecordset("SELECT MaskName FROM MC WHERE MaskName='"_L1 + name + u'\'').isEmpty();
}

void CriteriaSets::LoadMCMNC()
{
    guarded(mContext.log, {module, "Sub LoadMCMNC"_L1}, [&] {
        mCriteria.cboANMCMNCMask.clear();
        mCriteria.mustContain.items.clear();
        mCriteria.mustNotContain.items.clear();
        for (const QString &name : mDatabase->GetFieldData(u"MaskName"_s, u"MC"_s)) {
            if (!name.isEmpty())
                mCriteria.cboANMCMNCMask.addItem(name);
        }
        withoutSelection(row(List::MustContain));
        withoutSelection(row(List::MustNotContain));
    });
}

void CriteriaSets::fill(const Row &row, const QString &name)
{
    row.list.clear();
    const Recordset set =
        mDatabase->GetRecordset("SELECT * FROM "_L1 + row.table + " WHERE MaskName='"_L1 + name + u'\'');
    for (int column = 1; column <= columns && !set.isEmpty(); ++column) {
        if (const QString item = FixNull(set.Fields()[columnName(column)]); !item.isEmpty())
            row.list.addItem(item);
    }
}

void CriteriaSets::AssignMaskElements(const QString &name)
{
    guarded(mContext.log, {module, "Sub AssignMaskElements"_L1}, [&] {
        const QString chosen = name.isEmpty() ? mCriteria.cboANMCMNCMask.text() : name;
        if (chosen.isEmpty())
            return;
        for (const List list : {List::MustContain, List::MustNotContain}) {
            fill(row(list), chosen);
            withoutSelection(row(list));
        }
    });
}

/// A name that no set has; "" if the user gives none.
QString CriteriaSets::askForName()
{
    QString name = firstName;
    while (exists(name))
        name = cUtility::Incr(name, 4, false, 1, u"", u"1", u"", false);
    const auto ask = [&](const QString &title) {
        name = Entry::asItem(mContext.dialogs.input(namePrompt, title, name)).remove(u',');
    };
    ask(u"New MC - MNC Set"_s);
    while (!name.isEmpty() && exists(name))
        ask(u"Item Exists"_s);
    return name;
}

QString CriteriaSets::AddMCMNCSet()
{
    return guardedResult(mContext.log, {module, "Sub AddMCMNCSet"_L1}, QString(), [&](QString &status) {
        const QString name = askForName();
        status = u"Nothing Added"_s;
        if (name.isEmpty())
            return;
        const QStringList record{recordElement("MaskName"_L1, name)};
        Transaction transaction(*mDatabase);
        if (!mDatabase->AddRecord(record, -1, u"MC"_s, rowMarker) ||
            !mDatabase->AddRecord(record, -1, u"MNC"_s, rowMarker) || !transaction.commit())
            return;
        mCriteria.cboANMCMNCMask.addItem(name);
        mCriteria.cboANMCMNCMask.setListIndex(mCriteria.cboANMCMNCMask.listCount() - 1);
        status = u"Group Added"_s;
    });
}

QString CriteriaSets::RemoveMCMNCSet()
{
    return guardedResult(mContext.log, {module, "Sub RemoveMCMNCSet"_L1}, QString(), [&](QString &status) {
        const QString name = mCriteria.cboANMCMNCMask.text();
        status = u"Nothing Selected"_s;
        if (name.isEmpty())
            return;
        status = name + " Not Removed"_L1;
        Transaction transaction(*mDatabase);
        for (const List list : {List::MustContain, List::MustNotContain})
            static_cast<void>(
                mDatabase->GetRecordset("DELETE * FROM "_L1 + row(list).table + " WHERE MaskName='"_L1 + name + u'\''));
        if (exists(name) || !transaction.commit())
            return;
        const int index = mCriteria.cboANMCMNCMask.listIndex();
        mCriteria.cboANMCMNCMask.removeItem(index);
        mCriteria.mustContain.items.clear();
        mCriteria.mustNotContain.items.clear();
        mCriteria.cboANMCMNCMask.setListIndex(index - 1);
        withoutSelection(row(List::MustContain));
        withoutSelection(row(List::MustNotContain));
        status = name + " Removed"_L1;
    });
}

QString CriteriaSets::AddMC(List list, const QString &item)
{
    return guardedResult(mContext.log, {module, "Sub AddMC"_L1}, QString(), [&](QString &status) {
        if (mCriteria.cboANMCMNCMask.text().isEmpty())
            return;
        const Row target = row(list);
        const QString added = Entry::asItem(
            !item.isEmpty() ? item
                            : mContext.dialogs.input("Enter new "_L1 + target.label + " text"_L1, u"New Item"_s, {}));
        if (added.isEmpty()) {
            status = u"Add Canceled"_s;
            return;
        }
        Recordset set = openSet(target);
        if (set.isEmpty())
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
    return guardedResult(mContext.log, {module, "Sub RemoveMC"_L1}, QString(), [&](QString &status) {
        if (mCriteria.cboANMCMNCMask.text().isEmpty())
            return;
        const Row target = row(list);
        const QString removed = item.isEmpty() ? chosenItem(target.list) : item;
        if (removed.isEmpty()) {
            status = u"Nothing Selected"_s;
            return;
        }
        Recordset set = openSet(target);
        if (set.isEmpty())
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
        withoutSelection(target);
        status = removed + " Removed"_L1;
    });
}

QString CriteriaSets::ClearMC(List list)
{
    return guardedResult(mContext.log, {module, "Sub ClearMC"_L1}, QString(), [&](QString &status) {
        const QString name = mCriteria.cboANMCMNCMask.text();
        if (name.isEmpty())
            return;
        const Row target = row(list);
        Recordset set = openSet(target);
        if (set.isEmpty()) {
            status = u"No Data Exists"_s;
            return;
        }
        for (int column = 1; column <= columns; ++column)
            set.Fields()[columnName(column)].setValue(QString());
        set.Update();
        target.list.clear();
        withoutSelection(target);
        status = u"%1 (%2) Cleared"_s.arg(name, target.table);
    });
}

void CriteriaSets::RemoveMCMNC(List list)
{
    guarded(mContext.log, {module, "Sub RemoveMCMNC"_L1}, [&] {
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
    guarded(mContext.log, {module, "Sub OLEDragDrop"_L1}, [&] {
        const QStringList lines = Entry::lines(text);
        if (lines.isEmpty())
            return;
        const ListBox &box = row(list).list;
        int count = 0;
        for (const QString &line : lines) {
            // A text of one line counts whatever becomes of it, as long as the table was not in the way.
            if (!Entry::isSingle(text) && cLstBx::DoesItemExist(box, line))
                continue;
            if (box.listCount() >= columns || !AddMC(list, line).isEmpty())
                ++count;
        }
        mContext.status.UpDateStatus(u"%1 Added"_s.arg(count));
        mContext.states.SetStateOfControls();
    });
}

/// "Select" needs something selected; where nothing is, all items count again.
void CriteriaSets::withoutSelection(const Row &row)
{
    if (row.demand.listIndex() == selectDemand && row.list.selCount() == 0)
        row.demand.setListIndex(allDemand);
}

void CriteriaSets::demandChosen(List list)
{
    guarded(mContext.log, {module, "Sub lstANMCAllAny_Click"_L1}, [&] {
        const Row target = row(list);
        if (target.demand.listIndex() != selectDemand)
            return;
        if (target.list.listCount() == 0) {
            target.demand.setListIndex(allDemand);
            mContext.status.UpDateStatus(target.table + " Not selected"_L1);
        } else if (target.list.selCount() == 0) {
            target.list.setSelected(0, true);
        }
    });
}

void CriteriaSets::showTip(List list)
{
    if (!mContext.tips.areShown())
        return;
    const Row target = row(list);
    target.list.setToolTipText(target.list.selCount() == 1
                                   ? u"%2, %1 items"_s.arg(target.list.listCount()).arg(chosenItem(target.list))
                                   : u"%1 (%2) list"_s.arg(target.label, target.table));
}
