// The events around a run on the Auto tab: Go, the browser, the countdown, the lamps and the end mark.
#pragma once

#include "app/Context.h"
#include "app/cTimer.h"
#include "app/frmSearch.h"
#include "harvest/AutoRun.h"

class BrowserConnection;
class LifeCycle;

class RunEvents : public QObject
{
    Q_OBJECT

  public:
    RunEvents(const Context &context, frmSearch &form, cTimer &timer, Desktop &desktop, AutoRun &run,
              BrowserConnection &connection, LifeCycle &lifeCycle);

  Q_SIGNALS:
    // What the countdown is about is to be shown large.
    void savedUrlAsked();
    void activeItemAsked();

  private:
    void showWhatIsWaitedFor();
    void lblTrawlexTimer_MouseDown(MouseButton button);
    void lblTrawlexTimer_MouseMove();
    void lblPageSaved_MouseDown(MouseButton button);

    Context mContext;
    frmSearch &mForm;
    cTimer &mTimer;
    Desktop &mDesktop;
};
