// The menu that the lists of criteria and of blocked texts share, and the keys that do the same.
#pragma once

#include "app/Context.h"
#include "controls/ListControls.h"
#include "window/commands/PopUps.h"

#include <functional>
#include <vector>

class ListMenu : public QObject
{
    Q_OBJECT

  public:
    ListMenu(const Context &context, Menu &menu, PopUps &popUps);

    /// What is done to a list.
    struct Commands
    {
        ListBox &list;
        std::function<void()> add, remove, clear;
        std::function<void(const QString &text)> drop;
    };
    /// A list from now on opens the menu with the right button; Delete does what "Remove" does, Insert adds.
    void serve(const Commands &commands);

    /// What may be done, from how many items a list has and how many of them are selected.
    struct Enabled
    {
        bool remove, clear;
    };
    [[nodiscard]] static Enabled enabledFor(int items, int selected);

  private:
    void prepare();
    void run(const std::function<void()> &command);

    Context mContext;
    Menu &mMenu;
    PopUps &mPopUps;
    std::vector<Commands> mServed;
    std::size_t mnListPopUpContext = 0; ///< the list that the menu was opened on
};
