// The commands of the status bar's menu on the tabs Auto and Settings that concern the run and the page on show.
#pragma once

#include "app/Context.h"
#include "app/frmSearch.h"
#include "driver/Navigation.h"
#include "sites/SiteRecords.h"

class StatusMenu : public QObject
{
    Q_OBJECT

  public:
    StatusMenu(const Context &context, frmSearch &form, BrowserHolder &browser, Navigation &navigation,
               SiteRecords &records);

    /// What happens to the lists of "Auto Save".
    enum class AutoSave { AsItIs, Off, On };
    struct Facts
    {
        bool autoRun, manualRun, siteKnown;
    };
    /// An Auto run, and a page of results, would both add Saved Urls of their own.
    [[nodiscard]] static AutoSave autoSaveFor(const Facts &facts);

  Q_SIGNALS:
    void resetWanted();
    void autoSaveDecided(bool enabled);

  private:
    void prepare();
    void getServer();

    Context mContext;
    frmSearch &mForm;
    BrowserHolder &mBrowser;
    Navigation &mNavigation;
    SiteRecords &mRecords;
};
