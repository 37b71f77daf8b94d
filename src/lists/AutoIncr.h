// Which number of the address in the box changes from one page of a series to the next: the nine positions of the menu,
// of which at most one is checked, and what follows from it. A series and a base exclude each other. Knows lists.
#pragma once

#include "lists/AutoText.h"

class AutoIncr : public QObject
{
    Q_OBJECT

  public:
    AutoIncr(const Context &context, frmSearch &form, const ManualDesk &desk, AutoText &texts)
        : mContext(context), mForm(form), mDesk(desk), mTexts(texts)
    {
    }

    /// Chooses a position, or gives up the one that is chosen.
    void SetAutoIncrPos(int position);
    /// The series in the box is among those that are remembered, from just this number on.
    [[nodiscard]] bool isRemembered() { return mTexts.isRemembered(mDesk.GetAutoIncrChecked()); }
    /// Makes as many positions available as the address has numbers. The chosen one, 0 where it is not among them.
    int SetupAutoIncrMenu();
    /// Takes over what is remembered of the address in the box.
    void ManageAutoText();
    /// Puts the address that was reached in the place of the older forms of its series.
    void MaintainAutoIncr();
    /// Takes the number of `url` for the start of the series, or tells why not.
    void mnuMNSetFirstAndLastFromUrl_Click(const QString &url);
    /// "Use Base (AutoText)": refused during a series.
    void mnuMNUseAutoBase_Click();
    /// Whether "Auto Navigate" can be used now: with a series, for sites, while the list on show is empty and nothing
    /// is collected.
    bool CheckMNAutoNav();
    /// The number box shows `value`: the address follows.
    void incMNAutoUrl_ValueChanged(const QString &value);
    /// Pages that are browsed by hand are collected into some list.
    [[nodiscard]] bool isCollecting() const;
    /// A run has come to that address and number: the boxes show them.
    void showReached(const QString &address, qint64 number);
    /// The address in the box is being written here, not by the user.
    [[nodiscard]] bool isWriting() const { return mWriting; }

  Q_SIGNALS:
    /// What is shown of the series has changed.
    void coloursAsked();
    /// With the base, collecting of mail addresses and numbers ends.
    void baseSwitchedOff();

  private:
    [[nodiscard]] MenuItem &positionItem(int position) const;
    [[nodiscard]] QString url() const { return mForm.series.cboMNAutoUrl.text(); }
    [[nodiscard]] QString startFrom(const QString &url);

    Context mContext;
    frmSearch &mForm;
    const ManualDesk &mDesk;
    AutoText &mTexts;
    bool mWriting = false;
};
