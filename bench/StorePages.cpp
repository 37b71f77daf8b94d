#include "StorePages.h"
#include "pages/Addresses.h"
#include "store/Schema.h"
#include "store/Transaction.h"
#include "store/rows/StoredDates.h"

#include <QFile>
#include <QTemporaryDir>
#include <algorithm>

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

QString serverOf(const QString &url)
{
    return cIEText::GetServerFromUrl(url, cIEText::hostOnly);
}
} // namespace

QString benchFile(const QString &name)
{
    static const QTemporaryDir folder;
    return folder.filePath(name);
}

QString makeDatabase(const QString &name, int rows, int pageLength)
{
    cAdoMdb database(errors);
    database.setDatabasePath(benchFile(name));
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

Page::Page(const BarePage &bare)
    : title(QString::fromStdString(bare.title)), url(QString::fromStdString(bare.url)),
      page(QString::fromStdString(bare.page))
{
    for (const std::string &address : bare.addresses)
        addresses.append(QString::fromStdString(address));
    for (const std::string &number : bare.numbers)
        numbers.append(QString::fromStdString(number));
}

PageWriter::PageWriter(cAdoMdb &database) : mDatabase(database), mIndex(serverOf) {}

void PageWriter::store(const Page &page)
{
    Transaction transaction(mDatabase);
    if (isNew(u"SELECT * FROM SiteSummary WHERE Url='"_s + page.url + u"'"_s))
        write(u"SiteSummary"_s, {recordElement("Title"_L1, page.title), recordElement("Url"_L1, page.url),
                                 recordElement("FullPage"_L1, page.page)});
    const QString forAddresses = summaryIndex(page.url);
    for (const QString &address : page.addresses) {
        if (isNew(u"SELECT Address FROM EmailAddress WHERE address='"_s + address + u"'"_s))
            write(u"EmailAddress"_s, {recordElement("SSIndex"_L1, forAddresses), recordElement("Address"_L1, address),
                                      recordElement("Url"_L1, page.url)});
    }
    const QString forNumbers = summaryIndex(page.url);
    for (const QString &number : page.numbers) {
        if (isNew(u"SELECT Number FROM PhoneNumber WHERE Number='"_s + number + u"'"_s))
            write(u"PhoneNumber"_s, {recordElement("SSIndex"_L1, forNumbers), recordElement("Number"_L1, number),
                                     recordElement("Type"_L1, u"Any"_s), recordElement("Url"_L1, page.url)});
    }
    if (isNew(u"SELECT Url FROM PassUrlsA WHERE Url='"_s + page.url + u"'"_s))
        write(u"PassUrlsA"_s, {recordElement("SSIndex"_L1, summaryIndex(page.url)),
                               recordElement("MaskName"_L1, mNames.find(mDatabase, u"PassUrlsA"_s, u"PassUrl-99"_s)),
                               recordElement("Url"_L1, page.url)});
    if (!transaction.commit())
        std::exit(1);
}

bool PageWriter::isNew(const QString &statement)
{
    return mDatabase.GetRecordset(statement).isEmpty();
}

void PageWriter::write(const QString &table, const QStringList &elements)
{
    if (!mDatabase.AddRecord(elements, -1, table, rowMarker))
        std::exit(1);
}

QString PageWriter::summaryIndex(const QString &url)
{
    return QString::number(mIndex.find(mDatabase, url, serverOf(url)));
}

double median(std::vector<double> values)
{
    std::nth_element(values.begin(), values.begin() + std::ptrdiff_t(values.size() / 2), values.end());
    return values[values.size() / 2];
}

double worst(const std::vector<double> &values)
{
    return *std::max_element(values.begin(), values.end());
}

qint64 residentKilobytes()
{
    QFile file(u"/proc/self/statm"_s);
    constexpr qint64 pageKilobytes = 4;
    return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1).toLongLong() * pageKilobytes : 0;
}
