// Makes the two menus of the Manual tab ready before they open: gathers the facts by which their items are enabled.
#pragma once

#include "app/Context.h"
#include "lists/AutoIncr.h"
#include "lists/ManualTables.h"
#include "window/commands/ManualFind.h"

class ManualPopUps : public QObject
{
    Q_OBJECT

  public:
    ManualPopUps(const Context &context, frmSearch &form, const ManualDesk &desk, ManualTables &tables,
                 ManualFind &find, AutoIncr &series, const ClipboardText &clipboard);

    void mnuPopUpMN_Click();
    void mnuPopUpMNStatus_Click();

  private:
    Context mContext;
    frmSearch &mForm;
    const ManualDesk &mDesk;
    ManualTables &mTables;
    ManualFind &mFind;
    AutoIncr &mSeries;
    const ClipboardText &mClipboard;
};
