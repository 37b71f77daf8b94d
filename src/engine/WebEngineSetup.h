// What the built-in browser needs before the application object exists. Knows no page.
#pragma once

#include <QStringList>

/// What prepareWebEngine() has decided, so that the program can say so in its log.
struct WebEnginePreparation
{
    QStringList switches;    ///< the browser's command line, in order
    bool sandboxOff = false; ///< the browser runs without its sandbox, as root or by the user's wish
};

/// Sets attributes and environment for the built-in browser. Call once, before the application object is made (a second
/// call joins its switches to those of the first). `userSwitches`: as BrowserSwitches::ofUser gives them.
WebEnginePreparation prepareWebEngine(const QStringList &userSwitches);
