// The switches on a browser's command line: our own, those of the user behind them, lists joined. For both engines.
#pragma once

#include <QStringList>

namespace BrowserSwitches {
/// The user's switches: those of the variable TRAWLEX_BROWSER_ARGS, then `commandLine` (each `--browser-arg`). In the
/// variable blanks part the switches; double quotes keep a value with blanks together.
[[nodiscard]] QStringList ofUser(const QStringList &commandLine);

/// `own` and behind it `later`. A switch whose value is a list ("--disable-features=A,B") stands once, where it stood
/// last, with the values of all of them, each value once; of any other switch the last one counts for the browser.
[[nodiscard]] QStringList joined(const QStringList &own, const QStringList &later);

/// Parts a text into switches at its blanks; double quotes keep blanks together and are taken off.
[[nodiscard]] QStringList split(const QString &text);
} // namespace BrowserSwitches
