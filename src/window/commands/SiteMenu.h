// The search sites under the right mouse button of Go: each record's name in the sub-menu of its group; a click opens
// the site.
#pragma once

#include "app/Context.h"
#include "app/frmSearch.h"
#include "driver/Navigation.h"
#include "sites/SiteRecords.h"
#include "window/commands/PopUps.h"

class SiteMenu : public QObject
{
    Q_OBJECT

  public:
    SiteMenu(const Context &context, frmSearch &form, SiteRecords &records, Navigation &navigation, PopUps &popUps);

    /// Names the items after the records of the editor's list. Items are made while the form is not ready; later a
    /// group holds no more records than it has items.
    void LoadSearchEngineMenu();

  private:
    void setItem(int group, int index, const QString &name);
    void SSMenu(const MenuItem &item);

    Context mContext;
    frmSearch &mForm;
    SiteRecords &mRecords;
    Navigation &mNavigation;
};
