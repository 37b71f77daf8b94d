// The small windows as the window program has them: over the main window, each one once; magnifier and about window
// keep their places.
#pragma once

#include "app/Ports.h"
#include "app/SideWindows.h"
#include "ui/windows/AboutWindow.h"
#include "ui/windows/DirectoryWindow.h"
#include "ui/windows/MagnifyWindow.h"

#include <QPointer>

class DesktopSideWindows : public SideWindows
{
  public:
    DesktopSideWindows(SettingsStore &settings, Desktop &desktop) : mSettings(settings), mDesktop(desktop) {}
    /// The window that they stand over; without one (null) none is shown.
    void set(QWidget *main) { mMain = main; }

    void magnify(const QString &text) override;
    void showAbout() override;
    void showHelp() override;
    bool chooseDirectory(const QString &directory, std::function<void(const QString &directory)> chosen) override;

    /// The first page of the manual beside the program, where it was installed or built; "" if there is none.
    [[nodiscard]] static QString manual();

  private:
    void placeMagnifier();

    SettingsStore &mSettings;
    Desktop &mDesktop;
    QPointer<QWidget> mMain;
    QPointer<MagnifyWindow> frmMagnify;
    QPointer<AboutWindow> frmAbout;
    QPointer<DirectoryWindow> mobjDirSel;
};
