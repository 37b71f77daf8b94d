// What the benchmarks of the database share: databases of any size, the pages that go in, and their way through the
// database object, statement by statement as the writers take it.
#pragma once

#include "BarePages.h"
#include "store/MaskNames.h"
#include "store/SiteSummaryIndex.h"
#include "store/cAdoMdb.h"

#include <memory>

/// A folder that goes with the program. TMPDIR says on which disk.
[[nodiscard]] QString benchFile(const QString &name);

/// A new file of the system's schema with that many rows in the tables that a page writes to.
[[nodiscard]] QString makeDatabase(const QString &name, int rows, int pageLength);
/// Opens it as the programs do. An error ends the program, here and later.
[[nodiscard]] std::unique_ptr<cAdoMdb> openDatabase(const QString &path);

/// What the page `number` (from 0) brings to a database of that many rows in each table.
[[nodiscard]] BarePage barePage(int number, int rows);

/// The same page in the form in which the program has it.
struct Page
{
    explicit Page(const BarePage &bare);

    QString title;
    QString url;
    QString page;
    QStringList addresses;
    QStringList numbers;
};

class PageWriter
{
  public:
    explicit PageWriter(cAdoMdb &database);
    void store(const Page &page);

  private:
    bool isNew(const QString &statement);
    void write(const QString &table, const QStringList &elements);
    QString summaryIndex(const QString &url);

    cAdoMdb &mDatabase;
    SiteSummaryIndex mIndex;
    NewMaskNames mNames;
};

[[nodiscard]] double median(std::vector<double> values);
[[nodiscard]] double worst(const std::vector<double> &values);
/// What the program has in memory.
[[nodiscard]] qint64 residentKilobytes();
