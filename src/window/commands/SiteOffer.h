// Where a site's result pages cannot be read yet, offers the way to the editor. A newcomer meets this with the first
// Go; whoever has no window answers nothing and goes on.
#pragma once

#include "app/Context.h"
#include "app/frmSearch.h"
#include "driver/BrowserHolder.h"

class SiteOffer : public QObject
{
    Q_OBJECT

  public:
    SiteOffer(const Context &context, frmSearch &form, BrowserHolder &browser);

  Q_SIGNALS:
    /// The editor is on show, and a record is to be begun for the page on show.
    void accepted();

  private:
    void offer();
    [[nodiscard]] bool isPageOnShow();

    Context mContext;
    frmSearch &mForm;
    BrowserHolder &mBrowser;
    bool mAsking = false;
};
