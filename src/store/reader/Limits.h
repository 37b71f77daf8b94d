// What the reader asks of the system: the one place here that is not portable.
#pragma once

#include <cstdio>

/// Bounds memory and processor time, and forbids writing files, so that a damaged file cannot eat the machine. Does
/// nothing where the system has no such bounds.
void limitThisProcess();

/// Standard output for the caller alone: what is printed from now on, as the library does over a file that it does not
/// understand, goes to standard error.
[[nodiscard]] std::FILE *takeStandardOutput();
