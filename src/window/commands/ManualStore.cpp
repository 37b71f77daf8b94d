#include "window/commands/ManualStore.h"

#include "window/commands/CommandRows.h"

using namespace Qt::StringLiterals;

ManualStore::ManualStore(const Context &context, const Menu &menu, const ManualDesk &desk, const ManualWork &work,
                         ManualTables &tables, DeletedRows &deleted, ManualFeed &feed)
    : mContext(context), mDesk(desk), mWork(work), mTables(tables), mDeleted(deleted), mFeed(feed)
{
    static constexpr CommandRow<ManualStore> rows[] = {
        {"mnuMNDeleteSaved"_L1, "Sub mnuMNDeleteSaved_Click"_L1, &ManualStore::deleteSaved},
        {"mnuMNSaveToDatabase"_L1, "Sub mnuMNSaveToDatabase_Click"_L1, &ManualStore::save},
        {"mnuMNSaveLast"_L1, "Sub mnuMNSaveLast_Click"_L1, &ManualStore::savePosition},
        {"mnuMNStatusSaveListWindowUrl"_L1, "Sub mnuMNStatusSaveListWindowUrl_Click"_L1, &ManualStore::saveSelectUrl},
        {"mnuMNLoadLinksIE"_L1, "Sub mnuMNLoadLinksIE_Click"_L1, &ManualStore::loadFromBrowser},
        {"mnuMNLoadLinksDB"_L1, "Sub mnuMNLoadLinksDB_Click"_L1, &ManualStore::load},
    };
    connectCommands(*this, rows, menu, context.log, work.work());
}

void ManualStore::deleteSaved()
{
    const QString table = mDesk.table();
    mWork.tell("Deleting "_L1 + table, [&] {
        switch (mDeleted.CacheDeletedData(table)) {
        case DeletedRows::Outcome::Cancelled:
            return u"Cancelled"_s;
        case DeletedRows::Outcome::Refused:
            return table + " not deleted"_L1;
        case DeletedRows::Outcome::WasEmpty:
        case DeletedRows::Outcome::Moved:
            break;
        }
        return table + " deleted"_L1;
    });
}

bool ManualStore::saveToDatabase()
{
    const QString table = mDesk.table();
    bool saved = false;
    mWork.tell("Saving "_L1 + table + ". Please Wait"_L1, [&] {
        const QString refused = mTables.SaveMN(list(), table);
        saved = refused.isEmpty();
        return saved ? "Saved To "_L1 + table : refused;
    });
    return saved;
}

void ManualStore::savePosition()
{
    mTables.SaveMNLastUrl(list(), mDesk.table(), true);
}

void ManualStore::saveSelectUrl()
{
    Q_EMIT selectUrlWanted(u"MNSelectUrls"_s, mDesk.item());
}

void ManualStore::loadFromBrowser()
{
    mWork.count(u"Please Wait"_s, [&] { return mFeed.LoadBrowserLinks(mDesk.index()); });
}

bool ManualStore::loadFromDatabase()
{
    bool loaded = false;
    mWork.count("Loading "_L1 + mDesk.table(), [&] {
        QString hindrance = mTables.LoadMN(list(), mDesk.table());
        loaded = hindrance.isEmpty();
        // The remembered item is told of where it is not the first one.
        if (loaded && list().listIndex() > 0)
            mDesk.ShowSelected();
        return hindrance;
    });
    return loaded;
}
