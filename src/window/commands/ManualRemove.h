// The commands that reduce the manual list on show: repeats, servers, protocols, sides of items, items by a text.
#pragma once

#include "controls/cLstBx.h"
#include "window/commands/ManualWork.h"

class ManualRemove : public QObject
{
    Q_OBJECT

  public:
    ManualRemove(const Context &context, const Menu &menu, const ManualDesk &desk, const ManualWork &work);

  private:
    [[nodiscard]] ListBox &list() const { return mDesk.list(); }
    void repeats();
    void reduceToServer();
    void uniqueServers();
    void RemoveProtocol();
    void RemoveLeftSideAt() { truncate(cLstBx::Cut::LeftSide); }
    void RemoveRightSideAt() { truncate(cLstBx::Cut::RightSide); }
    void itemsContaining() { MNExtendedRemove(cLstBx::Remove::Containing); }
    void itemsNotContaining() { MNExtendedRemove(cLstBx::Remove::NotContaining); }
    void truncate(cLstBx::Cut cut);
    void MNExtendedRemove(cLstBx::Remove which);
    [[nodiscard]] QString selectedItem() const;

    /// How the list takes what the items have become: also where nothing is left of them; without blank ones.
    struct Refill
    {
        bool evenEmpty, noBlanks;
    };
    template <class Change> void eachItem(const QString &text, Refill refill, Change change);
    template <class Look, class Finish> void overItems(const QString &text, Look look, Finish finish);

    Context mContext;
    const ManualDesk &mDesk;
    const ManualWork &mWork;
};
