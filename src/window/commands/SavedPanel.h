// The events of the saved addresses on the Auto tab, each led to the operation that answers it.
#pragma once

#include "app/Context.h"
#include "app/frmSearch.h"
#include "harvest/AutoRun.h"
#include "lists/SavedUrls.h"

class SavedPanel : public QObject
{
    Q_OBJECT

  public:
    SavedPanel(const Context &context, frmSearch &form, SavedUrls &savedUrls, AutoRun &run);

  Q_SIGNALS:
    /// Another letter is in force: what else shows the tables of the letter is to follow.
    void letterChosen();

  private:
    void cboANList_Click();

    Context mContext;
    frmSearch &mForm;
    SavedUrls &mSavedUrls;
    AutoRun &mRun;
};
