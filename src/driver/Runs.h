// The two kinds of run as one thing: whether one is under way and may go on, what stops it, and how it ends. Everybody
// who stops a run does it here; the run sees it at its next check. Knows app.
#pragma once

#include "app/Context.h"
#include "app/FormGroups.h"
#include "app/cTimer.h"

#include <optional>

class Runs : public QObject
{
    Q_OBJECT

  public:
    enum class Kind { Auto, Manual };

    Runs(const Context &context, RunFlags &flags, BrowserPanel &browser, Button &cmdANStart, Button &cmdMNStart,
         cTimer &timer);

    [[nodiscard]] bool idle() const { return mFlags.idle(); }
    [[nodiscard]] bool isUnderWay(Kind kind) const;
    /// From here on that run is under way.
    void begin(Kind kind);
    /// What a run asks after every wait and at every turn.
    [[nodiscard]] bool mayGoOn(Kind kind) const;
    /// The same for whichever run is under way; False when none is.
    [[nodiscard]] bool mayGoOn() const;

    /// The button of that run says "X", and no earlier stop counts any more.
    void showStop(Kind kind);
    /// The user stops that run: its button says "Go" (and the Auto run's timer "0"), the wait is over.
    void cancel(Kind kind);
    /// The run under way stops at its next check, and its wait is over. False when none is.
    bool stop();
    /// The wait under way is over; the run goes on at once.
    void endWait() { mTimer.CancelTimer(); }
    /// The same; the run ends with `status` in the place of the user's stop, and with a message box where `message`
    /// says something.
    void stopFor(const QString &status, const QString &message = {});
    /// A page has passed and that stops the run under way: which it is.
    std::optional<Kind> stopOnPass();

    [[nodiscard]] bool isStopped(Kind kind) const;
    /// stopOnPass() has stopped it; stands until forgetPass().
    [[nodiscard]] bool isStoppedOnPass(Kind kind) const;
    void forgetPass(Kind kind);
    /// What stopFor() was given in this run, or "".
    [[nodiscard]] const QString &reason() const { return mReason; }

    /// The common end of both runs. The places where they stand are left alone: that makes the next Go a resume.
    void FinalizeProcess(const QString &status);

  Q_SIGNALS:
    /// The user has asked for a run that does not stand yet.
    void starting(Runs::Kind kind);
    /// A run, or whatever else it waits for, is to end.
    void stopping();
    /// A walk over items begins; a run may have several. Where it goes on in the middle of its items, `anew` says how
    /// to begin with the first one; else "".
    void walking(const QString &anew);
    /// Item `number` of `count`, from 1, is the next one.
    void progress(int number, int count);
    /// A run has ended with this status.
    void finalized(const QString &status);

  private:
    struct Row;
    [[nodiscard]] Row row(Kind kind) const;

    Context mContext;
    RunFlags &mFlags;
    BrowserPanel &mBrowser;
    Button &mStartAuto;
    Button &mStartManual;
    cTimer &mTimer;
    QString mReason;
    QString mMessage;
};
