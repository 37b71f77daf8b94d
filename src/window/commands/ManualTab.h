// The events of the five lists of the Manual tab, of the box that chooses among them, and of the address box.
#pragma once

#include "lists/AutoIncr.h"
#include "lists/ManualFeed.h"
#include "lists/ManualTables.h"

class ManualTab : public QObject
{
    Q_OBJECT

  public:
    ManualTab(const Context &context, frmSearch &form, const ManualDesk &desk, ManualTables &tables, ManualFeed &feed,
              AutoText &texts, AutoIncr &series);

    /// Another list is on show.
    void cboMNList_Click();
    /// The next status on what is selected is left out: what a command told stands.
    void skipShowSelected() { mSkipShowSelected = true; }

  Q_SIGNALS:
    void menuWanted(Menu &menu);
    void openWanted(const QString &url);
    /// An address was chosen in the box: what its menu offers is to follow.
    void urlChosen();
    /// What shows the tables of the list on show is to follow.
    void listChosen();

  private:
    void connectLists();
    void connectUrlBox();
    void showOnly(int index);
    void lstMN_Click(ListBox &list);
    void lstMN_DblClick(const ListBox &list);
    void lstMN_MouseUp();
    void cboMNAutoUrl_Change();
    void cboMNAutoUrl_Click();
    void cboMNAutoUrl_Validate();
    void dropOnUrlBox(const QString &text);
    [[nodiscard]] bool isSilent() const { return !mForm.mbFormReady || mSeries.isWriting(); }
    void lblAutoIncrPos_MouseDown(MouseButton button);
    void togglePosition();
    void keepUrl();

    Context mContext;
    frmSearch &mForm;
    const ManualDesk &mDesk;
    ManualTables &mTables;
    ManualFeed &mFeed;
    AutoText &mTexts;
    AutoIncr &mSeries;
    bool mSkipShowSelected = false;
};
