// The events of the Auto tab, the status bar and the tabs, each led to the operation that answers it.
#pragma once

#include "app/frmSearch.h"
#include "harvest/AutoRun.h"
#include "lists/Blocking.h"

class BrowserConnection;
class LifeCycle;

class AutoTab : public QObject
{
    Q_OBJECT

  public:
    struct Parts
    {
        ErrorReceiver &log;
        frmSearch &form;
        StatusLine &status;
        ControlStates &states;
        cTimer &timer;
        Desktop &desktop;
        SavedUrls &savedUrls;
        Blocking &blocking;
        AutoRun &run;
        BrowserConnection &connection;
        LifeCycle &lifeCycle;
    };
    explicit AutoTab(const Parts &parts);

  private:
    void connectRun();
    void connectSavedUrls();
    void connectStatus();
    void lblTrawlexTimer_MouseDown(MouseButton button);
    void lblTrawlexTimer_MouseMove();
    void lblAutoCollect_MouseDown(MouseButton button);
    void lblAutoCollect_MouseMove();
    void lblPageSaved_MouseDown(MouseButton button);
    void cboANList_Click();
    void tab_Click(bool ofSettings);
    void picStatus_DblClick();

    Parts m;
};
