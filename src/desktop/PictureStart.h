// The start with a picture file on the command line: the picture browser is the whole program. No database is opened,
// no browser made, and another one may run beside it.
#pragma once

#include <QString>

/// Shows the pictures beside `picture` until the window is closed. The exit status.
[[nodiscard]] int runPictureBrowser(const QString &appName, const QString &picture);
