// A second start of the window program: the first one is told, and nobody else's program is.
#include "desktop/OneInstance.h"

#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QLocalSocket>
#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class OneInstanceTest : public testing::Test
{
  protected:
    void listenTo(OneInstance &instance)
    {
        QObject::connect(&instance, &OneInstance::startedAgain, [this] { ++told; });
    }
    void waitForTold(int count)
    {
        QEventLoop loop;
        QTimer alarm;
        alarm.start(10);
        for (QElapsedTimer clock(started()); told < count && clock.elapsed() < 5000;)
            loop.processEvents(QEventLoop::WaitForMoreEvents);
    }
    static QElapsedTimer started()
    {
        QElapsedTimer clock;
        clock.start();
        return clock;
    }

    QTemporaryDir folder;
    int told = 0;
};

} // namespace

TEST_F(OneInstanceTest, EachFurtherStartIsToldToTheFirst)
{
    OneInstance first(u"a"_s, folder.path());
    ASSERT_TRUE(first.isFirst());
    listenTo(first);
    for (int start = 1; start <= 3; ++start) {
        const OneInstance second(u"a"_s, folder.path());
        EXPECT_FALSE(second.isFirst());
        EXPECT_TRUE(second.tellFirst());
        waitForTold(start);
    }
    EXPECT_EQ(told, 3);
}

TEST_F(OneInstanceTest, AnotherCopyOfTheProgramIsAFirstOneToo)
{
    const OneInstance first(u"a"_s, folder.path());
    const OneInstance other(u"b"_s, folder.path());
    EXPECT_TRUE(first.isFirst());
    EXPECT_TRUE(other.isFirst());
}

TEST_F(OneInstanceTest, WhenTheFirstHasGoneTheNextIsFirst)
{
    std::make_unique<OneInstance>(u"a"_s, folder.path()).reset();
    OneInstance next(u"a"_s, folder.path());
    EXPECT_TRUE(next.isFirst());
    listenTo(next);
    EXPECT_TRUE(OneInstance(u"a"_s, folder.path()).tellFirst());
    waitForTold(1);
    EXPECT_EQ(told, 1);
}

TEST_F(OneInstanceTest, AFirstThatDoesNotListenIsNotWaitedForLong)
{
    const OneInstance first(u"a"_s, folder.path());
    const QStringList sockets = QDir(folder.path()).entryList({u"*.socket"_s}, QDir::System | QDir::Files);
    ASSERT_EQ(sockets.size(), 1);
    EXPECT_EQ(QFile::permissions(folder.filePath(sockets[0])) & 0x0077, QFile::Permissions()) << "for its user alone";
    QFile::remove(folder.filePath(sockets[0]));
    const QElapsedTimer clock = started();
    EXPECT_FALSE(OneInstance(u"a"_s, folder.path()).tellFirst());
    EXPECT_LT(clock.elapsed(), 3000);
}
