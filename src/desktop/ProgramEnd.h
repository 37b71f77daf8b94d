// The end that comes from outside: the system's signals and the end of the desktop's session.
#pragma once

#include "app/StopSignals.h"
#include "window/LifeCycle.h"

/// Either is the program's normal end: nothing is asked any more, and an open box is no reason to stay.
void connectEnd(LifeCycle &lifeCycle, const StopSignals &stopSignals);
