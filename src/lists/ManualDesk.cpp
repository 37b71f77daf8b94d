#include "lists/ManualDesk.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto positions = "mnuMNStatusAutoIncrPos"_L1;
constexpr int lastPosition = 9;
constexpr auto insertMark = "~ins~"_L1;
constexpr int listMode = 1;
constexpr int boxMode = 2;
} // namespace

ManualDesk::ManualDesk(frmSearch &form, StatusLine &status)
    : mForm(form), mStatus(status),
      mTakenAway{&form.series.cboMNAutoUrl,      &form.urlFilter.cboMNMCMNC,  &form.urlFilter.cboMNMCMNCFilter,
                 &form.manual.cboFilesSites,     &form.lists.cboMNList,       &form.manual.incMNTiming,
                 &form.series.incMNAutoUrl,      &form.series.incMNStep,      &form.manual.chkSMOpenDownloadedGraphics,
                 &form.manual.chkMNUseFotoBrwse, &form.manual.cmdMNStart,     &form.collect.lblAutoIncrPos,
                 &form.collect.lblAutoPgUrls,    &form.collect.lblAutoCollect}
{
}

QString ManualDesk::table(int index) const
{
    return "MNUrls"_L1 + listName(index);
}

QString ManualDesk::item() const
{
    return list().list(list().listIndex());
}

QString ManualDesk::GetListItemMN() const
{
    return list().list(std::max(list().listIndex(), 0));
}

QString ManualDesk::GetUseBaseUrl(int mode) const
{
    const QString base = mForm.series.cboMNAutoUrl.text();
    if (!usesBase())
        return mode == listMode ? GetListItemMN() : mode == boxMode ? base : QString();
    return withBase(base, GetListItemMN());
}

QString ManualDesk::withBase(const QString &base, const QString &item)
{
    return base.contains(insertMark) ? QString(base).replace(insertMark, item) : base + item;
}

int ManualDesk::GetAutoIncrChecked() const
{
    for (int position = 1; position <= lastPosition; ++position) {
        if (mForm.menus.mnuPopUpMNStatus.item(positions, position).isChecked())
            return position;
    }
    return 0;
}

bool ManualDesk::usesBase() const
{
    return mForm.menus.mnuPopUpMNStatus.item("mnuMNUseAutoBase"_L1).isChecked();
}

bool ManualDesk::usesSiteData() const
{
    return mForm.menus.mnuPopUpMN.item("mnuMNUseSiteData"_L1).isChecked();
}

bool ManualDesk::IsRunningListActiveMN() const
{
    return mForm.runs.mbMNRunning && mForm.manual.mintMNRunningList == index();
}

void ManualDesk::EnableDisableMN(bool enable) const
{
    for (Control *control : mTakenAway)
        control->setEnabled(enable);
}

void ManualDesk::ShowCountMN(int index, const QString &text) const
{
    const QString count = u"%1 loaded"_s.arg(list(index).listCount());
    mStatus.UpDateStatus(text.isEmpty() ? count : count + ". "_L1 + text);
}

void ManualDesk::ShowSelected() const
{
    const std::vector<bool> &selected = list().selection();
    const int count = list().selCount();
    const int all = list().listCount();
    if (count == 1) {
        const auto place = std::find(selected.begin(), selected.end(), true) - selected.begin() + 1;
        mStatus.UpDateStatus(u"%1 Sel. Item %2 Cnt %3"_s.arg(count).arg(place).arg(all));
    } else if (count > 1) {
        mStatus.UpDateStatus(u"%1 Sel Cnt %2"_s.arg(count).arg(all));
    }
}
