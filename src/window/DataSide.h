// Everything around the database that a user looks at, takes out and brings in, wired together: the Data tab, the
// detached grid, exports, imports.
#pragma once

#include "app/frmSearch.h"
#include "data/DataWindow.h"
#include "data/RowCard.h"
#include "window/commands/DataCommands.h"
#include "window/commands/DataImport.h"
#include "window/commands/DataStatusMenu.h"

struct DataSide
{
    DataSide(const Context &context, frmSearch &form, DatabaseHolder &database, Navigation &navigation, LongWork &work,
             ClipboardText &clipboard, PopUpMenus &menus);

    frmfxg gridForm;
    DataView view;
    RowCard card;
    Exports exports;
    Imports imports;
    DataWindow window;
    DataCommands commands;
    DataStatusMenu statusMenu;
    DataImport import;

  private:
    void connectLabels(frmSearch &form);
};
