#include "window/commands/SiteMenu.h"

#include "util/AddressList.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
constexpr std::array groups{"mnuSearchSitesA"_L1, "mnuSearchSitesB"_L1, "mnuSearchSitesC"_L1, "mnuSearchSitesD"_L1,
                            "mnuSearchSitesE"_L1};

QString memberName(QLatin1StringView array, int index)
{
    return u"%1(%2)"_s.arg(array).arg(index);
}

QString parentOf(int group)
{
    return memberName("mnuSearchSites"_L1, group);
}

/// The group that a record names; error 13 for what is no number, 9 for a number that no group has.
std::size_t groupNumber(const QString &stored)
{
    bool isNumber = false;
    const int group = stored.toInt(&isNumber);
    if (!isNumber)
        throw RuntimeError(ErrorNumber::TypeMismatch, u"Type mismatch"_s);
    if (group < 0 || group >= static_cast<int>(groups.size()))
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange, u"Subscript out of range"_s);
    return static_cast<std::size_t>(group);
}
} // namespace

SiteMenu::SiteMenu(const Context &context, frmSearch &form, SiteRecords &records, Navigation &navigation,
                   PopUps &popUps)
    : mContext(context), mForm(form), mRecords(records), mNavigation(navigation)
{
    for (Button *start : {&form.autoRun.cmdANStart, &form.manual.cmdMNStart}) {
        connect(start, &Button::mousePressed, this, [this, &popUps](MouseButton button) {
            if (button == MouseButton::Right)
                popUps.ShowPopUp(mForm.menus.mnuPopUpSearchSites);
        });
    }
    const Menu &menu = form.menus.mnuPopUpSearchSites;
    for (std::size_t group = 0; group < groups.size(); ++group) {
        const MenuItem &item = menu.item(memberName(groups[group], 0));
        connect(&item, &MenuItem::Click, this, [this, &item] { SSMenu(item); });
    }
}

void SiteMenu::LoadSearchEngineMenu()
{
    guarded(mContext.log, {module, "Sub LoadSearchEngineMenu"_L1}, [&] {
        const Menu &menu = mForm.menus.mnuPopUpSearchSites;
        for (std::size_t group = 0; group < groups.size(); ++group) {
            for (MenuItem *item : menu.children(parentOf(static_cast<int>(group))))
                item->setCaption({}); // of the database before
        }
        std::array<int, groups.size()> counters{};
        for (const QString &name : mForm.siteEditor.cboSD(1).items()) {
            const QString stored = firstOf(mRecords.GetSearchSiteData(name, SiteField::Group));
            if (name.isEmpty() || stored.isEmpty())
                continue;
            const std::size_t group = groupNumber(stored);
            setItem(static_cast<int>(group), counters[group], name);
            ++counters[group];
        }
    });
}

void SiteMenu::setItem(int group, int index, const QString &name)
{
    Menu &menu = mForm.menus.mnuPopUpSearchSites;
    const QLatin1StringView array = groups[static_cast<std::size_t>(group)];
    const auto standing = static_cast<int>(menu.children(parentOf(group)).size());
    if (index == standing && !mForm.mbFormReady) {
        const MenuItem &item = menu.add(memberName(array, index), parentOf(group), name);
        connect(&item, &MenuItem::Click, this, [this, &item] { SSMenu(item); });
    }
    menu.item(array, index).setCaption(name);
}

void SiteMenu::SSMenu(const MenuItem &item)
{
    guarded(mContext.log, {module, "Sub SSMenu"_L1}, [&] {
        if (!mForm.browser.mbInitialized)
            return mContext.status.UpDateStatus(u"Not initialized"_s);
        mNavigation.OpenSite(firstOf(mRecords.GetSearchSiteData(item.caption(), SiteField::Url)));
    });
}
