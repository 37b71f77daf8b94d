// Writes what is on show, or any table, to a file. A file that is there is never replaced unasked, and nothing half
// stands under a file's name. The user may cancel between rows.
#pragma once

#include "app/Context.h"
#include "app/LongWork.h"
#include "data/ExportKinds.h"
#include "driver/Navigation.h"
#include "store/DatabaseHolder.h"
#include "store/TablePages.h"

/// The rows that are wanted: a table's, or those in which a field holds the text. A number anywhere asks for what is
/// equal.
struct ExportSource
{
    QString table;
    QString field, text; ///< the text counts where there is a field
    TablePages::Place place = TablePages::Place::Anywhere;
};

class Exports
{
  public:
    /// `openAfter` is the switch "Open exported recordsets after export".
    Exports(const Context &context, const DataBoxes &data, const FilePlaces &places, const CheckBox &openAfter,
            DatabaseHolder &database, Navigation &navigation, LongWork &work)
        : mContext(context), mData(data), mPlaces(places), mOpenAfter(openAfter), mDatabase(database),
          mNavigation(navigation), mWork(work)
    {
    }

    /// Exports what is on show in the kind of that number, to the next vacant name in the folder of the database.
    void ExportRecordSet(int number);
    /// The same rows to a file of the caller's choice. True when the file is there, complete; the status tells.
    bool exportTable(const ExportSource &source, const ExportKind &kind, const QString &path);

    /// Writes all rows as a table in which addresses are links; with `open` the browser shows it.
    void CreateHtmlTable(Recordset &rows, const QString &path, bool open);
    /// Writes all rows: 0 saved as XML, 1 comma, 2 bare HTML cells, 3 tab, 4 saved. An empty path takes "Export" and
    /// the extension. A file that is there is asked about; after No the set is as it was, otherwise it is Nothing.
    void ExportRsToFile(Recordset &oAdoRec, int eExportType, const QString &sExportFilePath = {});

  private:
    [[nodiscard]] QString statement(const ExportSource &source, const ExportKind &kind) const;
    [[nodiscard]] QString write(Recordset &rows, DataFormat format, const QString &path, const QString &table);
    [[nodiscard]] bool mayReplace(const QString &path);

    Context mContext;
    const DataBoxes &mData;
    const FilePlaces &mPlaces;
    const CheckBox &mOpenAfter;
    DatabaseHolder &mDatabase;
    Navigation &mNavigation;
    LongWork &mWork;
};
