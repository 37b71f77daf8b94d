// A writer that is killed at any moment: the file opens, and every page that it reported is there, whole.
#include "OtherProcess.h"
#include "StoreFixture.h"
#include "store/sqlite/Connection.h"

#include <QThread>
#include <random>

using namespace Qt::StringLiterals;

namespace {
constexpr int kills = 200;

// Runs the writer for some milliseconds behind its first page, kills it, and gives the last page that it reported.
qint64 lastReportedPage(const QString &file, unsigned milliseconds)
{
    auto writer = startOtherProcess(u"write-pages"_s, file);
    EXPECT_TRUE(writer->waitForReadyRead(20'000));
    QThread::msleep(milliseconds);
    writer->kill();
    writer->waitForFinished();
    const QByteArray output = writer->readAllStandardOutput();
    const QList<QByteArray> lines = output.left(output.lastIndexOf('\n')).split('\n');
    return lines.last().toLongLong();
}
} // namespace

TEST_F(StoreTest, AKilledWriterLosesNoPageThatItReported)
{
    created()->CloseConnection();
    const QString path = pathOf(u"Trawlex-0.mdb"_s);
    std::mt19937 random(std::random_device{}());
    for (int round = 0; round < kills; ++round) {
        const qint64 reported = lastReportedPage(path, static_cast<unsigned>(random() % 25));
        ASSERT_GT(reported, 0);
        auto database = declared(u"Trawlex-0.mdb"_s);
        ASSERT_TRUE(database->TestDatabase(true)) << mLog.text();
        const qint64 pages = count(*database, u"SELECT Index FROM SiteSummary"_s);
        ASSERT_GE(pages, reported) << "round " << round;
        ASSERT_EQ(count(*database, u"SELECT Index FROM EmailAddress"_s), pages * 3) << "half a page was kept";
        Recordset last =
            database->GetRecordset(u"SELECT Url,FullPage FROM SiteSummary WHERE Index="_s + QString::number(reported));
        ASSERT_FALSE(last.Eof());
        ASSERT_EQ(last.Fields()[0].Value(), QVariant(QString::number(reported)));
        ASSERT_EQ(last.Fields()[1].Value().toString().size(), 20'000);
    }
    auto database = declared(u"Trawlex-0.mdb"_s);
    ASSERT_TRUE(database->TestDatabase(true));
    EXPECT_EQ(database->connection()->administerTexts("PRAGMA integrity_check"), QStringList{u"ok"_s});
}
