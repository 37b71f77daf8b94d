// The database. Storing one harvested page is measured against the same rows written by bare prepared statements: page
// by page in turn, in the same run, each in a database of its own, with a thousand rows in each table and with a
// million. The other figures: opening a file of 1 GB, the first look for a summary row, counting and walking a million
// rows.
#include "BarePages.h"
#include "pages/Addresses.h"
#include "store/FixNull.h"
#include "store/MaskNames.h"
#include "store/Schema.h"
#include "store/SiteSummaryIndex.h"
#include "store/Transaction.h"
#include "store/cAdoMdb.h"
#include "store/rows/StoredDates.h"
#include "util/Memory.h"

#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>

using namespace Qt::StringLiterals;

namespace {
class StandardError : public ErrorReceiver
{
  public:
    void ErrorLogger(qint64 number, const QString &description, const QString &, const QString &location) override
    {
        std::fprintf(stderr, "bench: %lld %s (%s)\n", static_cast<long long>(number), qUtf8Printable(description),
                     qUtf8Printable(location));
        std::exit(1);
    }
};

StandardError errors;

QTemporaryDir &folder()
{
    static QTemporaryDir made;
    return made;
}

QString serverOf(const QString &url)
{
    return cIEText::GetServerFromUrl(url, cIEText::hostOnly);
}

/// A new file of the system's schema with that many rows in the tables that a page writes to.
QString makeDatabase(const QString &name, int rows, int pageLength)
{
    cAdoMdb database(errors);
    database.setDatabasePath(folder().filePath(name));
    declareSchema(database);
    static_cast<void>(database.CreateDatabase(true));
    database.CloseConnection();
    BareDatabase(database.DatabasePath().toStdString()).fill(rows, pageLength);
    return database.DatabasePath();
}

std::unique_ptr<cAdoMdb> openDatabase(const QString &path)
{
    auto database = std::make_unique<cAdoMdb>(errors);
    database->setDatabasePath(path);
    declareSchema(*database);
    if (!database->TestDatabase(true))
        std::exit(1);
    return database;
}

/// What the page `number` (from 0) brings to a database of that many rows in each table.
BarePage barePage(int number, int rows)
{
    const std::string text = std::to_string(number);
    BarePage page;
    page.title = "A page of the harvest " + text;
    page.url = "http://www.harvest" + text + ".example/contact/index" + text + ".html";
    page.page.reserve(100'000);
    while (page.page.size() < 100'000)
        page.page +=
            "<p class=\"entry\">Some text of an ordinary page, \xC3\xA4 bit of it with umlauts. " + text + "</p>\n";
    page.page.resize(100'000, ' ');
    for (std::size_t place = 0; place < page.addresses.size(); ++place)
        page.addresses[place] = "person" + std::to_string(place) + "@harvest" + text + ".example";
    for (std::size_t place = 0; place < page.numbers.size(); ++place)
        page.numbers[place] = "(0" + std::to_string(place) + "0) 555-" + text;
    page.mask = "PassUrl-" + std::to_string(100 + rows + number);
    page.date = StoredDates::today().toStdString();
    return page;
}

/// The same page in the form in which the program has it.
struct Page
{
    explicit Page(const BarePage &bare)
        : title(QString::fromStdString(bare.title)), url(QString::fromStdString(bare.url)),
          page(QString::fromStdString(bare.page))
    {
        for (const std::string &address : bare.addresses)
            addresses.append(QString::fromStdString(address));
        for (const std::string &number : bare.numbers)
            numbers.append(QString::fromStdString(number));
    }

    QString title;
    QString url;
    QString page;
    QStringList addresses;
    QStringList numbers;
};

/// Stores pages through the database object, statement by statement as the writers do.
class PageWriter
{
  public:
    explicit PageWriter(cAdoMdb &database) : mDatabase(database) {}

    void store(const Page &page)
    {
        Transaction transaction(mDatabase);
        if (isNew(u"SELECT * FROM SiteSummary WHERE Url='"_s + page.url + u"'"_s))
            write(u"SiteSummary"_s, {recordElement("Title"_L1, page.title), recordElement("Url"_L1, page.url),
                                     recordElement("FullPage"_L1, page.page)});
        const QString forAddresses = summaryIndex(page.url);
        for (const QString &address : page.addresses) {
            if (isNew(u"SELECT Address FROM EmailAddress WHERE address='"_s + address + u"'"_s))
                write(u"EmailAddress"_s, {recordElement("SSIndex"_L1, forAddresses),
                                          recordElement("Address"_L1, address), recordElement("Url"_L1, page.url)});
        }
        const QString forNumbers = summaryIndex(page.url);
        for (const QString &number : page.numbers) {
            if (isNew(u"SELECT Number FROM PhoneNumber WHERE Number='"_s + number + u"'"_s))
                write(u"PhoneNumber"_s, {recordElement("SSIndex"_L1, forNumbers), recordElement("Number"_L1, number),
                                         recordElement("Type"_L1, u"Any"_s), recordElement("Url"_L1, page.url)});
        }
        if (isNew(u"SELECT Url FROM PassUrlsA WHERE Url='"_s + page.url + u"'"_s))
            write(u"PassUrlsA"_s,
                  {recordElement("SSIndex"_L1, summaryIndex(page.url)),
                   recordElement("MaskName"_L1, mNames.find(mDatabase, u"PassUrlsA"_s, u"PassUrl-99"_s)),
                   recordElement("Url"_L1, page.url)});
        if (!transaction.commit())
            std::exit(1);
    }

  private:
    bool isNew(const QString &statement) { return mDatabase.GetRecordset(statement).isEmpty(); }

    void write(const QString &table, const QStringList &elements)
    {
        if (!mDatabase.AddRecord(elements, -1, table, rowMarker))
            std::exit(1);
    }

    QString summaryIndex(const QString &url) { return QString::number(mIndex.find(mDatabase, url, serverOf(url))); }

    cAdoMdb &mDatabase;
    SiteSummaryIndex mIndex{serverOf};
    NewMaskNames mNames;
};

using Clock = std::chrono::steady_clock;

template <class Work> double microseconds(Work &&work)
{
    const auto start = Clock::now();
    work();
    return std::chrono::duration<double, std::micro>(Clock::now() - start).count();
}

double median(std::vector<double> values)
{
    std::nth_element(values.begin(), values.begin() + std::ptrdiff_t(values.size() / 2), values.end());
    return values[values.size() / 2];
}

/// One page through the database object and one bare, in turn. The figure of a run is the ratio of the medians.
void storePage(benchmark::State &state)
{
    const int rows = static_cast<int>(state.range(0));
    const QString own = makeDatabase(u"own.mdb"_s, rows, 0);
    const QString bare = folder().filePath(u"bare.mdb"_s);
    QFile::remove(bare);
    QFile::copy(own, bare);
    const auto database = openDatabase(own);
    PageWriter writer(*database);
    BareDatabase mark(bare.toStdString());
    int number = 0;
    const BarePage warm = barePage(number, rows);
    mark.store(warm);
    writer.store(Page(warm));
    std::vector<double> ownTimes;
    std::vector<double> bareTimes;
    for (auto _ : state) {
        const BarePage page = barePage(++number, rows);
        const Page text(page);
        const auto storeOwn = [&] { ownTimes.push_back(microseconds([&] { writer.store(text); })); };
        const auto storeBare = [&] { bareTimes.push_back(microseconds([&] { mark.store(page); })); };
        // Who goes first changes, so that neither always finds the disk busy with the other.
        if (number % 2 == 0) {
            storeOwn();
            storeBare();
        } else {
            storeBare();
            storeOwn();
        }
        state.SetIterationTime(ownTimes.back() / 1e6);
    }
    state.counters["own_us"] = median(ownTimes);
    state.counters["bare_us"] = median(bareTimes);
    state.counters["ratio"] = median(ownTimes) / median(bareTimes);
}

qint64 residentKilobytes()
{
    QFile file(u"/proc/self/statm"_s);
    constexpr qint64 pageKilobytes = 4;
    return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1).toLongLong() * pageKilobytes : 0;
}

/// Opening a file of 1 GB, with its test and the first row of its largest table.
void openLargeFile(benchmark::State &state)
{
    const QString path = makeDatabase(u"large.mdb"_s, 10'000, 100'000);
    const qint64 before = residentKilobytes();
    for (auto _ : state) {
        const auto database = openDatabase(path);
        const Recordset rows = database->GetRecordset(u"SELECT * FROM SiteSummary"_s);
        benchmark::DoNotOptimize(rows.Fields()["Url"_L1].Value());
    }
    state.counters["file_MB"] = static_cast<double>(QFile(path).size()) / 1e6;
    state.counters["memory_KB"] = static_cast<double>(residentKilobytes() - before);
}

/// The first look for a summary row, which reads all addresses, and the memory that it takes for good.
void firstSummaryLook(benchmark::State &state)
{
    const QString path = makeDatabase(u"own.mdb"_s, static_cast<int>(state.range(0)), 0);
    const auto database = openDatabase(path);
    const qint64 before = residentKilobytes();
    qint64 after = before;
    for (auto _ : state) {
        SiteSummaryIndex index(serverOf);
        benchmark::DoNotOptimize(index.find(*database, u"http://none.example/"_s, u"none.example"_s));
        after = residentKilobytes();
    }
    state.counters["memory_KB"] = static_cast<double>(after - before);
}

void countRows(benchmark::State &state)
{
    const auto database = openDatabase(makeDatabase(u"own.mdb"_s, static_cast<int>(state.range(0)), 0));
    for (auto _ : state)
        benchmark::DoNotOptimize(database->GetRecordset(u"SELECT * FROM EmailAddress"_s).RecordCount());
}

void walkRows(benchmark::State &state)
{
    const auto database = openDatabase(makeDatabase(u"own.mdb"_s, static_cast<int>(state.range(0)), 0));
    for (auto _ : state) {
        Recordset rows = database->GetRecordset(u"SELECT Url FROM SiteSummary"_s);
        for (; !rows.Eof(); rows.MoveNext())
            benchmark::DoNotOptimize(FixNull(rows.Fields()[0]));
    }
}

BENCHMARK(storePage)->Arg(1'000)->Arg(1'000'000)->Iterations(600)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(openLargeFile)->Unit(benchmark::kMillisecond);
BENCHMARK(firstSummaryLook)->Arg(1'000)->Arg(1'000'000)->Iterations(3)->Unit(benchmark::kMillisecond);
BENCHMARK(countRows)->Arg(1'000'000)->Iterations(3)->Unit(benchmark::kMillisecond);
BENCHMARK(walkRows)->Arg(1'000'000)->Iterations(1)->Unit(benchmark::kMillisecond);
} // namespace

int main(int argc, char *argv[])
{
    keepFreedMemory(); // as the programs do
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
}
