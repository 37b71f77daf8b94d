#include "desktop/DesktopGridWindow.h"

#include "window/WindowPlaces.h"

#include <QScreen>

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
        const QString name = mWindow->objectName();
        mWindow->resize(storedSize(mSettings, name, mWindow->size()));
        mWindow->setGeometry(AlignFF(mSettings, name, mWindow->geometry(), mMain.screen()->availableGeometry()));
        connect(mWindow, &GridWindow::closing, this, [this, name] {
            SaveFF(mSettings, name, mWindow->geometry());
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
