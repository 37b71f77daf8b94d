// Where a side window stood when it was closed, under its object name. Knows the settings store.
#pragma once

#include "app/Ports.h"

#include <QWidget>

namespace KeptPlace {
/// Puts the window where its frame stood last, whole on the screen of `screenOf`; the first time in its middle.
void restore(QWidget &window, const SettingsStore &settings, const QWidget &screenOf);
/// Keeps where it stands.
void store(const QWidget &window, SettingsStore &settings);
} // namespace KeptPlace
