// Keeps a process that reads a damaged file from eating the machine. The one place here that is not portable.
#pragma once

/// Bounds memory and processor time, and forbids writing files. Does nothing where the system has no such bounds.
void limitThisProcess();
