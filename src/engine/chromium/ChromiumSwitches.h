// The command line that the free-standing browser is started with.
#pragma once

#include <QStringList>

struct ChromiumStart
{
    QString profileFolder;
    QStringList userSwitches; ///< as BrowserSwitches::ofUser gives them
    bool headless = false;
    bool sandboxOff = false;
};

/// All arguments, in order: our own, the page to begin with, those of the user.
[[nodiscard]] QStringList chromiumArguments(const ChromiumStart &start);

/// What is added to the browser's environment, as "NAME=value".
[[nodiscard]] QStringList chromiumEnvironment();
