// The events of the editor of search-site records, each led to the operation that answers it.
#pragma once

#include "app/Context.h"
#include "app/FormGroups.h"
#include "driver/BrowserHolder.h"
#include "sites/DefaultSites.h"
#include "sites/SiteEditing.h"

class SitePanel : public QObject
{
    Q_OBJECT

  public:
    SitePanel(const Context &context, SiteEditor &editor, SiteEditing &editing, DefaultSites &defaults,
              BrowserHolder &browser);

    /// Begins a record for the page on show: its title and its server stand in emptied boxes.
    void takePage();
    /// The same with a name and a server that + takes as they stand.
    void beginRecord();

  private:
    void cboSD_Click(int box);
    void cmdSD_Click(int button);
    void cmdSDDefault_Click();
    void write(SiteField field, const QString &value);

    Context mContext;
    SiteEditor &mEditor;
    SiteEditing &mEditing;
    DefaultSites &mDefaults;
    BrowserHolder &mBrowser;
};
