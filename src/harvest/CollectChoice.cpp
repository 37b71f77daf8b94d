#include "harvest/CollectChoice.h"

using namespace Qt::StringLiterals;
using CollectState::Kind;

namespace {
constexpr auto module = "frmSearch"_L1;
constexpr int listCount = 5;
} // namespace

/// A menu of five lists and the kind of change that it makes.
struct CollectChoice::Row
{
    Menu &menu;
    QLatin1StringView item;
    Kind kind;

    [[nodiscard]] MenuItem &of(int list) const { return menu.item(item, list); }
    [[nodiscard]] int checked() const
    {
        for (int list = 0; list < listCount; ++list) {
            if (of(list).isChecked())
                return list;
        }
        return -1;
    }
};

CollectChoice::CollectChoice(const Context &context, CollectLabels &labels, Menus &menus, const ManualLists &lists,
                             const SavedAddresses &saved, const OptionBoxes &options, const ManualDesk &desk)
    : mContext(context), mLabels(labels), mMenus(menus), mLists(lists), mSaved(saved), mOptions(options), mDesk(desk)
{
}

CollectChoice::Row CollectChoice::links() const
{
    return {mMenus.mnuPopUpMNStatus, "mnuMNStatusListCL"_L1, Kind::Links};
}

CollectChoice::Row CollectChoice::manualPages() const
{
    return {mMenus.mnuPopUpMNStatus, "mnuMNStatusListCP"_L1, Kind::ManualPages};
}

CollectChoice::Row CollectChoice::savedPages() const
{
    return {mMenus.mnuPopUpANStatus, "mnuANStatusACList"_L1, Kind::SavedPages};
}

int CollectChoice::GetAutoCollectLinksChecked() const
{
    return links().checked();
}

int CollectChoice::GetAutoCollectPgUrlsCheckedMN() const
{
    return manualPages().checked();
}

int CollectChoice::GetAutoCollectPgUrlsCheckedAN() const
{
    return savedPages().checked();
}

void CollectChoice::toggle(const Row &row, int list)
{
    const bool goesOff = row.of(list).isChecked();
    for (int i = 0; i < listCount; ++i)
        row.of(i).setChecked(i == list && !goesOff);
    SetAutoCollectState(row.kind, goesOff);
}

void CollectChoice::SetAutoCollectLinks(int list)
{
    guarded(mContext.log, {module, "Sub SetAutoCollectLinks"_L1}, [&] { toggle(links(), list); });
}

void CollectChoice::SetAutoCollectPgUrlsMN(int list)
{
    guarded(mContext.log, {module, "Sub SetAutoCollectPgUrlsMN"_L1}, [&] {
        toggle(manualPages(), list);
        showPagesList();
    });
}

void CollectChoice::SetAutoCollectPgUrlsAN(int list)
{
    guarded(mContext.log, {module, "Sub SetAutoCollectPgUrlsAN"_L1}, [&] {
        toggle(savedPages(), list);
        showPagesList();
    });
}

/// The list that the addresses of pages go to, in white on blue.
void CollectChoice::showPagesList()
{
    const int list = std::max(GetAutoCollectPgUrlsCheckedMN(), GetAutoCollectPgUrlsCheckedAN());
    Label &label = mLabels.lblAutoPgUrls;
    label.setCaption(list < 0 ? QString() : mLists.cboMNList.list(list));
    label.setBackColor(list < 0 ? Colours::ButtonFace : Colours::Blue);
    label.setForeColor(list < 0 ? Colours::WindowText : Colours::White);
}

void CollectChoice::SetAutoCollectState(Kind kind, bool off)
{
    mLabels.mlngAutoCollectState = CollectState::changed(state(), kind, off);
    Q_EMIT coloursAsked();
    ShowAutoCollectState();
}

void CollectChoice::DisableANAutoC(bool enable)
{
    if (const int list = GetAutoCollectPgUrlsCheckedAN(); !enable && list >= 0)
        SetAutoCollectPgUrlsAN(list);
    for (int list = 0; list < listCount; ++list)
        savedPages().of(list).setEnabled(enable);
}

CollectState::Targets CollectChoice::targets() const
{
    return {mLists.cboMNList.list(GetAutoCollectPgUrlsCheckedMN()), mLists.cboMNList.list(GetAutoCollectLinksChecked()),
            mSaved.cboANList.list(GetAutoCollectPgUrlsCheckedAN())};
}

void CollectChoice::ShowAutoCollectState()
{
    const CollectState::Targets lists = targets();
    mLabels.mbNavListCollecting =
        CollectState::isTarget(mLists.cboMNList.text(), lists) && mDesk.GetAutoIncrChecked() < 1;
    mContext.status.UpDateStatus(CollectState::text(state(), lists, mOptions.chkSMD(SMD::FaxOnly).isOn()));
}
