#include "desktop/KeptPlace.h"

#include "window/WindowPlaces.h"

#include <QScreen>

void KeptPlace::restore(QWidget &window, const SettingsStore &settings, const QWidget &screenOf)
{
    const QRect screen = screenOf.screen()->availableGeometry();
    window.setGeometry(AlignFF(settings, window.objectName(), window.geometry(), screen));
}

void KeptPlace::store(const QWidget &window, SettingsStore &settings)
{
    SaveFF(settings, window.objectName(), window.geometry());
}
