#include "window/options/Options.h"

#include "pages/PhoneFinder.h"
#include "util/Text.h"
#include "window/options/OptionTable.h"
#include "window/options/ToolTips.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {
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
        return cUtility::Trim(number->text()).toString();
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
    // What the loading does not reach, because a stored value before it does not convert, stays usable.
    const QString base = baseFolder();
    mForm.places.txtSFDBDir.setText(base);
    mForm.places.txtSFMNDir.setText(base);
    connectToolTips();
    connect(&mForm.areaCodes.txtSBSelAreaCodes, &TextBox::Validate, this, &Options::txtSBSelAreaCodes_Validate);
    for (const SettingRow &row : settingRows()) {
        if (row.saved == SettingRow::Saved::AtChange)
            connectSetting(row.key, mForm.control(row.control));
    }
    // These are stored like the others; they are loaded only once the database is, or the window is placed.
    connectSetting("SearchKeyChkMustContain Value"_L1, &mForm.criteria.mustContain.on);
    connectSetting("SearchKeyChkMustNotContain Value"_L1, &mForm.criteria.mustNotContain.on);
    connectSetting("chkUseSavedUrls"_L1, &mForm.saved.chkUseSavedUrls);
    connectSetting("cboANSavedUrls"_L1, &mForm.saved.cboANSavedUrls);
    connectSetting("cboANList"_L1, &mForm.saved.cboANList);
    connectSetting("chkSAMoveToTopLeft"_L1, &mForm.options.chkSMV(4));
    for (const SwitchRow &row : switchRows()) {
        auto *box = qobject_cast<CheckBox *>(mForm.control(row.control));
        if (!row.caption.isEmpty())
            box->setCaption(row.caption);
        connect(box, &CheckBox::Click, this, [this, box, row] { chkSwitch_Click(*box, row.on, row.off); });
    }
    connect(&mForm.outputs.chkSavePages, &CheckBox::Click, this, &Options::chkSavePages_Click);
    connect(&mForm.outputs.chkSavePhone, &CheckBox::Click, this, &Options::chkSavePhone_Click);
    connect(&mForm.outputs.chkSaveUrl, &CheckBox::Click, this, &Options::chkSaveUrl_Click);
    connect(&mForm.options.chkSMV(0), &CheckBox::Click, this,
            [this] { showToolTips(mForm, mForm.options.chkSMV(0).value() == 1); });
    connect(&mForm.options.chkSMV(1), &CheckBox::Click, this,
            [this] { mLog.ToggleErrMsg(mForm.options.chkSMV(1).value() == 1); });
    connect(&mForm.options.chkSMA(9), &CheckBox::Click, this, [this] {
        mForm.frame.picStatus.setBackColor(mForm.options.chkSMA(9).value() == 1 ? Colours::Yellow
                                                                                : Colours::ButtonFace);
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
        const bool ready = control == &mForm.options.chkSMV(4) ? mForm.mbMainShown : mForm.mbFormReady;
        if (ready && stored(*control) != "-1"_L1)
            save(key, stored(*control));
    };
    if (auto *box = qobject_cast<CheckBox *>(control))
        connect(box, &CheckBox::Click, this, write);
    else if (auto *list = qobject_cast<ListControl *>(control))
        connect(list, &ListControl::Click, this, write);
    else if (auto *text = qobject_cast<TextBox *>(control); text && text != &mForm.areaCodes.txtSBSelAreaCodes)
        connect(text, &TextBox::Change, this, write);
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
    QString base = baseFolder();
    QString folder = mSettings.GetSetting(section, key, byDefault.isEmpty() ? base : byDefault);
    if (folder.isEmpty())
        folder = base;
    if (QDir(folder.chopped(1)).exists())
        return folder;
    mSettings.SaveSetting(section, key, base);
    return base;
}

QString Options::baseFolder() const
{
    return mProgramFolder.endsWith(u'/') ? mProgramFolder : mProgramFolder + u'/';
}

void Options::loadDirectories()
{
    mForm.places.txtSFDBDir.setText(directory(u"SearchKeyTxtSaveLocation Text"_s, {}));
    mForm.places.txtSFMNDir.setText(directory(u"txtFNSaveLocation"_s, mForm.places.txtSFDBDir.text()));
    mForm.places.txtSFDBFile.setText(mSettings.GetSetting(startSection, u"DatabaseName"_s, u"Trawlex-0.mdb"_s));
}

void Options::GetSettings()
{
    guarded(mLog, {"frmSearch"_L1, "Sub GetSettings"_L1}, [&] {
        mForm.places.txtSFEditor.setText(
            mSettings.GetSetting(section, u"txtSFEditor"_s, QDir::currentPath() + "/editor.exe"_L1));
        for (const SettingRow &row : settingRows()) {
            load(*mForm.control(row.control), mSettings.GetSetting(section, row.key, row.byDefault));
            if (row.key == lastBeforeDirectories)
                loadDirectories();
        }
    });
}

void Options::saveAtExit()
{
    for (const SettingRow &row : exitRows())
        save(row.key, stored(*mForm.control(row.control)));
}

void Options::chkSwitch_Click(const CheckBox &box, QLatin1StringView on, QLatin1StringView off)
{
    if (!(&box == &mForm.options.chkSMV(4) ? mForm.mbMainShown : mForm.mbFormReady))
        return;
    mStates.SetStateOfControls();
    mStatus.UpDateStatus(box.isOn() ? on : off);
}

/// The tip of a box that says which case its items are compared in.
void Options::showCaseTip(CheckBox &box, const QString &items)
{
    if (!mForm.mbFormReady)
        return;
    const QString tip =
        items + (box.isOn() ? " items Are case sensitive! ON"_L1 : " items are Not case sensitive! OFF"_L1);
    box.setToolTipText(mForm.options.chkSMV(0).value() == 1 ? tip : QString());
}

/// A text box whose tip is its own text while tool tips are on. `whenEmpty` stands for an empty text; with `keepsHelp`
/// it also stays while tool tips are off.
void Options::mirrorText(TextBox &box, const QString &whenEmpty, bool keepsHelp)
{
    connect(&box, &TextBox::Change, this, [this, &box, whenEmpty, keepsHelp] {
        const bool shows = mForm.options.chkSMV(0).value() == 1;
        if (!shows)
            box.setToolTipText(keepsHelp ? whenEmpty : QString());
        else
            box.setToolTipText(box.text().isEmpty() && !keepsHelp ? whenEmpty : box.text());
    });
}

void Options::connectToolTips()
{
    mirrorText(mForm.outputs.txtANStartTag, {}, false);
    mirrorText(mForm.outputs.txtANStopTag, {}, false);
    mirrorText(mForm.places.txtSFDBFile, {}, false);
    mirrorText(mForm.places.txtSFDBDir, u"Database directory"_s, true);
    mirrorText(mForm.places.txtSFMNDir, u"File save directory"_s, true);
    mirrorText(mForm.areaCodes.txtSBSelAreaCodes,
               u"Find phone number for only select area codes. Enter area code list separated by commas"_s, false);
    connect(&mForm.criteria.mustContain.caseSensitive, &CheckBox::Click, this,
            [this] { showCaseTip(mForm.criteria.mustContain.caseSensitive, u"Must Contain"_s); });
    connect(&mForm.criteria.mustNotContain.caseSensitive, &CheckBox::Click, this,
            [this] { showCaseTip(mForm.criteria.mustNotContain.caseSensitive, u"Must Not Contain"_s); });
}

void Options::txtSBSelAreaCodes_Validate()
{
    guarded(mLog, {"frmSearch"_L1, "Sub txtSBSelAreaCodes_Validate"_L1}, [&] {
        mForm.areaCodes.txtSBSelAreaCodes.setText(
            cAreaCode::normalizedAreaCodes(mForm.areaCodes.txtSBSelAreaCodes.text()));
        save("txtSBSelAreaCodes"_L1, cUtility::Trim(mForm.areaCodes.txtSBSelAreaCodes.text()).toString());
    });
}

void Options::chkSavePages_Click()
{
    if (!mForm.mbFormReady)
        return;
    QLatin1StringView target = " "_L1;
    const bool on = mForm.outputs.chkSavePages.isOn();
    if (on && mForm.outputs.chkSaveToSS.value() == 1)
        target = " to SiteSummary "_L1;
    else if (on && mForm.outputs.chkSaveToFile.value() == 1)
        target = mForm.outputs.chkPutInOneFile.value() == 1 ? " to 1 file "_L1 : " to files "_L1;
    mStates.SetStateOfControls();
    mStatus.UpDateStatus("Save Pages"_L1 + target + (on ? onMark : offMark));
}

void Options::chkSavePhone_Click()
{
    if (!mForm.mbFormReady)
        return;
    const QString codes = mForm.areaCodes.txtSBSelAreaCodes.text();
    mStates.SetStateOfControls();
    mStatus.UpDateStatus("Save"_L1 + (codes.isEmpty() ? u" all "_s : u'[' + codes + u']') + "phone #s "_L1 +
                         (mForm.outputs.chkSavePhone.isOn() ? onMark : offMark));
}

void Options::chkSaveUrl_Click()
{
    if (!mForm.mbFormReady)
        return;
    const bool on = mForm.outputs.chkSaveUrl.isOn();
    if (on && mForm.saved.mbPassUrlsLoaded) {
        mForm.outputs.chkSaveUrl.setValue(0);
        mStatus.UpDateStatus(u"PassUrls%1 loaded"_s.arg(mForm.saved.cboANList.text()));
        return;
    }
    mStates.SetStateOfControls();
    mStatus.UpDateStatus("Save links"_L1 + (mForm.options.chkSMD(7).value() == 1 ? " if no data "_L1 : " "_L1) +
                         (on ? onMark : offMark));
}
