#include "window/options/OptionReports.h"

#include "window/options/OptionTable.h"

using namespace Qt::StringLiterals;

namespace {
QLatin1StringView onOrOff(const CheckBox &box)
{
    return box.isOn() ? "ON"_L1 : "OFF"_L1;
}
} // namespace

OptionReports::OptionReports(const Context &context, frmSearch &form) : mContext(context), mForm(form)
{
    for (const OptionRow &row : optionRows()) {
        if (!row.on.isEmpty())
            connectSwitch(row.control, row.on, row.off);
    }
    connect(&mForm.outputs.chkSavePages, &CheckBox::Click, this, &OptionReports::chkSavePages_Click);
    connect(&mForm.outputs.chkSavePhone, &CheckBox::Click, this, &OptionReports::chkSavePhone_Click);
    connect(&mForm.outputs.chkSaveUrl, &CheckBox::Click, this, &OptionReports::chkSaveUrl_Click);
    const CheckBox &unique = mForm.options.chkSMA(SMA::UniqueServers);
    connect(&unique, &CheckBox::Click, this, [this, &unique] {
        mForm.frame.picStatus.setBackColor(unique.value() == 1 ? Colours::Yellow : Colours::ButtonFace);
    });
}

void OptionReports::connectSwitch(QLatin1StringView control, QLatin1StringView on, QLatin1StringView off)
{
    const auto *box = qobject_cast<CheckBox *>(mForm.control(control));
    // The window's place is set by the program itself until the window is shown.
    const bool &ready = box == &mForm.options.chkSMV(SMV::OrientAtStart) ? mForm.mbMainShown : mForm.mbFormReady;
    connect(box, &CheckBox::Click, this, [this, box, on, off, &ready] {
        if (ready)
            report(box->isOn() ? on : off);
    });
}

void OptionReports::report(const QString &text)
{
    mContext.states.SetStateOfControls();
    mContext.status.UpDateStatus(text);
}

void OptionReports::chkSavePages_Click()
{
    if (!mForm.mbFormReady)
        return;
    const Outputs &outputs = mForm.outputs;
    QLatin1StringView target = " "_L1;
    if (outputs.chkSavePages.isOn() && outputs.chkSaveToSS.value() == 1)
        target = " to SiteSummary "_L1;
    else if (outputs.chkSavePages.isOn() && outputs.chkSaveToFile.value() == 1)
        target = outputs.chkPutInOneFile.value() == 1 ? " to 1 file "_L1 : " to files "_L1;
    report("Save Pages"_L1 + target + onOrOff(outputs.chkSavePages));
}

void OptionReports::chkSavePhone_Click()
{
    if (!mForm.mbFormReady)
        return;
    const QString codes = mForm.areaCodes.txtSBSelAreaCodes.text();
    report("Save"_L1 + (codes.isEmpty() ? u" all "_s : u'[' + codes + u']') + "phone #s "_L1 +
           onOrOff(mForm.outputs.chkSavePhone));
}

void OptionReports::chkSaveUrl_Click()
{
    if (!mForm.mbFormReady)
        return;
    CheckBox &box = mForm.outputs.chkSaveUrl;
    if (box.isOn() && mForm.saved.mbPassUrlsLoaded) {
        box.setValue(0);
        mContext.status.UpDateStatus(u"PassUrls%1 loaded"_s.arg(mForm.saved.cboANList.text()));
        return;
    }
    const bool ifNoData = mForm.options.chkSMD(SMD::PassUrlIfNoData).value() == 1;
    report("Save links"_L1 + (ifNoData ? " if no data "_L1 : " "_L1) + onOrOff(box));
}
