#include "OtherProcess.h"
#include "StoreFixture.h"
#include "store/Transaction.h"

#include <QCoreApplication>
#include <QThread>
#include <cstdio>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {
// Numbers go on where the file ends, so that each life of the writer adds to the lives before it.
int writePages(const QString &file)
{
    ListLog log;
    cAdoMdb database(log);
    database.setDatabasePath(file);
    declareSchema(database);
    if (!database.TestDatabase(true))
        return 1;
    const QString page(20'000, u'p');
    Recordset rows = database.GetRecordset(u"SELECT Index FROM SiteSummary"_s);
    for (qint64 number = rows.RecordCount() + 1;; ++number) {
        Transaction transaction(database);
        const QString text = QString::number(number);
        database.AddRecord({recordElement("Url"_L1, text), recordElement("FullPage"_L1, page)}, -1, u"SiteSummary"_s,
                           rowMarker);
        for (const char *user : {"a@", "b@", "c@"})
            database.AddRecord(
                {recordElement("SSIndex"_L1, text), recordElement("Address"_L1, QString::fromLatin1(user) + text)}, -1,
                u"EmailAddress"_s, rowMarker);
        if (!transaction.commit())
            return 1;
        std::printf("%lld\n", static_cast<long long>(number));
        std::fflush(stdout);
    }
}

int holdLock(const QString &file, const char *statement, unsigned long seconds = 0)
{
    sqlite3 *handle = nullptr;
    if (sqlite3_open(file.toUtf8().constData(), &handle) != SQLITE_OK ||
        sqlite3_exec(handle, statement, nullptr, nullptr, nullptr) != SQLITE_OK)
        return 1;
    std::puts("held");
    std::fflush(stdout);
    if (seconds > 0)
        QThread::sleep(seconds);
    else
        static_cast<void>(std::getchar());
    sqlite3_close(handle);
    return 0;
}
} // namespace

std::optional<int> runAsOtherProcess(const QStringList &arguments)
{
    const qsizetype part = arguments.indexOf(u"--part"_s);
    if (part < 0 || part + 2 >= arguments.size())
        return std::nullopt;
    const QString name = arguments[part + 1];
    const QString file = arguments[part + 2];
    if (name == "write-pages"_L1)
        return writePages(file);
    if (name == "hold-lock"_L1)
        return holdLock(file, "BEGIN IMMEDIATE");
    if (name == "hold-two-seconds"_L1)
        return holdLock(file, "BEGIN IMMEDIATE", 2);
    if (name == "hold-file"_L1)
        return holdLock(file, "PRAGMA locking_mode=EXCLUSIVE; PRAGMA journal_mode=DELETE; BEGIN EXCLUSIVE");
    return 2;
}

std::unique_ptr<QProcess> startOtherProcess(const QString &part, const QString &file)
{
    auto process = std::make_unique<QProcess>();
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process->start(QCoreApplication::applicationFilePath(), {u"--part"_s, part, file});
    process->waitForStarted();
    return process;
}
