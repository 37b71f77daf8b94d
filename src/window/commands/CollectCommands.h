// The labels and menu items through which the user chooses what is collected while browsing by hand, each led to the
// choice. On the tab Auto the label of the links belongs to the Quick Block. Knows harvest.
#pragma once

#include "app/frmSearch.h"
#include "harvest/CollectChoice.h"
#include "lists/AutoIncr.h"
#include "sites/ResultLinks.h"

class CollectCommands : public QObject
{
    Q_OBJECT

  public:
    CollectCommands(const Context &context, frmSearch &form, const ManualDesk &desk, CollectChoice &choice,
                    AutoIncr &autoIncr, ResultLinks &links);

  private:
    void connectMenus();
    void lblAutoCollect_MouseDown(MouseButton button);
    void lblAutoCollect_MouseMove();
    void lblAutoPgUrls_MouseDown(MouseButton button);
    void lblAutoIncrPos_MouseDown(MouseButton button);
    void choosePagesOfSites(MouseButton button);
    void chooseSavedPages(MouseButton button);
    void linksOff();
    void manualPagesOff();
    void savedPagesOff();
    [[nodiscard]] int tab() const { return mForm.frame.sstSearch.tab(); }
    [[nodiscard]] bool areSites() const { return mForm.manual.cboFilesSites.listIndex() == 1; }

    Context mContext;
    frmSearch &mForm;
    const ManualDesk &mDesk;
    CollectChoice &mChoice;
    AutoIncr &mAutoIncr;
    ResultLinks &mLinks;
};
