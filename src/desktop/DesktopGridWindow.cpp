#include "desktop/DesktopGridWindow.h"

#include "desktop/KeptPlace.h"
#include "window/WindowPlaces.h"

DesktopGridWindow::DesktopGridWindow(frmfxg &form, SettingsStore &settings, QWidget &main)
    : mForm(form), mSettings(settings), mMain(main)
{
    connect(&form, &frmfxg::shown, this, &DesktopGridWindow::show);
    connect(&form, &frmfxg::unloaded, this, &DesktopGridWindow::close);
}

void DesktopGridWindow::show()
{
    if (!mWindow) {
        mWindow = new GridWindow(mForm, &mMain);
        mWindow->setAttribute(Qt::WA_DeleteOnClose);
        mWindow->setWindowIcon(mMain.windowIcon());
        mWindow->resize(storedSize(mSettings, mWindow->objectName(), mWindow->size()));
        KeptPlace::restore(*mWindow, mSettings, mMain);
        // Closed by the program, it is no longer ours in that moment.
        connect(mWindow, &GridWindow::closing, this, [this, window = mWindow.data()] {
            KeptPlace::store(*window, mSettings);
            mForm.unload();
        });
    }
    mWindow->show();
    mWindow->raise();
}

void DesktopGridWindow::close()
{
    if (const QPointer<GridWindow> window = std::exchange(mWindow, nullptr))
        window->close();
}
