#include "desktop/DesktopPictures.h"

#include "desktop/KeptPlace.h"

DesktopPictures::~DesktopPictures()
{
    delete mWindow;
}

void DesktopPictures::set(frmFoto &form)
{
    mForm = &form;
    connect(&form, &frmFoto::shown, this, &DesktopPictures::show);
    connect(&form, &frmFoto::unloaded, this, &DesktopPictures::close);
}

void DesktopPictures::LoadPicture(const QString &path)
{
    if (mWindow)
        mWindow->LoadPicture(path);
}

void DesktopPictures::show()
{
    if (!mWindow) {
        mWindow = new PictureWindow(*mForm);
        mWindow->setAttribute(Qt::WA_DeleteOnClose);
        KeptPlace::restore(*mWindow, mSettings, *mWindow);
        // Closed by the program, it is no longer ours in that moment.
        connect(mWindow, &PictureWindow::closing, this, [this, window = mWindow.data()] {
            KeptPlace::store(*window, mSettings);
            mForm->unload();
        });
        Q_EMIT opened(mWindow);
    }
    // It takes the size of its picture before it comes up: a window that is resized while its frame is being drawn
    // loses its place.
    const auto comeUp = [window = mWindow.data()] {
        window->show();
        window->raise();
    };
    QMetaObject::invokeMethod(mWindow, comeUp, Qt::QueuedConnection);
}

void DesktopPictures::close()
{
    if (const QPointer<PictureWindow> window = std::exchange(mWindow, nullptr))
        window->close();
}
