// The one main window. It has no title bar: the tab strip moves it, its edges change its size. On a low screen its tabs
// scroll and its groups fold; the row with Go and the status bar always stay in sight. It shows the controls of a
// frmSearch and turns what the user does into their events; what follows from them is not its business.
//
// `form` outlives the window.
#pragma once

#include "app/frmSearch.h"
#include "ui/binding/Binder.h"

#include <QWidget>
#include <memory>

namespace Ui {
class MainWindow;
}

class MainWindow : public QWidget
{
    Q_OBJECT

  public:
    explicit MainWindow(frmSearch &form);
    ~MainWindow() override;

    /// From here on the window closes when it is asked to; before, it only tells.
    void allowClose() { mMayClose = true; }
    /// As large as the tab "Auto" needs, as far as the screen has the room.
    void takeUsualSize();
    /// The groups that show their heading alone, by name.
    [[nodiscard]] QStringList foldedGroups() const;
    void setFoldedGroups(const QStringList &names);
    /// The thin bar of the status bar: `done` of `total` is over; a total of 0 takes it away.
    void setProgress(int done, int total);
    /// What a run has stored, at the right end of the status bar.
    void setTally(const QString &tally);
    void setKeptOnTop(bool onTop);
    [[nodiscard]] Binder &binder() { return mBinder; }

  Q_SIGNALS:
    /// The user or the desktop wants the window closed.
    void closeRequested();
    void foldingChanged();
    void helpRequested();
    /// The user wants the command that is under way to end.
    void cancelRequested();

  protected:
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

  private:
    void dressWidgets();
    void elongate(const frmSearch &form);
    void connectPages();
    void addKeys();
    void TurnOffTabStop();
    enum class Step { Next, Previous };
    void moveFocus(Step step);

    std::unique_ptr<Ui::MainWindow> mUi;
    Binder mBinder;
    bool mMayClose = false;
    bool mWasShown = false;
    QSize mUsualSize;
    bool mElongated;     ///< the address of a series is given more room
    int mElongation = 0; ///< by how much the window has grown for it
};
