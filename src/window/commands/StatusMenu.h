// The commands of the status bar's menu on the tabs Auto and Settings.
#pragma once

#include "app/Context.h"
#include "app/frmSearch.h"
#include "driver/Navigation.h"
#include "sites/SiteRecords.h"

class StatusMenu : public QObject
{
    Q_OBJECT

  public:
    StatusMenu(const Context &context, frmSearch &form, WindowPlace &place, BrowserHolder &browser,
               Navigation &navigation, SiteRecords &records);

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
    void helpWanted();
    void aboutWanted();
    void endWanted();

  private:
    void prepare();
    void getServer();
    void keepOnTop();
    [[nodiscard]] bool isKeptOnTop() const;

    Context mContext;
    frmSearch &mForm;
    WindowPlace &mPlace;
    BrowserHolder &mBrowser;
    Navigation &mNavigation;
    SiteRecords &mRecords;
};
