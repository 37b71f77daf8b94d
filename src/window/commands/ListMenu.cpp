#include "window/commands/ListMenu.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto removeItem = "mnuANMCMNCRemove"_L1;
constexpr auto clearItem = "mnuANMCMNCClear"_L1;
} // namespace

ListMenu::ListMenu(const Context &context, Menu &menu, PopUps &popUps) : mContext(context), mMenu(menu), mPopUps(popUps)
{
    connect(&menu, &Menu::aboutToShow, this, &ListMenu::prepare);
    connect(&menu.item(removeItem), &MenuItem::Click, this, [this] { run(mServed.at(mnListPopUpContext).remove); });
    connect(&menu.item(clearItem), &MenuItem::Click, this, [this] { run(mServed.at(mnListPopUpContext).clear); });
}

void ListMenu::serve(const Commands &commands)
{
    const std::size_t number = mServed.size();
    mServed.push_back(commands);
    const ListBox &list = commands.list;
    connect(&list, &ListBox::mousePressed, this, [this, number](MouseButton button) {
        if (button != MouseButton::Right)
            return;
        mnListPopUpContext = number;
        mPopUps.ShowPopUp(mMenu);
    });
    connect(&list, &ListBox::keyPressed, this, [this, number](EditKey key) {
        const Commands &served = mServed[number];
        if (key == EditKey::Insert)
            run(served.add);
        else if (enabledFor(served.list.listCount(), served.list.selCount()).remove)
            run(served.remove);
    });
    connect(&list, &ListBox::textDropped, this, commands.drop);
}

ListMenu::Enabled ListMenu::enabledFor(int items, int selected)
{
    return {items > 0 && selected > 0, items > 0};
}

void ListMenu::prepare()
{
    const ListBox &list = mServed.at(mnListPopUpContext).list;
    const Enabled enabled = enabledFor(list.listCount(), list.selCount());
    mMenu.item(removeItem).setEnabled(enabled.remove);
    mMenu.item(clearItem).setEnabled(enabled.clear);
}

void ListMenu::run(const std::function<void()> &command)
{
    command();
    mContext.states.SetStateOfControls();
}
