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
        connect(mWindow, &GridWindow::closing, this, [this] {
            KeptPlace::store(*mWindow, mSettings);
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
