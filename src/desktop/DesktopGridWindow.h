// The detached grid as the window program has it: made when it is wanted, over the main window; it keeps its place.
#pragma once

#include "app/Ports.h"
#include "ui/windows/GridWindow.h"

class DesktopGridWindow : public QObject
{
    Q_OBJECT

  public:
    /// All outlive it.
    DesktopGridWindow(frmfxg &form, SettingsStore &settings, QWidget &main);

  private:
    void show();
    void close();

    frmfxg &mForm;
    SettingsStore &mSettings;
    QWidget &mMain;
    QPointer<GridWindow> mWindow;
};
