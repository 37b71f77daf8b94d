// The pop-up menus of the main window. Knows controls.
#pragma once

#include "controls/Menu.h"

struct Menus
{
    explicit Menus(QObject *form);
    Menu mnuPopUpANStatus, mnuPopUpMN, mnuPopUpMNStatus, mnuPopUpANMCMNC, mnuPopUpPassUrls, mnuPopUpSearchSites;
    Menu mnuPopUpDB, mnuPopUpDBStatus;
};
