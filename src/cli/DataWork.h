// Exports and imports from a terminal: no browser, no window, the statuses as everywhere.
#pragma once

#include "cli/DataArguments.h"
#include "window/Program.h"

/// Prints the statuses on standard error, how far a command is left out.
void printStatuses(Program &program);
/// Opens the database and does what is wanted. True only when all of it was done.
[[nodiscard]] bool runDataCommand(Program &program, const DataArguments &arguments);
