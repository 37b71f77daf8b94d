#include "TransferFixture.h"

using namespace Qt::StringLiterals;

namespace {
class Cancelling : public TransferTest
{
  protected:
    void SetUp() override
    {
        RawReply slow = okReply(QByteArray(100'000, 's'));
        slow.piece = 1'000;
        slow.pause = 50;
        server.route("/slow.jpg", slow);
        server.route("/quick.jpg", okReply("quick"));
    }
    [[nodiscard]] QString slow() const { return server.address(u"/slow.jpg"_s); }
};

TEST_F(Cancelling, EndsADownloadAtOnceAndLeavesNothing)
{
    QTimer::singleShot(100, &first, &cInetWS::Cancel);
    const Download download = byFirst(slow(), u"a.jpg"_s);
    EXPECT_LT(download.seconds, 2);
    EXPECT_EQ(download.refusal, u"Cancelled"_s);
    EXPECT_TRUE(names().isEmpty());
    EXPECT_TRUE(log.entries.isEmpty()) << "a cancellation is no error";
}

TEST_F(Cancelling, MayComeFromAnEventOfTheDownloadItself)
{
    for (const InetState state : {InetState::Connecting, InetState::Requesting, InetState::ReceivingResponse}) {
        const auto cancelling = QObject::connect(&first, &cInetWS::InetStatus, &first, [&](int now) {
            if (now == int(state))
                first.Cancel();
        });
        Transfers fresh(waitForEvents, 10'000);
        EXPECT_EQ(byFirst(slow(), u"a.jpg"_s).refusal, u"Cancelled"_s) << int(state);
        QObject::disconnect(cancelling);
    }
    EXPECT_TRUE(names().isEmpty());
}

TEST_F(Cancelling, WithNothingUnderWayLeavesTheNextDownloadAlone)
{
    first.Cancel();
    EXPECT_NE(byFirst(server.address(u"/quick.jpg"_s), u"a.jpg"_s).file, u""_s);
}

TEST_F(Cancelling, EndsTheSecondPathToo)
{
    QTimer::singleShot(100, &first, &cInetWS::Cancel);
    const Download download = bySecond(slow(), u"a.jpg"_s);
    EXPECT_EQ(download.refusal, u"Cancelled"_s);
    EXPECT_LT(download.seconds, 2);
}

TEST_F(Cancelling, LeavesTheConnectionsUsable)
{
    QTimer::singleShot(50, &first, &cInetWS::Cancel);
    static_cast<void>(byFirst(slow(), u"a.jpg"_s));
    EXPECT_EQ(bytesOf(byFirst(server.address(u"/quick.jpg"_s), u"b.jpg"_s).file), "quick");
}

TEST_F(Cancelling, ADownloadDuringADownloadOfTheSamePathIsRefused)
{
    Download inner;
    QTimer::singleShot(50, &first, [&] { inner = byFirst(server.address(u"/quick.jpg"_s), u"b.jpg"_s); });
    QTimer::singleShot(200, &first, &cInetWS::Cancel);
    static_cast<void>(byFirst(slow(), u"a.jpg"_s));
    EXPECT_EQ(inner.refusal, u"Still executing last request"_s);
    ASSERT_EQ(log.entries.size(), 1);
    EXPECT_EQ(log.entries[0].description, u"Still executing last request"_s);
    EXPECT_NE(byFirst(server.address(u"/quick.jpg"_s), u"c.jpg"_s).file, u""_s) << "it is free again";
}

TEST_F(Cancelling, TheOtherPathMayFetchDuringADownloadAndBothGetOn)
{
    RawReply steady = okReply(QByteArray(2'000, 's'));
    steady.piece = 100;
    steady.pause = 10;
    server.route("/steady.jpg", steady);
    Download inner;
    QTimer::singleShot(30, &first, [&] { inner = bySecond(server.address(u"/steady.jpg"_s), u"b.jpg"_s); });
    const Download outer = byFirst(server.address(u"/steady.jpg"_s), u"a.jpg"_s);
    EXPECT_EQ(bytesOf(outer.file), QByteArray(2'000, 's'));
    EXPECT_EQ(bytesOf(inner.file), QByteArray(2'000, 's'));
}

TEST_F(Cancelling, ALongStopInAnEventOnlyDelays)
{
    // A question to the user turns a loop of its own inside the wait.
    QTimer::singleShot(20, &first, [] {
        QEventLoop question;
        QTimer::singleShot(300, &question, &QEventLoop::quit);
        question.exec();
    });
    RawReply steady = okReply(QByteArray(2'000, 's'));
    steady.piece = 100;
    steady.pause = 5;
    server.route("/steady.jpg", steady);
    EXPECT_EQ(byFirst(server.address(u"/steady.jpg"_s), u"a.jpg"_s).size, 2'000);
}

class States : public TransferTest
{
  protected:
    void SetUp() override
    {
        QObject::connect(&first, &cInetWS::InetStatus, &first, [this](int state) { states += state; });
        server.route("/p.jpg", okReply("picture"));
    }
    QList<int> states;
};

TEST_F(States, AreToldInTheirOrder)
{
    static_cast<void>(byFirst(server.address(u"/p.jpg"_s), u"a.jpg"_s));
    EXPECT_EQ(states, (QList<int>{3, 4, 5, 7, 12}));
}

TEST_F(States, OfAKeptConnectionBeginWithTheRequest)
{
    static_cast<void>(byFirst(server.address(u"/p.jpg"_s), u"a.jpg"_s));
    states.clear();
    static_cast<void>(byFirst(server.address(u"/p.jpg"_s), u"b.jpg"_s));
    EXPECT_FALSE(states.contains(int(InetState::Connecting)));
    EXPECT_EQ(states.last(), int(InetState::ResponseCompleted));
}

TEST_F(States, TellOfADisconnection)
{
    server.route("/last.jpg", okReply("picture", "Connection: close\r\n"));
    static_cast<void>(byFirst(server.address(u"/last.jpg"_s), u"a.jpg"_s));
    EXPECT_EQ(states, (QList<int>{3, 4, 5, 7, 9, 10, 12}));
}

TEST_F(States, OfAFailureEndWithTheError)
{
    static_cast<void>(byFirst(u"http://127.0.0.1:1/p.jpg"_s, u"a.jpg"_s));
    EXPECT_EQ(states.first(), int(InetState::Connecting));
    EXPECT_EQ(states.last(), int(InetState::Error));
}

TEST_F(States, EndWithTheErrorWhateverItIs)
{
    server.route("/round.jpg", redirectReply(u"/round.jpg"_s));
    server.route("/gopher.jpg", redirectReply(u"gopher://127.0.0.1/1"_s));
    server.route("/long.txt", okReply(QByteArray(Body::LargestText + 1, 'x')));
    for (const QString &path : {u"/round.jpg"_s, u"/gopher.jpg"_s, u"/long.txt"_s}) {
        states.clear();
        EXPECT_NE(first.DownLoad(server.address(path), {}, 0).refusal, u""_s) << qUtf8Printable(path);
        EXPECT_EQ(states.value(states.size() - 1), int(InetState::Error)) << qUtf8Printable(path);
        EXPECT_EQ(states.count(int(InetState::Error)), 1) << qUtf8Printable(path);
    }
}

TEST_F(States, OfTheSecondPathAreNotTold)
{
    static_cast<void>(bySecond(server.address(u"/p.jpg"_s), u"a.jpg"_s));
    EXPECT_TRUE(states.isEmpty());
}

TEST_F(States, HaveTheirTexts)
{
    const QHash<int, QString> texts{
        {3, u"Connecting..."_s},    {4, u"Connected!"_s},    {5, u"Requesting..."_s}, {7, u"Receiving Response..."_s},
        {9, u"Disconnecting..."_s}, {10, u"Disconnected"_s}, {11, u"Error! "_s},      {12, u"Response Completed!"_s}};
    for (int state = -1; state < 20; ++state)
        EXPECT_EQ(inetStateText(state), texts.value(state)) << state;
}
} // namespace
