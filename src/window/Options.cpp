#include "window/Options.h"

#include "window/OptionTable.h"
#include "window/ToolTips.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace
{
constexpr auto onMark = "ON"_L1;
constexpr auto offMark = "OFF"_L1;

/// The text under which a control's state is stored.
QString stored(const Control &control)
{
    if (const auto *box = qobject_cast<const CheckBox *>(&control))
        return QString::number(box->value());
    if (const auto *list = qobject_cast<const ListControl *>(&control))
        return QString::number(list->listIndex());
    if (const auto *number = qobject_cast<const NumberBox *>(&control))
        return number->text().trimmed();
    if (const auto *text = qobject_cast<const TextBox *>(&control))
        return text->text();
    return {};
}

int wholeNumber(const QString &text)
{
    bool converts = false;
    const int number = text.toInt(&converts);
    if (!converts)
        throw RuntimeError(ErrorNumber::TypeMismatch, u"Type mismatch"_s);
    return number;
}
} // namespace

Options::Options(ErrorLog &log, frmSearch &form, StatusLine &status, ControlStates &states, SettingsStore &settings,
                 QString programFolder)
    : mLog(log), mForm(form), mStatus(status), mStates(states), mSettings(settings),
      mProgramFolder(std::move(programFolder))
{
    for (const SettingRow &row : settingRows()) {
        if (row.saved == SettingRow::Saved::AtChange)
            connectSetting(row.key, mForm.control(row.control));
    }
    // These two are stored like the others and loaded only once the database is.
    connectSetting("SearchKeyChkMustContain Value"_L1, &mForm.chkMustContain);
    connectSetting("SearchKeyChkMustNotContain Value"_L1, &mForm.chkMustNotContain);
    connectSetting("chkUseSavedUrls"_L1, &mForm.chkUseSavedUrls);
    connectSetting("cboANSavedUrls"_L1, &mForm.cboANSavedUrls);
    for (const SwitchRow &row : switchRows()) {
        auto *box = qobject_cast<CheckBox *>(mForm.control(row.control));
        if (!row.caption.isEmpty())
            box->setCaption(row.caption);
        connect(box, &CheckBox::Click, this, [this, box, row] { chkSwitch_Click(*box, row.on, row.off); });
    }
    connect(&mForm.chkSavePages, &CheckBox::Click, this, &Options::chkSavePages_Click);
    connect(&mForm.chkSavePhone, &CheckBox::Click, this, &Options::chkSavePhone_Click);
    connect(&mForm.chkSaveUrl, &CheckBox::Click, this, &Options::chkSaveUrl_Click);
    connect(&mForm.chkSMV(0), &CheckBox::Click, this, [this] { showToolTips(mForm, mForm.chkSMV(0).value() == 1); });
    connect(&mForm.chkSMV(1), &CheckBox::Click, this, [this] { mLog.ToggleErrMsg(mForm.chkSMV(1).value() == 1); });
    connect(&mForm.chkSMA(9), &CheckBox::Click, this, [this] {
        mForm.picStatus.setBackColor(mForm.chkSMA(9).value() == 1 ? Colours::Yellow : Colours::ButtonFace);
    });
}

void Options::save(QLatin1StringView key, const QString &value)
{
    mSettings.SaveSetting(section, key, value);
}

/// Writes a control's state under `key` whenever it changes, once the form is ready: the loading itself writes nothing.
void Options::connectSetting(QLatin1StringView key, Control *control)
{
    const auto write = [this, key, control] {
        const bool ready = control == &mForm.chkSMV(4) ? mForm.mbMainShown : mForm.mbFormReady;
        if (ready && stored(*control) != "-1"_L1)
            save(key, stored(*control));
    };
    if (auto *box = qobject_cast<CheckBox *>(control))
        connect(box, &CheckBox::Click, this, write);
    else if (auto *list = qobject_cast<ListControl *>(control))
        connect(list, &ListControl::Click, this, write);
    else if (auto *text = qobject_cast<TextBox *>(control))
        connect(text, text == &mForm.txtSBSelAreaCodes ? &TextBox::Validate : &TextBox::Change, this, write);
}

void Options::load(Control &control, const QString &value)
{
    if (auto *box = qobject_cast<CheckBox *>(&control))
        box->setValue(wholeNumber(value));
    else if (auto *list = qobject_cast<ListControl *>(&control))
        list->setListIndex(wholeNumber(value));
    else if (auto *number = qobject_cast<NumberBox *>(&control))
        number->setText(value);
    else if (auto *text = qobject_cast<TextBox *>(&control))
        text->setText(value);
}

/// A stored folder, or the program's own, which is then stored, where that does not exist.
QString Options::directory(const QString &key, const QString &byDefault)
{
    const QString base = mProgramFolder.endsWith(u'/') ? mProgramFolder : mProgramFolder + u'/';
    QString folder = mSettings.GetSetting(section, key, byDefault.isEmpty() ? base : byDefault);
    if (folder.isEmpty())
        folder = base;
    if (QDir(folder.chopped(1)).exists())
        return folder;
    mSettings.SaveSetting(section, key, base);
    return base;
}

void Options::GetSettings()
{
    guarded(mLog, {"frmSearch"_L1, "Sub GetSettings"_L1}, [&] {
        mForm.txtSFEditor.setText(mSettings.GetSetting(section, u"txtSFEditor"_s, QDir::currentPath() + "/editor.exe"_L1));
        mForm.txtSFDBDir.setText(directory(u"SearchKeyTxtSaveLocation Text"_s, {}));
        mForm.txtSFMNDir.setText(directory(u"txtFNSaveLocation"_s, mForm.txtSFDBDir.text()));
        mForm.txtSFDBFile.setText(mSettings.GetSetting(startSection, u"DatabaseName"_s, u"Trawlex-0.mdb"_s));
        for (const SettingRow &row : settingRows())
            load(*mForm.control(row.control), mSettings.GetSetting(section, row.key, row.byDefault));
        showToolTips(mForm, mForm.chkSMV(0).value() == 1);
    });
}

void Options::saveAtExit()
{
    for (const SettingRow &row : exitRows())
        save(row.key, stored(*mForm.control(row.control)));
}

void Options::chkSwitch_Click(const CheckBox &box, QLatin1StringView on, QLatin1StringView off)
{
    if (!(&box == &mForm.chkSMV(4) ? mForm.mbMainShown : mForm.mbFormReady))
        return;
    mStates.SetStateOfControls();
    mStatus.UpDateStatus(box.isOn() ? on : off);
}

void Options::chkSavePages_Click()
{
    if (!mForm.mbFormReady)
        return;
    QLatin1StringView target = " "_L1;
    const bool on = mForm.chkSavePages.isOn();
    if (on && mForm.chkSaveToSS.value() == 1)
        target = " to SiteSummary "_L1;
    else if (on && mForm.chkSaveToFile.value() == 1)
        target = mForm.chkPutInOneFile.value() == 1 ? " to 1 file "_L1 : " to files "_L1;
    mStates.SetStateOfControls();
    mStatus.UpDateStatus("Save Pages"_L1 + target + (on ? onMark : offMark));
}

void Options::chkSavePhone_Click()
{
    if (!mForm.mbFormReady)
        return;
    const QString codes = mForm.txtSBSelAreaCodes.text();
    mStates.SetStateOfControls();
    mStatus.UpDateStatus("Save"_L1 + (codes.isEmpty() ? u" all "_s : u'[' + codes + u']') + "phone #s "_L1 +
                         (mForm.chkSavePhone.isOn() ? onMark : offMark));
}

void Options::chkSaveUrl_Click()
{
    if (!mForm.mbFormReady)
        return;
    const bool on = mForm.chkSaveUrl.isOn();
    if (on && mForm.mbPassUrlsLoaded) {
        mForm.chkSaveUrl.setValue(0);
        mStatus.UpDateStatus(u"PassUrls%1 loaded"_s.arg(mForm.cboANList.text()));
        return;
    }
    mStates.SetStateOfControls();
    mStatus.UpDateStatus("Save links"_L1 + (mForm.chkSMD(7).value() == 1 ? " if no data "_L1 : " "_L1) +
                         (on ? onMark : offMark));
}
