// What nearly every operation needs beside the controls that it works on: where errors go, how the user is told and
// asked, who decides what may be clicked next, where options lie. Handed in by the wiring; holds nothing itself.
#pragma once

#include "app/Ports.h"
#include "app/StatusLine.h"
#include "app/Tips.h"
#include "util/Errors.h"

struct Context
{
    ErrorReceiver &log;
    StatusLine &status;
    ControlStates &states;
    UserDialogs &dialogs;
    SettingsStore &settings;
    const Tips &tips;
};
