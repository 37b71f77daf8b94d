// What the commands of the Manual tab share: the list on show, the switches that its menus hold, the controls that a
// long command takes away meanwhile, and the words that tell of a list. Knows app.
#pragma once

#include "app/StatusLine.h"
#include "app/frmSearch.h"

class ManualDesk
{
  public:
    ManualDesk(frmSearch &form, StatusLine &status);

    /// The list on show, its number and its table of addresses.
    [[nodiscard]] ListBox &list() const { return mForm.lists.shown(); }
    [[nodiscard]] int index() const { return mForm.lists.cboMNList.listIndex(); }
    [[nodiscard]] QString listName() const { return mForm.lists.cboMNList.text(); }
    [[nodiscard]] QString table() const { return table(index()); }
    [[nodiscard]] QString table(int index) const;
    [[nodiscard]] ListBox &list(int index) const { return mForm.lists.lstMN(index); }
    [[nodiscard]] QString listName(int index) const { return mForm.lists.cboMNList.list(index); }
    /// The item at the index of the list on show; "" if there is none.
    [[nodiscard]] QString item() const;

    /// What a walk takes next: the item at the index, the first one where none is chosen; "" of an empty list.
    [[nodiscard]] QString GetListItemMN() const;
    /// The address that a command is about: of the list (mode 1) or of the address box (mode 2). With a base, the
    /// address in the box with the item put in where it says "~ins~", else behind it.
    [[nodiscard]] QString GetUseBaseUrl(int mode) const;
    /// `item` put into `base` like that; with the base "" the item alone.
    [[nodiscard]] static QString withBase(const QString &base, const QString &item);

    /// The position of the number that a series changes, 1 to 9; 0 while there is no series.
    [[nodiscard]] int GetAutoIncrChecked() const;
    /// Items are pieces of the address in the box, not whole addresses.
    [[nodiscard]] bool usesBase() const;
    /// Links are loaded by the record of the page's site.
    [[nodiscard]] bool usesSiteData() const;
    /// A run walks the list on show.
    [[nodiscard]] bool IsRunningListActiveMN() const;

    /// What must not be touched while a long command works.
    void EnableDisableMN(bool enable) const;
    /// Status "120 loaded", with a text "120 loaded. Selected".
    void ShowCountMN(int index, const QString &text = {}) const;
    void ShowCount(const QString &text = {}) const { ShowCountMN(index(), text); }
    /// Status on what is selected in the list on show; none where nothing is.
    void ShowSelected() const;

  private:
    frmSearch &mForm;
    StatusLine &mStatus;
    QList<Control *> mTakenAway;
};

/// Takes the controls away for as long as it lives.
class ManualLock
{
  public:
    explicit ManualLock(const ManualDesk &desk) : mDesk(desk) { mDesk.EnableDisableMN(false); }
    ~ManualLock() { mDesk.EnableDisableMN(true); }
    Q_DISABLE_COPY_MOVE(ManualLock)

  private:
    const ManualDesk &mDesk;
};
