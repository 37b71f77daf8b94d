// The runs of trawlex-harvest: a file of its own, which the program loads when its arguments ask for work, since the
// browser engine and the other libraries that it brings take three times as long to load as all else that --help does.
#pragma once

#include "cli/Arguments.h"

/// Does what the arguments ask for and returns the program's exit status.
using HarvestWork = int(char *argv[], const Arguments &arguments);

/// The file, and the name under which it offers its HarvestWork.
inline constexpr const char *harvestFile = "trawlex-harvest.so";
inline constexpr const char *harvestName = "trawlexHarvest";

enum ExitStatus { Finished = 0, OtherEnd = 1, BadArguments = 2 };
