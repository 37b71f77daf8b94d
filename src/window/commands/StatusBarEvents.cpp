#include "window/commands/StatusBarEvents.h"

#include "window/commands/TabsInForce.h"

using namespace Qt::StringLiterals;

namespace {
/// A tab as the status bar knows it: where it is, what its tool tip says, how its double click is named.
struct TabRow
{
    QLatin1StringView caption; ///< of the innermost tab
    QLatin1StringView tip;
    QLatin1StringView unassigned; ///< empty where a double click does something
};

constexpr TabRow tabRows[] = {
    {"Auto"_L1, "Add select Url [ANSelectUrls]"_L1, {}},
    {"Manual"_L1, "Add select Url [MNSelectUrls]"_L1, {}},
    {"Blocking"_L1, "Settings/Blocking Not assigned"_L1, "Blocking"_L1},
    {"Directory"_L1, "Settings/Files/Files Not assigned"_L1, "Directory"_L1},
    {"Import"_L1, "Settings/Files/Import Not assigned"_L1, "Import"_L1},
    {"A-M"_L1, "Settings/Misc/A-M Not assigned"_L1, "A-M"_L1},
    {"Save"_L1, "Settings/Misc/Data Not assigned"_L1, "Save"_L1},
    {"View"_L1, "Settings/Misc/View Not assigned"_L1, "View"_L1},
    {"Sites"_L1, "Clear fields and add title and Url from web browser"_L1, {}},
    {"Data"_L1, "Data Not assigned"_L1, "DB"_L1},
};

const TabRow &tabInForce(const WindowFrame &frame)
{
    const QString innermost = TabsInForce::path(frame).constLast();
    return *std::find_if(std::begin(tabRows), std::end(tabRows),
                         [&](const TabRow &row) { return row.caption == innermost; });
}
} // namespace

StatusBarEvents::StatusBarEvents(const Context &context, frmSearch &form, PopUps &popUps)
    : mContext(context), mForm(form), mPopUps(popUps)
{
    const PictureBox &bar = mForm.frame.picStatus;
    connect(&bar, &PictureBox::mouseMoved, this, &StatusBarEvents::showTip);
    connect(&bar, &PictureBox::doubleClicked, this, &StatusBarEvents::doubleClick);
    connect(&bar, &PictureBox::mousePressed, this, [this](MouseButton button) {
        if (button == MouseButton::Right)
            openMenu();
    });
}

void StatusBarEvents::showTip()
{
    mContext.status.UpDateStatus({}, "Double Click "_L1 + tabInForce(mForm.frame).tip + " Right click for menu"_L1);
}

void StatusBarEvents::doubleClick()
{
    if (!mForm.browser.mbInitialized)
        return mContext.status.UpDateStatus(u"Not initialized"_s);
    const int tab = mForm.frame.sstSearch.tab();
    if (const QLatin1StringView name = tabInForce(mForm.frame).unassigned; !name.isEmpty())
        mContext.status.UpDateStatus(name + " double click, unassigned"_L1);
    else if (tab == Tab::Settings)
        Q_EMIT siteOfPageWanted();
    else
        Q_EMIT selectUrlWanted(tab == Tab::Auto ? u"ANSelectUrls"_s : u"MNSelectUrls"_s);
}

void StatusBarEvents::openMenu()
{
    Menus &menus = mForm.menus;
    const int tab = mForm.frame.sstSearch.tab();
    const bool onAuto = tab == Tab::Auto;
    if (onAuto || tab == Tab::Settings) {
        for (const auto item : {"mnuANStatusAutoSave"_L1, "mnuANStatusGetServer"_L1})
            menus.mnuPopUpANStatus.item(item).setEnabled(onAuto);
        if (!onAuto)
            menus.mnuPopUpANStatus.item("mnuANStatusReSet"_L1).setEnabled(false);
        return mPopUps.ShowPopUp(menus.mnuPopUpANStatus);
    }
    mPopUps.ShowPopUp(tab == Tab::Manual ? menus.mnuPopUpMNStatus : menus.mnuPopUpDBStatus);
}
