// The commands that save the manual list on show and load it, in the database and in files, or from the browser.
#pragma once

#include "lists/ManualFeed.h"
#include "lists/ManualTables.h"
#include "window/commands/ManualWork.h"

class ManualStore : public QObject
{
    Q_OBJECT

  public:
    ManualStore(const Context &context, const Menu &menu, const ManualDesk &desk, const ManualWork &work,
                ManualTables &tables, DeletedRows &deleted, ManualFeed &feed);

    /// "ListTo Db". False when not all of it was kept.
    bool saveToDatabase();
    /// "Urls (DB)" of Load. False when it was not read whole.
    bool loadFromDatabase();

  Q_SIGNALS:
    /// An item is to be marked for later.
    void selectUrlWanted(const QString &table, const QString &url);

  private:
    [[nodiscard]] ListBox &list() const { return mDesk.list(); }
    void save() { static_cast<void>(saveToDatabase()); }
    void load() { static_cast<void>(loadFromDatabase()); }
    void deleteSaved();
    void savePosition();
    void saveSelectUrl();
    void loadFromBrowser();

    Context mContext;
    const ManualDesk &mDesk;
    const ManualWork &mWork;
    ManualTables &mTables;
    DeletedRows &mDeleted;
    ManualFeed &mFeed;
};
