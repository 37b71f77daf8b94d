// The commands of the Manual tab's status bar that are about the address box and its series.
#pragma once

#include "app/LongWork.h"
#include "lists/AutoIncr.h"

class ManualStatusCommands : public QObject
{
    Q_OBJECT

  public:
    ManualStatusCommands(const Context &context, frmSearch &form, const ManualDesk &desk, AutoText &texts,
                         AutoIncr &series, const LongWork &work);

    /// The address box as wide as usual, or grown out to the left.
    void mnuMNStatusElongate_Click();
    void mnuMNSetFirstFromTextBox_Click();
    /// The address of the series, or without one the item that the tab is at.
    void magnifyActiveItem();

  Q_SIGNALS:
    void magnifyWanted(const QString &text);
    void navigateWanted(int mode);
    void selectUrlWanted(const QString &table, const QString &url);

  private:
    void magnify();
    void navigateTo();
    void autoNavigate();
    void useBase() { mSeries.mnuMNUseAutoBase_Click(); }
    void saveAutoText();
    void saveSelectUrl();
    void deleteAutoText();
    [[nodiscard]] QString url() const { return mForm.series.cboMNAutoUrl.text(); }
    [[nodiscard]] MenuItem &item(QLatin1StringView name) const { return mForm.menus.mnuPopUpMNStatus.item(name); }

    Context mContext;
    frmSearch &mForm;
    const ManualDesk &mDesk;
    AutoText &mTexts;
    AutoIncr &mSeries;
};
