// The choice between files and sites: what collects while one browses is only for sites, and comes back with them.
#pragma once

#include "app/Context.h"
#include "app/frmSearch.h"

class FilesSitesEvents : public QObject
{
    Q_OBJECT

  public:
    FilesSitesEvents(const Context &context, frmSearch &form);

  Q_SIGNALS:
    /// Turns collecting into this list on or off: of the links on pages, of the pages themselves.
    void linksToggled(int list);
    void pagesToggled(int list);
    void coloursAsked();

  private:
    void cboFilesSites_Click();
    void keep();
    void comeBack();
    void toggleStored(QLatin1StringView key, QLatin1StringView array, void (FilesSitesEvents::*toggled)(int));
    [[nodiscard]] int checked(QLatin1StringView array) const;

    Context mContext;
    frmSearch &mForm;
};
