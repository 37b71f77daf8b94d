// What a click on a switch does beyond storing it: who may be clicked next, and what the user is told.
#pragma once

#include "app/Context.h"
#include "app/frmSearch.h"

class OptionReports : public QObject
{
    Q_OBJECT

  public:
    OptionReports(const Context &context, frmSearch &form);

  private:
    void connectSwitch(QLatin1StringView control, QLatin1StringView on, QLatin1StringView off);
    void report(const QString &text);
    void chkSavePages_Click();
    void chkSavePhone_Click();
    void chkSaveUrl_Click();

    Context mContext;
    frmSearch &mForm;
};
