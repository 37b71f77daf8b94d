// What the user has chosen to collect while browsing by hand, and into which lists: three menus of five lists, of which
// each has one checked at most, the state that follows from them, and the labels that show it. Knows lists.
#pragma once

#include "app/Context.h"
#include "app/Menus.h"
#include "harvest/CollectState.h"
#include "lists/ManualDesk.h"

class CollectChoice : public QObject
{
    Q_OBJECT

  public:
    CollectChoice(const Context &context, CollectLabels &labels, Menus &menus, const ManualLists &lists,
                  const SavedAddresses &saved, const OptionBoxes &options, const ManualDesk &desk);

    [[nodiscard]] int state() const { return mLabels.mlngAutoCollectState; }
    /// The number of the list that links, mail addresses and numbers go to; -1 for none. Likewise for the addresses of
    /// pages, into a manual list and into the Saved Urls.
    [[nodiscard]] int GetAutoCollectLinksChecked() const;
    [[nodiscard]] int GetAutoCollectPgUrlsCheckedMN() const;
    [[nodiscard]] int GetAutoCollectPgUrlsCheckedAN() const;
    /// Switches that list on, in the place of another one of its menu, or off where it is on.
    void SetAutoCollectLinks(int list);
    void SetAutoCollectPgUrlsMN(int list);
    void SetAutoCollectPgUrlsAN(int list);
    void SetAutoCollectState(CollectState::Kind kind, bool off);
    /// Collecting into the Saved Urls: with False it goes off and cannot be switched on.
    void DisableANAutoC(bool enable);
    /// Tells what is collected, and notes whether that goes into the list on show.
    void ShowAutoCollectState();

  Q_SIGNALS:
    /// What the colours of the Manual tab show has changed.
    void coloursAsked();

  private:
    struct Row;
    [[nodiscard]] Row links() const;
    [[nodiscard]] Row manualPages() const;
    [[nodiscard]] Row savedPages() const;
    void toggle(const Row &row, int list);
    void showPagesList();
    [[nodiscard]] CollectState::Targets targets() const;

    Context mContext;
    CollectLabels &mLabels;
    Menus &mMenus;
    const ManualLists &mLists;
    const SavedAddresses &mSaved;
    const OptionBoxes &mOptions;
    const ManualDesk &mDesk;
};
