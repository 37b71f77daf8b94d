// The database at the sizes that matter, each figure beside the one that is wanted. Storing a harvested page is
// measured against the same rows written by bare prepared statements, page by page in turn, in the same run, each in a
// database of its own. TMPDIR says on which disk; in a memory file system (TMPDIR=/dev/shm) only the work is left.
#include "StorePages.h"
#include "store/FixNull.h"
#include "store/TablePages.h"
#include "store/Transaction.h"
#include "util/Memory.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <thread>

using namespace Qt::StringLiterals;

namespace {
constexpr int million = 1'000'000;
using Clock = std::chrono::steady_clock;

template <class Work> double milliseconds(Work &&work)
{
    const auto start = Clock::now();
    work();
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

template <class Work> double processorMilliseconds(Work &&work)
{
    const std::clock_t start = std::clock();
    work();
    return 1000.0 * double(std::clock() - start) / CLOCKS_PER_SEC;
}

void row(const QString &what, const QString &wanted, const QString &now, bool met)
{
    std::printf("| %s | %s | %s | %s |\n", qUtf8Printable(what), qUtf8Printable(wanted), qUtf8Printable(now),
                wanted.isEmpty() ? ""
                : met            ? "met"
                                 : "not met");
    std::fflush(stdout);
}

QString number(double value, const char *unit)
{
    return QString::number(value, 'g', 3) + u' ' + QLatin1StringView(unit);
}

// A busy machine gives figures that nobody can compare.
void tellHowQuietTheMachineIs()
{
    std::array<double, 1> load{};
    if (getloadavg(load.data(), 1) == 1 && load[0] > 0.5)
        std::printf("The machine is not quiet: %.1f programs want its %u processors. Ratios and processor times hold, "
                    "other times are too long.\n\n",
                    load[0], std::thread::hardware_concurrency());
}

/// One page through the database object and one bare, in turn.
void storePages(int rows, const char *marksIndexes)
{
    constexpr int pages = 600;
    const bool indexed = *marksIndexes == '\0';
    const QString own = makeDatabase(u"own.mdb"_s, rows, 0);
    const QString bare = benchFile(u"bare.mdb"_s);
    QFile::remove(bare);
    QFile::copy(own, bare);
    const auto database = openDatabase(own);
    PageWriter writer(*database);
    BareDatabase mark(bare.toStdString());
    if (!indexed)
        mark.dropIndexes();
    const BarePage warm = barePage(0, rows);
    mark.store(warm);
    writer.store(Page(warm));
    std::vector<double> ownTimes;
    std::vector<double> bareTimes;
    for (int page = 1; page <= pages; ++page) {
        const BarePage bytes = barePage(page, rows);
        const Page text(bytes);
        const auto storeOwn = [&] { ownTimes.push_back(milliseconds([&] { writer.store(text); })); };
        const auto storeBare = [&] { bareTimes.push_back(milliseconds([&] { mark.store(bytes); })); };
        // Who goes first changes, so that neither always finds the disk busy with the other.
        if (page % 2 == 0)
            storeOwn();
        storeBare();
        if (page % 2 != 0)
            storeOwn();
    }
    const double ratio = median(ownTimes) / median(bareTimes);
    row(u"storing one page, %1 rows in each table, against bare statements%2"_s.arg(rows).arg(
            QLatin1StringView(marksIndexes)),
        indexed ? u"1.3"_s : QString(),
        u"%1 (%2 ms to %3 ms; worst %4 to %5)"_s.arg(ratio, 0, 'f', 2)
            .arg(median(ownTimes), 0, 'f', 3)
            .arg(median(bareTimes), 0, 'f', 3)
            .arg(worst(ownTimes), 0, 'f', 2)
            .arg(worst(bareTimes), 0, 'f', 2),
        ratio < 1.3);
}

void storeBesideAnotherWriter()
{
    constexpr int rows = 100'000;
    const auto database = openDatabase(makeDatabase(u"own.mdb"_s, rows, 0));
    PageWriter writer(*database);
    BareDatabase other(database->DatabasePath().toStdString());
    writer.store(Page(barePage(0, rows)));
    std::vector<double> times;
    for (int page = 1; page <= 100; ++page) {
        other.store(barePage(1000 + page, rows));
        const Page text(barePage(page, rows));
        times.push_back(milliseconds([&] { writer.store(text); }));
    }
    row(u"each page while another program writes to the same database, 100,000 rows"_s, u"5 ms"_s,
        number(median(times), "ms") + u" (worst of 100: "_s + number(worst(times), "ms") + u')', median(times) < 5);
}

/// The part of another process: opens the file, stores one page, and tells how long that took and what it has in
/// memory.
int storeFirstPage(const QString &path)
{
    const auto database = openDatabase(path);
    PageWriter writer(*database);
    const Page text(barePage(1, million));
    const double time = milliseconds([&] { writer.store(text); });
    std::printf("%f %lld", time, static_cast<long long>(residentKilobytes()));
    return 0;
}

void firstPageOfARun(const QString &path)
{
    {
        const auto database = openDatabase(path);
        const double once = processorMilliseconds([&] { PageWriter(*database).store(Page(barePage(0, million))); });
        row(u"the first page that a database of 1,000,000 rows ever gets (its index is made), processor time"_s, {},
            number(once, "ms"), true);
    }
    QProcess run;
    run.start(QFileInfo(u"/proc/self/exe"_s).symLinkTarget(), {u"--first-page"_s, path});
    if (!run.waitForFinished(-1) || run.exitCode() != 0)
        std::exit(1);
    const QList<QByteArray> told = run.readAllStandardOutput().split(' ');
    const double time = told.value(0).toDouble();
    const double megabytes = told.value(1).toDouble() / 1000;
    row(u"first page of a run at 1,000,000 rows in each table; all memory of the process"_s, u"50 ms, 80 MB"_s,
        number(time, "ms") + u", "_s + number(megabytes, "MB"), time < 50 && megabytes < 80);
}

void walk(cAdoMdb &database)
{
    qint64 characters = 0;
    const double time = processorMilliseconds([&] {
        Recordset rows = database.GetRecordset(u"SELECT Url FROM SiteSummary"_s);
        for (; !rows.Eof(); rows.MoveNext())
            characters += FixNull(rows.Fields()[0]).size();
    });
    if (characters < million)
        std::exit(1);
    row(u"walking 1,000,000 rows, processor time a row"_s, u"0.5 us"_s, number(time * 1000 / million, "us"),
        time * 1000 / million < 0.5);
}

void showGrid(cAdoMdb &database)
{
    const auto screen = [](const TablePages &pages, qint64 from) {
        qsizetype characters = 0;
        for (qint64 place = from; place < from + 40; ++place)
            for (int column = 0; column < static_cast<int>(pages.columns().size()); ++column)
                characters += pages.cell(place, column).size();
        return characters;
    };
    double first = milliseconds([&] { screen(TablePages(database, u"SiteSummary"_s), 0); });
    row(u"a grid's first 40 rows of 1,000,000"_s, u"100 ms"_s, number(first, "ms"), first < 100);
    const TablePages pages(database, u"SiteSummary"_s);
    row(u"how many rows there are"_s, {}, number(milliseconds([&] { static_cast<void>(pages.rowCount()); }), "ms"),
        true);
    row(u"its last 40 rows"_s, {}, number(milliseconds([&] { screen(pages, million - 40); }), "ms"), true);
    const auto shown = [&](const TablePages::Filter &filter, const TablePages::Sorting &sorting) {
        return number(milliseconds([&] {
                          const TablePages chosen(database, u"SiteSummary"_s, filter, sorting);
                          static_cast<void>(chosen.rowCount());
                          screen(chosen, 0);
                      }),
                      "ms");
    };
    row(u"filtered by a text that a tenth of them holds, all counted"_s, {}, shown({u"Url"_s, u"site77"_s}, {}), true);
    row(u"sorted by an address (has an index)"_s, {}, shown({}, {u"Url"_s, Qt::DescendingOrder}), true);
    row(u"sorted by a title (has none)"_s, {}, shown({}, {u"Title"_s}), true);
    QList<qint64> keys;
    for (qint64 key = 1; keys.size() < 10'000; key += 97)
        keys.append(key);
    const double removing = milliseconds([&] { static_cast<void>(removeRows(database, u"SiteSummary"_s, keys)); });
    row(u"removing 10,000 rows of it"_s, u"2000 ms"_s, number(removing, "ms"), removing < 2000);
}

void readTitlesBesidePages()
{
    const auto database = openDatabase(makeDatabase(u"wide.mdb"_s, 40, 1'000'000));
    const auto titles = [&](const QString &statement) {
        return processorMilliseconds([&] {
            Recordset rows = database->GetRecordset(statement);
            for (; !rows.Eof(); rows.MoveNext())
                static_cast<void>(FixNull(rows.Fields()["Title"_L1]));
        });
    };
    const double few = titles(u"SELECT Title FROM SiteSummary"_s);
    const double all = titles(u"SELECT * FROM SiteSummary"_s);
    row(u"40 titles beside pages of 1 MB, all columns chosen"_s, u"1 ms"_s,
        number(all, "ms") + u" ("_s + number(few, "ms") + u" where only the titles are)"_s, all < 1);
}

void openLargeFile()
{
    const QString path = makeDatabase(u"large.mdb"_s, 10'000, 100'000);
    const qint64 before = residentKilobytes();
    const double time = milliseconds([&] {
        const auto database = openDatabase(path);
        static_cast<void>(database->GetRecordset(u"SELECT * FROM SiteSummary"_s).Fields()["Url"_L1].Value());
    });
    row(u"opening a file of 1 GB, with the test of its tables and the first row"_s, {},
        number(time, "ms") + u", "_s + number(double(residentKilobytes() - before) / 1000, "MB"), true);
    QFile::remove(path);
}
} // namespace

int main(int count, char **arguments)
{
    keepFreedMemory(); // as the programs do
    if (count == 3)
        return storeFirstPage(QString::fromLocal8Bit(arguments[2]));
    tellHowQuietTheMachineIs();
    std::puts("| Work | wanted under | now | |\n|---|---|---|---|");
    storePages(1000, "");
    storePages(1000, " without indexes");
    storePages(million, "");
    storeBesideAnotherWriter();
    const QString path = makeDatabase(u"own.mdb"_s, million, 0);
    firstPageOfARun(path);
    const auto database = openDatabase(path);
    walk(*database);
    showGrid(*database);
    readTitlesBesidePages();
    openLargeFile();
}
