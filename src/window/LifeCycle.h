// The end of the program, in every moment: it waits for what stands on the stack, has everything written, lets
// everything go.
#pragma once

#include "app/Context.h"
#include "app/LongWork.h"
#include "app/cTimer.h"
#include "app/frmSearch.h"
#include "driver/Runs.h"
#include "window/BrowserConnection.h"

class LifeCycle : public QObject
{
    Q_OBJECT

  public:
    LifeCycle(const Context &context, frmSearch &form, cTimer &timer, Runs &runs, BrowserHolder &browser,
              BrowserConnection &connection, LongWork &work);

    /// While one lives the end waits: something stands on the stack that must not lose its objects.
    class Hold
    {
      public:
        explicit Hold(LifeCycle &life) : mLife(life) { ++life.mHolds; }
        ~Hold() { --mLife.mHolds; }
        Hold(const Hold &) = delete;
        Hold &operator=(const Hold &) = delete;

      private:
        LifeCycle &mLife;
    };

    /// The user wants to end; asks first where the option says so.
    void Terminate();
    /// Ends without asking: at once, or as soon as the run or the long command on the stack has unwound.
    void end();
    /// Ends like end(), but nothing is written: what the user did since the start is not kept.
    void endWithoutSaving();
    [[nodiscard]] bool isEnding() const { return mEnding; }
    /// A run or a long command has ended; what waited for that goes on.
    void unwound();

  Q_SIGNALS:
    /// What is kept of this time is to be written now.
    void saving();
    /// What was opened is to be let go.
    void releasing();
    /// All is written and released; the process may go.
    void ended();

  private:
    void stopRun();
    void Form_Unload();

    Context mContext;
    frmSearch &mForm;
    cTimer &mTimer;
    Runs &mRuns;
    BrowserHolder &mBrowser;
    BrowserConnection &mConnection;
    LongWork &mWork;
    int mHolds = 0;
    bool mEnding = false;
    bool mSaving = true;
    bool mUnloaded = false;
};
