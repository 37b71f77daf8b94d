// Everything around the database that a user looks at, takes out and brings in, wired together: the Data tab, the
// detached grid, exports, imports.
#pragma once

#include "app/FormLock.h"
#include "data/DataWindow.h"
#include "data/RowCard.h"
#include "window/commands/DataCommands.h"
#include "window/commands/DataImport.h"
#include "window/commands/DataStatusMenu.h"

#include <optional>

struct DataSide
{
    DataSide(const Context &context, frmSearch &form, DatabaseHolder &database, Navigation &navigation, LongWork &work,
             ClipboardText &clipboard, PopUpMenus &menus);
    /// The database belongs to an import.
    [[nodiscard]] bool isImporting() const { return mLock.has_value(); }

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
    void connectImport(frmSearch &form);
    void connectLabels(frmSearch &form);

    std::optional<FormLock> mLock;
};
