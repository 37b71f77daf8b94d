// What the command line does with the manual list on show, beside a run or alone.
#pragma once

#include "cli/Arguments.h"
#include "window/Program.h"

/// A series that comes back from the last session gives way to the list, address or position of the command line.
void giveUpStoredSeries(Program &program, const Arguments &arguments);
/// Fills and keeps the list as the commands of its menu do, in this order: file, database, saving. False at the first
/// one that could not be done as told.
[[nodiscard]] bool prepareList(Program &program, const Arguments &arguments);
/// The items, each on a line of its own.
[[nodiscard]] QByteArray listText(const ListBox &list);
