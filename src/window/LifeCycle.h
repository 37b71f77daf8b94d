// The life of the program between its start and its end: what is loaded in which order, and how it all ends, also in
// the middle of a run.
#pragma once

#include "app/cTimer.h"
#include "app/frmSearch.h"
#include "driver/Runs.h"
#include "window/BrowserConnection.h"
#include "window/DatabaseLoader.h"
#include "window/options/Options.h"

class LifeCycle : public QObject
{
    Q_OBJECT

  public:
    struct Parts
    {
        ErrorReceiver &log;
        frmSearch &form;
        SettingsStore &settings;
        UserDialogs &dialogs;
        WindowPlace &place;
        cTimer &timer;
        Runs &runs;
        BrowserHolder &browser;
        DatabaseHolder &database;
        Options &options;
        DatabaseLoader &loader;
        BrowserConnection &connection;
    };
    explicit LifeCycle(const Parts &parts);

    /// Builds the form's state, opens the database, connects a browser. False when there is no usable database.
    bool Form_Load();
    /// Just before the window is shown: its place, and that it stands on top.
    void settle();
    /// The user wants to end; asks first where the option says so.
    void Terminate();
    /// Ends without asking: at once, or as soon as the run on the stack has unwound.
    void end();
    /// Ends like end(), but nothing is written: what the user did since the start is not kept.
    void endWithoutSaving();
    [[nodiscard]] bool isEnding() const { return mEnding; }
    /// A run has ended; what waited for that goes on.
    void runEnded();

  Q_SIGNALS:
    /// All is written and released; the process may go.
    void ended();

  private:
    void stopRun();
    void Form_Unload();

    Parts m;
    bool mEnding = false;
    bool mSaving = true;
    bool mUnloaded = false;
    bool mConnecting = false;
};
