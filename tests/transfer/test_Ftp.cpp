#include "FtpServer.h"
#include "TransferFixture.h"

using namespace Qt::StringLiterals;

namespace {
class Ftp : public TransferTest
{
  protected:
    void SetUp() override { ASSERT_TRUE(QDir(store.path()).mkdir(u"pics"_s)); }
    [[nodiscard]] QString stored(const QString &name) const { return store.filePath(name); }

    QTemporaryDir store; ///< what the server serves
    FtpServer ftp{store.path()};
};

TEST_F(Ftp, AFileArrivesByteForByteOnBothPaths)
{
    const QByteArray bytes = allBytes(200'000);
    writeFile(stored(u"pics/p.jpg"_s), bytes);
    EXPECT_EQ(bytesOf(byFirst(ftp.address(u"/pics/p.jpg"_s), u"a.jpg"_s).file), bytes);
    EXPECT_EQ(bytesOf(bySecond(ftp.address(u"/pics/p.jpg"_s), u"b.jpg"_s).file), bytes);
    EXPECT_TRUE(log.entries.isEmpty());
}

TEST_F(Ftp, NamesMayHoldBlanksQuotesAndOtherScripts)
{
    const QString name = u"my \"\u00E4\u4E2D\" 1.jpg"_s;
    writeFile(stored(name), "picture");
    EXPECT_EQ(bytesOf(byFirst(ftp.address(u'/' + name), name).file), "picture");
    EXPECT_EQ(names(), QStringList{name});
}

TEST_F(Ftp, AFileThatIsNotThereLeavesNone)
{
    EXPECT_NE(byFirst(ftp.address(u"/gone.jpg"_s), u"a.jpg"_s).refusal, u""_s);
    EXPECT_NE(bySecond(ftp.address(u"/gone.jpg"_s), u"a.jpg"_s).refusal, u""_s);
    EXPECT_TRUE(names().isEmpty());
    EXPECT_EQ(log.locations(), QStringList{u"Function DownLoad"_s});
}

TEST_F(Ftp, AnEmptyFileIsOneOnTheSecondPathAlone)
{
    writeFile(stored(u"none.jpg"_s), "");
    EXPECT_EQ(byFirst(ftp.address(u"/none.jpg"_s), u"a.jpg"_s).file, u""_s);
    EXPECT_EQ(bySecond(ftp.address(u"/none.jpg"_s), u"b.jpg"_s).file, at(u"b.jpg"_s));
    EXPECT_EQ(names(), QStringList{u"b.jpg"_s});
}

TEST_F(Ftp, NoFileOfALongSeriesHasToWait)
{
    writeFile(stored(u"none.jpg"_s), "");
    writeFile(stored(u"p.jpg"_s), "picture");
    for (int number = 0; number < 100; ++number) {
        const QString name = number % 2 == 0 ? u"/none.jpg"_s : u"/p.jpg"_s;
        const Download download = bySecond(ftp.address(name), u"%1.jpg"_s.arg(number));
        ASSERT_EQ(download.refusal, u""_s) << number;
        ASSERT_LT(download.seconds, 2) << number;
    }
}

TEST_F(Ftp, ATransferThatIsBrokenOffLeavesNone)
{
    writeFile(stored(u"broken.bin"_s), allBytes(500'000));
    EXPECT_NE(byFirst(ftp.address(u"/broken.bin"_s), u"a.jpg"_s).refusal, u""_s);
    EXPECT_NE(bySecond(ftp.address(u"/broken.bin"_s), u"a.jpg"_s).refusal, u""_s);
    EXPECT_TRUE(names().isEmpty());
}

TEST_F(Ftp, ADownloadTellsItsStates)
{
    writeFile(stored(u"p.jpg"_s), "picture");
    QList<int> states;
    QObject::connect(&first, &cInetWS::InetStatus, &first, [&](int state) { states += state; });
    static_cast<void>(byFirst(ftp.address(u"/p.jpg"_s), u"a.jpg"_s));
    EXPECT_EQ(states.value(0), int(InetState::Connecting));
    for (const InetState state : {InetState::Connected, InetState::Requesting, InetState::ReceivingResponse})
        EXPECT_TRUE(states.contains(int(state))) << int(state);
    EXPECT_EQ(states.last(), int(InetState::ResponseCompleted));
}

TEST_F(Ftp, SendFileViaFTPStoresAText)
{
    writeFile(at(u"list.txt"_s), "one\ntwo\n");
    EXPECT_TRUE(second.SendFileViaFTP(ftp.server(), u"user"_s, u"secret"_s, at(u"list.txt"_s), u"sent \u00E4.txt"_s));
    EXPECT_EQ(bytesOf(stored(u"sent \u00E4.txt"_s)), "one\ntwo\n");
    EXPECT_TRUE(second.SendFileViaFTP(ftp.server(), u"user"_s, u"secret"_s, at(u"list.txt"_s), u"pics/sent.txt"_s));
    EXPECT_EQ(bytesOf(stored(u"pics/sent.txt"_s)), "one\ntwo\n");
    EXPECT_TRUE(log.entries.isEmpty());
}

TEST_F(Ftp, SendFileViaFTPGivesFalseWhereTheServerRefuses)
{
    writeFile(at(u"list.txt"_s), "one\n");
    EXPECT_FALSE(second.SendFileViaFTP(ftp.server(), u"user"_s, u"wrong"_s, at(u"list.txt"_s), u"a.txt"_s));
    EXPECT_FALSE(second.SendFileViaFTP(ftp.server(), u"anonymous"_s, u"me"_s, at(u"list.txt"_s), u"a.txt"_s));
    EXPECT_FALSE(second.SendFileViaFTP(u"127.0.0.1:1"_s, u"user"_s, u"secret"_s, at(u"list.txt"_s), u"a.txt"_s));
    EXPECT_FALSE(QFile::exists(stored(u"a.txt"_s)));
    EXPECT_TRUE(log.entries.isEmpty());
}

TEST_F(Ftp, SendFileViaFTPReportsAFileThatCannotBeRead)
{
    EXPECT_FALSE(second.SendFileViaFTP(ftp.server(), u"user"_s, u"secret"_s, at(u"gone.txt"_s), u"a.txt"_s));
    ASSERT_EQ(log.entries.size(), 1);
    EXPECT_EQ(log.entries[0].module, u"cInternet"_s);
    EXPECT_EQ(log.entries[0].location, u"Function DownLoad"_s);
}

TEST_F(TransferTest, SendFileViaFTPWithAnyEmptyArgumentGivesFalseWithoutTouchingTheNetwork)
{
    writeFile(at(u"list.txt"_s), "one\n");
    const QStringList full{u"127.0.0.1:%1"_s.arg(server.port()), u"user"_s, u"secret"_s, at(u"list.txt"_s), u"a.txt"_s};
    for (qsizetype empty = 0; empty < full.size(); ++empty) {
        QStringList given = full;
        given[empty].clear();
        EXPECT_FALSE(second.SendFileViaFTP(given[0], given[1], given[2], given[3], given[4])) << empty;
    }
    waitForEvents(50);
    EXPECT_EQ(server.connections, 0);
    EXPECT_TRUE(log.entries.isEmpty());
}
} // namespace
