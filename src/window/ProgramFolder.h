// Where the program lives and where it keeps what belongs to the user.
#pragma once

#include <QString>

/// The executable's folder if it can be written to, else the user's data folder for trawlex; ends without separator.
[[nodiscard]] QString programFolder();
/// The user's data folder for trawlex, made for its user alone if it is missing: browser profiles and the like.
[[nodiscard]] QString dataFolder();
/// A window can be shown on this machine.
[[nodiscard]] bool hasDisplay();
