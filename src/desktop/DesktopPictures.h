// The picture browser's window as the window program has it: made when it is wanted; it keeps its place.
#pragma once

#include "app/PictureScreen.h"
#include "app/Ports.h"
#include "ui/windows/PictureWindow.h"

#include <QPointer>

class DesktopPictures : public QObject, public PictureScreen
{
    Q_OBJECT

  public:
    explicit DesktopPictures(SettingsStore &settings) : mSettings(settings) {}
    ~DesktopPictures() override;
    /// The form whose pictures are shown; it outlives the windows.
    void set(frmFoto &form);
    void LoadPicture(const QString &path) override;

  Q_SIGNALS:
    void opened(QWidget *window);

  private:
    void show();
    void close();

    SettingsStore &mSettings;
    frmFoto *mForm = nullptr;
    QPointer<PictureWindow> mWindow;
};
