// Size and position of a window in the settings store, in twips (15 to a pixel).
#pragma once

#include "app/Ports.h"

/// The main window's name in the store.
inline constexpr QLatin1StringView mainWindowName{"frmSearch"};

/// Writes the window's place into the section of its name.
void SaveFF(SettingsStore &settings, const QString &name, const QRect &place);
/// The stored place: left and top, and the size of `window` as it is. What lies off the screen comes back to its edge;
/// without a stored place the window is centred.
[[nodiscard]] QRect AlignFF(const SettingsStore &settings, const QString &name, const QRect &window,
                            const QRect &screen);
/// The stored size; `byDefault` where none is stored.
[[nodiscard]] QSize storedSize(const SettingsStore &settings, const QString &name, QSize byDefault);
/// Whether a place is stored.
[[nodiscard]] bool hasStoredPlace(const SettingsStore &settings, const QString &name);
/// "Window Position": the window stands on top of all others, or not.
void saveOnTop(SettingsStore &settings, const QString &name, bool onTop);
