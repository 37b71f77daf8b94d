#include "TransferFixture.h"

#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {
class Downloads : public TransferTest
{
};

TEST_F(Downloads, AFileArrivesByteForByteOnBothPaths)
{
    const QByteArray bytes = allBytes(300'000);
    server.route("/p.jpg", okReply(bytes));
    const Download one = byFirst(server.address(u"/p.jpg"_s), u"one.jpg"_s);
    const Download two = bySecond(server.address(u"/p.jpg"_s), u"two.jpg"_s);
    EXPECT_EQ(bytesOf(at(u"one.jpg"_s)), bytes);
    EXPECT_EQ(bytesOf(at(u"two.jpg"_s)), bytes);
    EXPECT_EQ(one.file, at(u"one.jpg"_s));
    EXPECT_EQ(two.file, at(u"two.jpg"_s));
    EXPECT_EQ(one.size, 300'000);
    EXPECT_GT(one.seconds, 0);
    EXPECT_EQ(one.content + one.refusal + two.content + two.refusal, u""_s);
    EXPECT_EQ(names(), (QStringList{u"one.jpg"_s, u"two.jpg"_s}));
    EXPECT_TRUE(log.entries.isEmpty());
}

TEST_F(Downloads, OnlyTheUserMayReadTheFile)
{
    server.route("/p.jpg", okReply("picture"));
    static_cast<void>(byFirst(server.address(u"/p.jpg"_s), u"p.jpg"_s));
    EXPECT_EQ(QFile::permissions(at(u"p.jpg"_s)) & ~(QFile::ReadUser | QFile::WriteUser),
              QFile::ReadOwner | QFile::WriteOwner);
}

TEST_F(Downloads, AMinimumOf0AdmitsEveryDownloadAndAnEmptyOneOnTheSecondPathAlone)
{
    server.route("/one.jpg", okReply("1"));
    server.route("/none.jpg", okReply(""));
    EXPECT_EQ(byFirst(server.address(u"/one.jpg"_s), u"a.jpg"_s).file, at(u"a.jpg"_s));
    EXPECT_EQ(bySecond(server.address(u"/one.jpg"_s), u"b.jpg"_s).file, at(u"b.jpg"_s));
    EXPECT_EQ(bySecond(server.address(u"/none.jpg"_s), u"c.jpg"_s).file, at(u"c.jpg"_s));
    EXPECT_EQ(bytesOf(at(u"c.jpg"_s)), "");
    EXPECT_TRUE(log.entries.isEmpty());

    EXPECT_EQ(byFirst(server.address(u"/none.jpg"_s), u"d.jpg"_s).file, u""_s);
    EXPECT_FALSE(QFile::exists(at(u"d.jpg"_s)));
    ASSERT_EQ(log.locations(), QStringList{u"Function DownLoad"_s});
    EXPECT_EQ(log.entries[0].number, ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(log.entries[0].module, u"cInetWS"_s);
}

TEST_F(Downloads, TheFirstPathAsksForOneByteMoreThanTheSecond)
{
    server.route("/ten.jpg", okReply("0123456789"));
    const QString address = server.address(u"/ten.jpg"_s);
    EXPECT_EQ(byFirst(address, u"a.jpg"_s, 9).file, at(u"a.jpg"_s));
    EXPECT_EQ(byFirst(address, u"b.jpg"_s, 10).refusal, u"Size < 11"_s);
    EXPECT_EQ(bySecond(address, u"c.jpg"_s, 10).file, at(u"c.jpg"_s));
    EXPECT_EQ(bySecond(address, u"d.jpg"_s, 11).refusal, u"Size < 11"_s);
    EXPECT_EQ(names(), (QStringList{u"a.jpg"_s, u"c.jpg"_s}));
    EXPECT_TRUE(log.entries.isEmpty()) << "too small is no error";
}

TEST_F(Downloads, AServersErrorPageShorterThanTheMinimumWritesNoFile)
{
    server.route("/gone.jpg", okReply("Gone", {}, "410 Gone"));
    EXPECT_EQ(byFirst(server.address(u"/gone.jpg"_s), u"a.jpg"_s, 100).file, u""_s);
    EXPECT_EQ(bySecond(server.address(u"/gone.jpg"_s), u"a.jpg"_s, 100).file, u""_s);
    EXPECT_TRUE(names().isEmpty());
}

TEST_F(Downloads, AServersErrorPageOfSomeLengthIsContent)
{
    const QByteArray page(200, 'e');
    for (const char *status : {"403 Forbidden", "404 Not Found", "500 Internal Server Error", "503 Busy"}) {
        server.route("/x.jpg", okReply(page, {}, status));
        const Download download = byFirst(server.address(u"/x.jpg"_s), u"x.jpg"_s, 100);
        EXPECT_EQ(bytesOf(download.file), page) << status;
    }
}

TEST_F(Downloads, WithAnEmptyTargetBothGiveTheContentBack)
{
    server.route("/t.txt", okReply("small \xE9 \x80"));
    const QString expected = u"small \u00E9 \u20AC"_s;
    EXPECT_EQ(first.DownLoad(server.address(u"/t.txt"_s), {}, 5).content, expected);
    EXPECT_EQ(second.APIDownLoad(server.address(u"/t.txt"_s), {}, 5).content, expected);
    EXPECT_EQ(first.DownLoad(server.address(u"/t.txt"_s), {}, 9).content, u""_s);
    EXPECT_EQ(second.APIDownLoad(server.address(u"/t.txt"_s), {}, 10).content, u""_s);
    EXPECT_TRUE(names().isEmpty());
}

TEST_F(Downloads, ATextIsNeverKeptInMemoryWithoutBounds)
{
    server.route("/long.txt", okReply(QByteArray(int(Body::LargestText) + 1, 'x')));
    EXPECT_EQ(first.DownLoad(server.address(u"/long.txt"_s), {}, 0).content, u""_s);
    ASSERT_EQ(log.entries.size(), 1);
    EXPECT_EQ(log.entries[0].number, ErrorNumber::OutOfMemory);
}

TEST_F(Downloads, TheCallerStaysLiveDuringASlowAnswer)
{
    RawReply slow = okReply(allBytes(2'000));
    slow.piece = 100;
    slow.pause = 10;
    server.route("/slow.jpg", slow);
    int ticks = 0;
    QTimer ticking;
    QObject::connect(&ticking, &QTimer::timeout, &ticking, [&] { ++ticks; });
    ticking.start(5);
    EXPECT_EQ(bytesOf(byFirst(server.address(u"/slow.jpg"_s), u"slow.jpg"_s).file), allBytes(2'000));
    EXPECT_GT(ticks, 10);
}

struct BadAnswer
{
    const char *tag;
    QByteArray bytes;
};

class BadAnswers : public TransferTest, public testing::WithParamInterface<BadAnswer>
{
};

TEST_P(BadAnswers, LeaveNothingInTheFolder)
{
    server.route("/bad.jpg", {.bytes = GetParam().bytes, .closes = true});
    const Download one = byFirst(server.address(u"/bad.jpg"_s), u"a.jpg"_s);
    EXPECT_EQ(one.file, u""_s);
    EXPECT_NE(one.refusal, u""_s);
    EXPECT_EQ(log.locations(), QStringList{u"Function DownLoad"_s});

    const Download two = bySecond(server.address(u"/bad.jpg"_s), u"b.jpg"_s);
    EXPECT_EQ(two.file, u""_s);
    EXPECT_NE(two.refusal, u""_s);
    EXPECT_EQ(log.entries.size(), 1) << "the second path reports no failed transfer";
    EXPECT_TRUE(names().isEmpty());
}

const BadAnswer badAnswers[] = {
    {"broken_off", "HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\n0123456789"},
    {"broken_off_in_the_head", "HTTP/1.1 200 OK\r\nContent-Le"},
    {"broken_off_in_a_chunk", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5\r\n01234\r\nA\r\n567"},
    {"last_chunk_missing", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5\r\n01234\r\n"},
    {"no_answer_at_all", ""},
    {"no_http", "what do you want?\r\n"},
    {"packed_wrongly", "HTTP/1.1 200 OK\r\nContent-Encoding: gzip\r\nContent-Length: 7\r\n\r\nno gzip"},
    {"packed_and_broken_off",
     "HTTP/1.1 200 OK\r\nContent-Encoding: gzip\r\nContent-Length: 12\r\n\r\n\x1F\x8B\x08\x01\x01\x01\x01\x01"},
    {"a_length_below_zero", "HTTP/1.1 200 OK\r\nContent-Length: -5\r\n\r\n0123456789"},
};
INSTANTIATE_TEST_SUITE_P(Http, BadAnswers, testing::ValuesIn(badAnswers),
                         [](const auto &row) { return row.param.tag; });

TEST_F(Downloads, BytesBehindTheToldLengthAreNoneOfTheFile)
{
    server.route("/long.jpg", {.bytes = "HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\n0123456789", .closes = true});
    EXPECT_EQ(bytesOf(byFirst(server.address(u"/long.jpg"_s), u"a.jpg"_s).file), "0123");
}

TEST_F(Downloads, AnAnswerWithoutLengthEndsWithItsConnection)
{
    server.route("/old.jpg", {.bytes = "HTTP/1.0 200 OK\r\n\r\nold times", .closes = true});
    EXPECT_EQ(bytesOf(byFirst(server.address(u"/old.jpg"_s), u"a.jpg"_s).file), "old times");
}

TEST_F(Downloads, ContentIsWantedAsItIsAndUnpackedWhereItIsNot)
{
    // "packed" by gzip.
    const QByteArray packed = QByteArray::fromHex("1f8b08000000000002032b484cce4e4d010010b4f62106000000");
    server.route("/p.txt", okReply(packed, "Content-Encoding: gzip\r\n"));
    const Download download = byFirst(server.address(u"/p.txt"_s), u"p.txt"_s);
    EXPECT_EQ(bytesOf(download.file), "packed") << qUtf8Printable(download.refusal);
    EXPECT_EQ(server.requests.at(0).header("Accept-Encoding"), "identity");
}

TEST_F(Downloads, AnEndlessOrSilentAnswerEndsWithTheLimit)
{
    Transfers hasty(waitForEvents, 300);
    cInetWS path(hasty, log);
    RawReply endless{.bytes = "HTTP/1.1 200 OK\r\n\r\n" + QByteArray(1'000, 'x'), .piece = 100, .pause = 1};
    endless.repeats = true;
    endless.repeatFrom = 19;
    server.route("/endless.jpg", endless);
    server.route("/silent.jpg", {.bytes = "too late", .pause = 60'000});
    for (const QString &name : {u"/endless.jpg"_s, u"/silent.jpg"_s}) {
        const Download download = path.DownLoad(server.address(name), at(u"a.jpg"_s), 0);
        EXPECT_EQ(download.file, u""_s);
        EXPECT_GT(download.seconds, 0.25);
        EXPECT_LT(download.seconds, 5);
    }
    EXPECT_EQ(log.entries.size(), 2);
    EXPECT_TRUE(names().isEmpty());
}

TEST_F(Downloads, TheLimitIs180Seconds)
{
    EXPECT_EQ(Transfers::StandardLimit, 180'000);
}

TEST_F(Downloads, AddressesThatLeadNowhereFail)
{
    for (const QString &address : {u""_s, u"http://"_s, u"http:\\\\host\\p.jpg"_s, u"http://127.0.0.1:1/p.jpg"_s,
                                   u"nosuchprotocol://h/p.jpg"_s, u"http://[::bad/p.jpg"_s}) {
        log.entries.clear();
        EXPECT_NE(byFirst(address, u"a.jpg"_s).refusal, u""_s) << qUtf8Printable(address);
        EXPECT_EQ(log.entries.size(), 1) << qUtf8Printable(address);
        EXPECT_NE(bySecond(address, u"a.jpg"_s).refusal, u""_s) << qUtf8Printable(address);
    }
    EXPECT_TRUE(names().isEmpty());
}

TEST_F(Downloads, FilesOfThisMachineAreNotFetched)
{
    const QString secret = at(u"secret.txt"_s);
    writeFile(secret, "secret");
    EXPECT_EQ(first.DownLoad(u"file://"_s + secret, {}, 0).content, u""_s);
    EXPECT_EQ(second.APIDownLoad(u"file://"_s + secret, {}, 0).content, u""_s);
    EXPECT_EQ(first.DownLoad(u"gopher://127.0.0.1/1"_s, {}, 0).content, u""_s);
}

TEST_F(Downloads, ConnectionsAreKeptFromOneFileToTheNextAndBetweenThePaths)
{
    server.route("/p.jpg", okReply("picture"));
    for (int number = 0; number < 20; ++number) {
        EXPECT_NE(byFirst(server.address(u"/p.jpg"_s), u"a%1.jpg"_s.arg(number)).file, u""_s);
        EXPECT_NE(bySecond(server.address(u"/p.jpg"_s), u"b%1.jpg"_s.arg(number)).file, u""_s);
    }
    EXPECT_EQ(server.connections, 1);
    EXPECT_EQ(names().size(), 40);
}

TEST_F(Downloads, AConnectionThatTheServerHasClosedIsMadeAnew)
{
    RawReply once = okReply("picture");
    once.closes = true;
    server.route("/p.jpg", once);
    for (int number = 0; number < 3; ++number) {
        EXPECT_NE(byFirst(server.address(u"/p.jpg"_s), u"%1.jpg"_s.arg(number)).file, u""_s);
        waitForEvents(20);
    }
    EXPECT_EQ(server.connections, 3);
}

/// Sets a variable of the environment for one test.
class Variable
{
  public:
    Variable(const char *name, const QByteArray &value) : mName(name) { qputenv(name, value); }
    ~Variable() { qunsetenv(mName); }
    Q_DISABLE_COPY_MOVE(Variable)

  private:
    const char *mName;
};

TEST_F(Downloads, TheSecondPathAloneGoesThroughTheSystemsProxy)
{
    const Variable proxy("http_proxy", server.address({}).toUtf8());
    server.route("http://pictures.example/p.jpg", okReply("by the proxy"));
    server.route("/p.jpg", okReply("direct"));
    EXPECT_EQ(second.APIDownLoad(u"http://pictures.example/p.jpg"_s, {}, 0).content, u"by the proxy"_s);
    EXPECT_EQ(first.DownLoad(server.address(u"/p.jpg"_s), {}, 0).content, u"direct"_s);
    ASSERT_EQ(server.requests.size(), 2);
    EXPECT_EQ(server.requests[1].target(), "/p.jpg");
}
} // namespace
