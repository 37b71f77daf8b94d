#include "desktop/KeptPlace.h"

#include "ui/windows/ScreenRoom.h"
#include "window/WindowPlaces.h"

#include <QScreen>

void KeptPlace::restore(QWidget &window, const SettingsStore &settings, const QWidget &screenOf)
{
    const QRect room = screenOf.screen()->availableGeometry();
    const QRect whole(window.pos(), window.size() + ScreenRoom::frameAround(window));
    ScreenRoom::place(window, AlignFF(settings, window.objectName(), whole, room).topLeft(), room);
}

void KeptPlace::store(const QWidget &window, SettingsStore &settings)
{
    SaveFF(settings, window.objectName(), QRect(window.pos(), window.size()));
}
