// Long commands: progress, cancelling, one at a time.
#include "app/LongWork.h"
#include "app/frmSearch.h"
#include "support/FakePump.h"
#include "util/QtPrint.h"

#include <QDeadlineTimer>
#include <QThread>
#include <QTimer>
#include <atomic>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
class LongWorkTest : public testing::Test
{
  protected:
    LongWorkTest()
    {
        QObject::connect(&status, &StatusLine::told, &form, [this](const QString &text) { told.append(text); });
    }
    frmSearch form;
    FakePump pump;
    Tips tips{form.options.chkSMV(0)};
    StatusLine status{form.frame.picStatus, tips};
    LongWork work{pump, status};
    QStringList told;
};
} // namespace

TEST_F(LongWorkTest, ItsTextIsShownBeforeItWorksAndItsShareNowAndThen)
{
    EXPECT_TRUE(work.run(u"Saving"_s, [&] {
        EXPECT_EQ(told, QStringList{u"Saving"_s});
        EXPECT_TRUE(work.goOn(10, 40));
        EXPECT_EQ(told.size(), 1) << "too early to tell again";
        pump.jump(LongWork::turn);
        EXPECT_TRUE(work.goOn(20, 40));
        pump.jump(LongWork::turn);
        EXPECT_TRUE(work.goOn(7));
    }));
    EXPECT_EQ(told, (QStringList{u"Saving"_s, u"Saving 50%"_s, u"Saving 7"_s}));
    EXPECT_FALSE(work.isUnderWay());
}

TEST_F(LongWorkTest, ItsShareGoesToABarThatIsTakenAwayAtItsEndEvenByAnError)
{
    QList<std::pair<qint64, qint64>> shares;
    QObject::connect(&work, &LongWork::progressed, &form, [&](qint64 done, qint64 all) { shares.append({done, all}); });
    const auto steps = [&] {
        pump.jump(LongWork::turn);
        EXPECT_TRUE(work.goOn(20, 40));
        pump.jump(LongWork::turn);
        EXPECT_TRUE(work.goOn(7)); // of nobody knows how many
        throw RuntimeError(5, u"no"_s);
    };
    EXPECT_THROW(work.run(u"Saving"_s, steps), RuntimeError);
    EXPECT_EQ(shares, (QList<std::pair<qint64, qint64>>{{20, 40}, {0, 0}, {0, 0}}));
}

TEST_F(LongWorkTest, CancellingEndsTheOneUnderWayAndNoLaterOne)
{
    EXPECT_TRUE(work.run(u"Saving"_s, [&] {
        pump.after(0, [&] { work.cancel(); });
        pump.jump(LongWork::turn);
        EXPECT_FALSE(work.goOn(1, 2));
        EXPECT_FALSE(work.goOn(2, 2));
        EXPECT_TRUE(work.isCancelled());
    }));
    work.cancel();
    EXPECT_TRUE(work.goOn(1)) << "nothing is under way";
    EXPECT_TRUE(work.run(u"Loading"_s, [&] { EXPECT_TRUE(work.goOn(1)); }));
}

TEST_F(LongWorkTest, WhatIsDoneBesideItKeepsNoEventWaiting)
{
    std::atomic<bool> handled = false;
    const QThread *const here = QThread::currentThread();
    EXPECT_TRUE(work.run(u"Saving"_s, [&] {
        QTimer::singleShot(0, &form, [&] { handled = true; });
        work.beside([&] {
            EXPECT_NE(QThread::currentThread(), here);
            const QDeadlineTimer patience(20'000);
            while (!handled && !patience.hasExpired())
                QThread::msleep(1);
        });
        EXPECT_TRUE(handled);
        EXPECT_THROW(work.beside([] { throw RuntimeError(5, u"no"_s); }), RuntimeError);
    }));
    work.beside([&] { EXPECT_EQ(QThread::currentThread(), here) << "nobody waits outside a command"; });
}

TEST_F(LongWorkTest, ASecondOneIsRefusedUntilTheFirstHasEndedEvenByAnError)
{
    EXPECT_THROW(work.run(u"Saving"_s,
                          [&] {
                              EXPECT_FALSE(work.run(u"Loading"_s, [&] { FAIL() << "inside another"; }));
                              throw RuntimeError(5, u"no"_s);
                          }),
                 RuntimeError);
    EXPECT_TRUE(work.run(u"Loading"_s, [] {}));
}
