// Texts that keep links and mail addresses out of a harvest, stored in one table of two columns that have nothing to do
// with each other but their rows; and the Quick Block list of servers, which is kept in memory alone. Knows sites.
#pragma once

#include "app/Ports.h"
#include "app/StatusLine.h"
#include "app/frmSearch.h"
#include "driver/BrowserHolder.h"
#include "store/DatabaseHolder.h"

class Blocking
{
  public:
    enum class Kind { Url, Email };
    /// A removal of its own brings the control states up to date; one of several leaves that to the caller.
    enum class Batch { No, Yes };

    Blocking(ErrorReceiver &log, frmSearch &form, StatusLine &status, ControlStates &states, UserDialogs &dialogs,
             SettingsStore &settings, DatabaseHolder &database, BrowserHolder &browser);

    /// Fills both lists.
    void LoadBlocked();
    /// Adds `item`, asking for one with "".
    void AddBlockedUrl(const QString &item = {}) { add(Kind::Url, item); }
    void AddBlockedEC(const QString &item = {}) { add(Kind::Email, item); }
    /// Takes the chosen item out. A row without a link text that stands before it goes too, with the address text it
    /// holds.
    void RemoveBlockedUrl(Batch batch) { removeChosen(Kind::Url, batch); }
    /// The same for addresses; rows that hold a link text stay.
    void RemoveBlockedEC(Batch batch) { removeChosen(Kind::Email, batch); }
    /// Takes out every selected item.
    void RemoveBlocked(Kind kind);
    void ClearBlockedList(Kind kind);

    /// The server of the page on show joins the Quick Block list.
    void addQuickBlock();
    void clearQuickBlock();

  private:
    struct Row;
    [[nodiscard]] Row row(Kind kind) const;
    void add(Kind kind, const QString &item);
    [[nodiscard]] QString askFor(Kind kind);
    [[nodiscard]] bool store(const Row &row, const QString &item);
    void removeChosen(Kind kind, Batch batch);
    void removeFromTable(Kind kind, const QString &item);

    ErrorReceiver &mLog;
    frmSearch &mForm;
    StatusLine &mStatus;
    ControlStates &mStates;
    UserDialogs &mDialogs;
    SettingsStore &mSettings;
    DatabaseHolder &mDatabase;
    BrowserHolder &mBrowser;
};
