// The commands that load a manual list from tables of other lists, and the switch that says how links are loaded.
#pragma once

#include "lists/ManualTables.h"
#include "window/commands/ManualWork.h"

class ManualSources : public QObject
{
    Q_OBJECT

  public:
    ManualSources(const Context &context, const Menu &menu, const SavedAddresses &saved, const ManualDesk &desk,
                  const ManualWork &work, ManualTables &tables);

    /// The captions name the Auto list in force.
    void mnuMNLoadSelectUrls_Click();
    /// Adds the addresses of a table that the list on show has not yet.
    void LoadDBItemsMN(const QString &table);

  private:
    void mnuMNLSU_Click(int index);
    void mnuMNUseSiteData_Click();

    Context mContext;
    const Menu &mMenu;
    const SavedAddresses &mSaved;
    const ManualDesk &mDesk;
    const ManualWork &mWork;
    ManualTables &mTables;
};
