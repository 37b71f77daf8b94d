// The one main window. It has no title bar: the tab strip moves it. It shows the controls of a frmSearch and turns what
// the user does into their events; what follows from them is not its business.
//
// `form` outlives the window.
#pragma once

#include "app/frmSearch.h"
#include "ui/binding/Binder.h"

#include <QWidget>
#include <memory>

namespace Ui {
class AutoTab;
class MainWindow;
class SettingsTab;
} // namespace Ui

class MainWindow : public QWidget
{
    Q_OBJECT

  public:
    explicit MainWindow(frmSearch &form);
    ~MainWindow() override;

    /// From here on the window closes when it is asked to; before, it only tells.
    void allowClose() { mMayClose = true; }
    /// The thin bar of the status bar: `done` of `total` is over; a total of 0 takes it away.
    void setProgress(int done, int total);
    void setKeptOnTop(bool onTop);
    [[nodiscard]] Binder &binder() { return mBinder; }

  Q_SIGNALS:
    /// The user or the desktop wants the window closed.
    void closeRequested();

  protected:
    void closeEvent(QCloseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

  private:
    void dressWidgets();
    void connectPages();
    void addKeys();
    void TurnOffTabStop();
    enum class Step { Next, Previous };
    void moveFocus(Step step);

    std::unique_ptr<Ui::MainWindow> mUi;
    std::unique_ptr<Ui::AutoTab> mAuto;
    std::unique_ptr<Ui::SettingsTab> mSettings;
    Binder mBinder;
    bool mMayClose = false;
};
