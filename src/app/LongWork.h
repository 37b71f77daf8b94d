// A command that may take long: it says in the status bar how far it is, lets events in now and then, and ends early
// when the user wants it to. One is under way at a time; whoever works in it changes nothing that others see until it
// has got through. Knows no command.
#pragma once

#include "app/Ports.h"
#include "app/StatusLine.h"

#include <functional>

class LongWork : public QObject
{
    Q_OBJECT

  public:
    /// Milliseconds between two looks at what the user does meanwhile.
    static constexpr qint64 turn = 50;

    LongWork(EventPump &pump, StatusLine &status) : mPump(pump), mStatus(status) {}

    /// Shows `text`, lets events in and runs `body`. Nothing while another one is under way: False.
    template <class Body> bool run(const QString &text, Body &&body)
    {
        if (mUnderWay)
            return false;
        const Ending ending(*this);
        begin(text);
        body();
        return true;
    }
    /// To be asked between two steps; costs next to nothing. False once the user has cancelled. `done` and `all` are
    /// steps; 0 for `all` shows no share. Outside run() always True.
    [[nodiscard]] bool goOn(qint64 done, qint64 all = 0);
    /// Runs `body` in a thread of its own while events go on being handled; what it throws comes out here. For what
    /// waits for the disk and touches nothing that an event could. Outside run() it is simply run.
    void beside(const std::function<void()> &body);
    /// The user wants the command that is under way to end.
    void cancel() { mCancelled = mUnderWay; }
    [[nodiscard]] bool isUnderWay() const { return mUnderWay; }
    [[nodiscard]] bool isCancelled() const { return mCancelled; }
    /// Handles what is waiting.
    void letEventsIn() { mPump.doEvents(); }

  Q_SIGNALS:
    /// So many steps of `all` are done; 0 of 0 behind the last one, and where there is no share to tell.
    void progressed(qint64 done, qint64 all);
    /// None is under way any more; what has called it may still stand on the stack.
    void ended();

  private:
    class Ending
    {
      public:
        explicit Ending(LongWork &work) : mWork(work) {}
        ~Ending()
        {
            mWork.mUnderWay = mWork.mCancelled = false;
            Q_EMIT mWork.progressed(0, 0);
            Q_EMIT mWork.ended();
        }
        Q_DISABLE_COPY_MOVE(Ending)

      private:
        LongWork &mWork;
    };
    void begin(const QString &text);

    EventPump &mPump;
    StatusLine &mStatus;
    QString mText;
    qint64 mNextTurn = 0;
    bool mUnderWay = false, mCancelled = false;
};
