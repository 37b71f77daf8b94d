// The status bar: its tip, its double click and its menu are those of the tab in force.
#pragma once

#include "app/Context.h"
#include "app/frmSearch.h"
#include "window/commands/PopUps.h"

class StatusBarEvents : public QObject
{
    Q_OBJECT

  public:
    StatusBarEvents(const Context &context, frmSearch &form, PopUps &popUps);

  Q_SIGNALS:
    // What a double click is for, on the tabs where it does something.
    /// The page on show is to be marked in this table.
    void selectUrlWanted(const QString &table);
    /// A record is to be begun for the page on show.
    void siteOfPageWanted();

  private:
    void showTip();
    void doubleClick();
    void openMenu();

    Context mContext;
    frmSearch &mForm;
    PopUps &mPopUps;
};
