// Writes the names in the database object's matrix to a text file. Knows store.
#pragma once

#include "app/Ports.h"
#include "store/cAdoMdb.h"

/// `eOutPutType`: 3 assignments, 4 names with the fields set in, 5 the same in words, 6 the file that
/// LoadTableFieldListFile reads. One empty table ends the file. A file that is there is asked about.
void PrintTablesAndFields(const cAdoMdb &database, UserDialogs &dialogs, const QString &sFileName, int eOutPutType,
                          bool bOverWriteExisting);
