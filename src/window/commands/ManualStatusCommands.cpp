#include "window/commands/ManualStatusCommands.h"

#include "app/SettingKeys.h"
#include "util/Text.h"
#include "window/commands/CommandRows.h"

using namespace Qt::StringLiterals;

namespace {
constexpr int listMode = 1;
constexpr int boxMode = 2;
} // namespace

ManualStatusCommands::ManualStatusCommands(const Context &context, frmSearch &form, const ManualDesk &desk,
                                           AutoText &texts, AutoIncr &series, const LongWork &work)
    : mContext(context), mForm(form), mDesk(desk), mTexts(texts), mSeries(series)
{
    using Self = ManualStatusCommands;
    static constexpr CommandRow<Self> rows[] = {
        {"mnuMNStatusMagnify"_L1, "Sub mnuMNStatusMagnify_Click"_L1, &Self::magnify},
        {"mnuMNStatusElongate"_L1, "Sub mnuMNStatusElongate_Click"_L1, &Self::mnuMNStatusElongate_Click},
        {"mnuMNStatusNavigateToAutoTextUrl"_L1, "Sub mnuMNStatusNavigateToAutoTextUrl_Click"_L1, &Self::navigateTo},
        {"mnuMNStatusAutoNavigate"_L1, "Sub mnuMNStatusAutoNavigate_Click"_L1, &Self::autoNavigate},
        {"mnuMNUseAutoBase"_L1, "Sub mnuMNUseAutoBase_Click"_L1, &Self::useBase},
        {"mnuMNStatusSaveAutoTextUrl"_L1, "Sub mnuMNStatusSaveAutoTextUrl_Click"_L1, &Self::saveAutoText},
        {"mnuMNStatusSaveUrlMNSelect"_L1, "Sub mnuMNStatusSaveUrlMNSelect_Click"_L1, &Self::saveSelectUrl},
        {"mnuMNStatusDeleteAutoTextUrl"_L1, "Sub mnuMNStatusDeleteAutoTextUrl_Click"_L1, &Self::deleteAutoText},
        {"mnuMNSetFirstFromTextBox"_L1, "Sub mnuMNSetFirstFromTextBox_Click"_L1, &Self::mnuMNSetFirstFromTextBox_Click},
    };
    connectCommands(*this, rows, form.menus.mnuPopUpMNStatus, context.log, work);
    for (int position = 1; position <= Series::MostPositions; ++position)
        connect(&form.menus.mnuPopUpMNStatus.item("mnuMNStatusAutoIncrPos"_L1, position), &MenuItem::Click, this,
                [this, position] { mSeries.SetAutoIncrPos(position); });
}

void ManualStatusCommands::magnifyActiveItem()
{
    const bool inSeries = mDesk.GetAutoIncrChecked() > 0;
    if (const QString text = inSeries ? url() : mDesk.GetUseBaseUrl(listMode); !text.isEmpty())
        Q_EMIT magnifyWanted(text);
}

void ManualStatusCommands::magnify()
{
    if (const QString text = mDesk.GetUseBaseUrl(boxMode); !text.isEmpty())
        Q_EMIT magnifyWanted(text);
}

/// The shadow beside the box is there while the box is long: what shows both makes the box as wide.
void ManualStatusCommands::mnuMNStatusElongate_Click()
{
    MenuItem &elongate = item("mnuMNStatusElongate"_L1);
    elongate.setChecked(!elongate.isChecked());
    mForm.series.picMNShadow.setVisible(elongate.isChecked());
    mContext.settings.SaveSetting(Sections::Main, Keys::Elongate, elongate.isChecked() ? u"1"_s : u"0"_s);
}

void ManualStatusCommands::navigateTo()
{
    Q_EMIT navigateWanted(boxMode);
    mContext.status.UpDateStatus(u"Complete"_s);
}

void ManualStatusCommands::autoNavigate()
{
    MenuItem &navigate = item("mnuMNStatusAutoNavigate"_L1);
    navigate.setChecked(!navigate.isChecked());
}

void ManualStatusCommands::saveAutoText()
{
    mTexts.AddAutoTextUrl(url(), mDesk.GetAutoIncrChecked());
}

void ManualStatusCommands::saveSelectUrl()
{
    if (!url().isEmpty())
        Q_EMIT selectUrlWanted(u"MNSelectUrls"_s, url());
}

void ManualStatusCommands::deleteAutoText()
{
    if (!url().isEmpty())
        mTexts.RemoveAutoTextUrl({});
}

void ManualStatusCommands::mnuMNSetFirstFromTextBox_Click()
{
    mSeries.mnuMNSetFirstAndLastFromUrl_Click(cUtility::Trim(url()).toString());
}
