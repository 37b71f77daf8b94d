// What a program without a window has to say beside its results.
#pragma once

#include <QString>

/// Prints one line on standard error, control characters shown and not sent.
void printError(const QString &line);
