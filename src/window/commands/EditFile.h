// A text handed to the user's editor. Knows app.
#pragma once

#include "app/Ports.h"

/// Writes `text` to a file in the current folder, in the place of the one before, and opens it with the program
/// `editor`, or where there is no such file with the desktop's own. Error 75 where it cannot be written.
void WriteEditFile(const QString &text, const QString &editor, Desktop &desktop);
