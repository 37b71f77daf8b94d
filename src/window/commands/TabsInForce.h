// Where the user is: the captions of the tabs in force, from the outermost inwards.
#pragma once

#include "app/FormGroups.h"

#include <QStringList>

namespace TabsInForce {
/// On "Settings" three steps at most, elsewhere one.
[[nodiscard]] QStringList path(const WindowFrame &frame);
/// The path inside "Settings", whichever outer tab is in force.
[[nodiscard]] QStringList settingsPath(const WindowFrame &frame);
} // namespace TabsInForce
