#include "window/options/Options.h"

#include "app/SettingKeys.h"
#include "pages/PhoneFinder.h"
#include "store/Schema.h"
#include "util/Errors.h"
#include "util/Text.h"

#include <QDir>
#include <map>

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
constexpr Place loading{module, "Sub GetSettings"_L1};
} // namespace

Options::Options(const Context &context, frmSearch &form, QString programFolder)
    : mContext(context), mForm(form), mProgramFolder(std::move(programFolder))
{
    for (const OptionRow &row : optionRows()) {
        if (!row.caption.isEmpty())
            mForm.control(row.control)->setCaption(row.caption);
        connectStoring(row);
    }
    connect(&mForm.areaCodes.txtSBSelAreaCodes, &TextBox::Validate, this, &Options::txtSBSelAreaCodes_Validate);
    begin();
}

/// Loading a value must not store it again; the switch of the window's place is set by the program itself until the
/// window is shown.
bool Options::isReady(const Control &control) const
{
    return &control == &mForm.options.chkSMV(SMV::OrientAtStart) ? mForm.mbMainShown : mForm.mbFormReady;
}

void Options::begin()
{
    const QString base = baseFolder();
    mForm.places.txtSFDBDir.setText(base);
    mForm.places.txtSFMNDir.setText(base);
    for (const OptionRow &row : optionRows()) {
        if (row.loaded == OptionRow::Loaded::WithSettings && !row.fits)
            mForm.control(row.control)->restore(row.byDefault);
    }
}

void Options::connectStoring(const OptionRow &row)
{
    const Control *control = mForm.control(row.control);
    connect(control, &Control::altered, this, [this, &row, control] {
        if (!isReady(*control))
            return;
        mKnown.insert(&row);
        if (row.savedAtChange && control->hasValue())
            mContext.settings.SaveSetting(Sections::Main, row.key, control->stored());
    });
}

void Options::load(const OptionRow &row)
{
    Control &control = *mForm.control(row.control);
    try {
        control.restore(mContext.settings.GetSetting(Sections::Main, row.key, row.byDefault));
    } catch (const RuntimeError &error) {
        if (!row.fits || error.number() != ErrorNumber::InvalidPropertyValue)
            throw;
    }
    mKnown.insert(&row);
    if (row.clicks)
        control.repeatEvent();
}

void Options::load(const Control &control)
{
    const auto rows = optionRows();
    const auto row = std::find_if(rows.rbegin(), rows.rend(),
                                  [&](const OptionRow &candidate) { return candidate.control == control.name(); });
    if (row != rows.rend())
        guarded(mContext.log, {module, "Sub LoadDBData"_L1}, [&] { load(*row); });
}

void Options::GetSettings()
{
    guarded(mContext.log, loading, [&] {
        mForm.places.txtSFEditor.setText(
            mContext.settings.GetSetting(Sections::Main, Keys::Editor, QDir::currentPath() + "/editor.exe"_L1));
    });
    bool goesOn = true;
    for (const OptionRow &row : optionRows()) {
        if (goesOn && row.loaded == OptionRow::Loaded::WithSettings)
            goesOn = guarded(mContext.log, loading, [&] { load(row); });
        if (row.control == lastBeforeDirectories)
            guarded(mContext.log, loading, [&] { loadDirectories(); });
    }
}

/// A stored folder, or the program's own, which is then stored, where that is empty or does not exist.
QString Options::directory(QLatin1StringView key, const QString &byDefault)
{
    QString base = baseFolder();
    QString folder = mContext.settings.GetSetting(Sections::Main, key, byDefault.isEmpty() ? base : byDefault);
    if (folder.endsWith(u'/') && QDir(folder).exists())
        return folder;
    mContext.settings.SaveSetting(Sections::Main, key, base);
    return base;
}

QString Options::baseFolder() const
{
    return mProgramFolder.endsWith(u'/') ? mProgramFolder : mProgramFolder + u'/';
}

void Options::loadDirectories()
{
    mForm.places.txtSFDBDir.setText(directory(Keys::DatabaseDir, {}));
    mForm.places.txtSFMNDir.setText(directory(Keys::FileSaveDir, mForm.places.txtSFDBDir.text()));
    mForm.places.txtSFDBFile.setText(
        mContext.settings.GetSetting(Sections::StartUp, Keys::DatabaseName, firstDatabaseName));
}

void Options::saveAtExit()
{
    std::map<int, const OptionRow *> places;
    for (const OptionRow &row : optionRows()) {
        if (row.exitOrder > 0 && mKnown.contains(&row))
            places[row.exitOrder] = &row;
    }
    for (const auto &[place, row] : places)
        mContext.settings.SaveSetting(Sections::Main, row->key, mForm.control(row->control)->stored());
}

void Options::txtSBSelAreaCodes_Validate()
{
    guarded(mContext.log, {module, "Sub txtSBSelAreaCodes_Validate"_L1}, [&] {
        TextBox &box = mForm.areaCodes.txtSBSelAreaCodes;
        box.setText(cAreaCode::normalizedAreaCodes(box.text()));
        mContext.settings.SaveSetting(Sections::Main, Keys::AreaCodes, cUtility::Trim(box.text()).toString());
    });
}
