#include "window/commands/SavedPanel.h"

using namespace Qt::StringLiterals;

SavedPanel::SavedPanel(const Context &context, frmSearch &form, SavedUrls &savedUrls, AutoRun &run)
    : mContext(context), mForm(form), mSavedUrls(savedUrls), mRun(run)
{
    SavedAddresses &saved = form.saved;
    connect(&saved.cmdANSavedAdd, &Button::Click, this, [this] {
        mSavedUrls.AddSavedUrl(true, {});
        mContext.states.SetStateOfControls();
    });
    connect(&saved.cmdANSavedMinus, &Button::Click, this, [this] { mSavedUrls.RemoveSavedUrl(); });
    connect(&saved.cmdANSavedGo, &Button::Click, this, [this] { mSavedUrls.cmdANSavedGo_Click(); });
    connect(&saved.cboANSavedUrls, &ComboBox::Click, this, [this] { mContext.states.SetStateOfControls(); });
    for (Control *source : {static_cast<Control *>(&saved.cboANSavedUrls), static_cast<Control *>(&saved.cmdANSavedGo)})
        connect(source, &Control::dragStarted, this, [this](QString *text) { *text = mSavedUrls.chosenAddress(); });
    connect(&saved.cboANList, &ComboBox::DropDown, this, [this] { mSavedUrls.SaveSavedUrlPos(); });
    connect(&saved.cboANList, &ComboBox::Click, this, &SavedPanel::cboANList_Click);
}

void SavedPanel::cboANList_Click()
{
    guarded(mContext.log, {"frmSearch"_L1, "Sub cboANList_Click"_L1}, [&] {
        if (!mForm.mbFormReady)
            return;
        mSavedUrls.LoadSavedUrls(SavedUrls::Kind::SavedUrl);
        mSavedUrls.SetSavedUrlPos();
        mRun.ResetProcessAN();
        Q_EMIT letterChosen();
        mContext.status.UpDateStatus(u"%1 loaded"_s.arg(mForm.saved.cboANSavedUrls.listCount()));
    });
}
