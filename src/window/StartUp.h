// The start of the program: what is loaded in which order, and where the window comes up.
#pragma once

#include "window/DatabaseLoader.h"
#include "window/LifeCycle.h"

class StartUp : public QObject
{
    Q_OBJECT

  public:
    StartUp(const Context &context, frmSearch &form, Options &options, DatabaseLoader &loader,
            BrowserConnection &connection, WindowPlace &place, LifeCycle &life);

    /// Builds the form's state and opens the database. False when there is no usable one.
    bool load();
    /// The same, and connects a browser. False when there is no usable database.
    /// Whoever has a window shows it at loaded(): a browser may take seconds.
    bool Form_Load();
    /// Just before the window is shown: its place, and that it stands on top.
    void settle();

  Q_SIGNALS:
    /// Options and database stand; a browser is connected next.
    void loaded();
    /// A browser has been connected, or could not be.
    void formLoaded();
    /// The window has its place.
    void settled();

  private:
    [[nodiscard]] bool orientsAtStart() const;
    void connectBrowser();

    Context mContext;
    frmSearch &mForm;
    Options &mOptions;
    DatabaseLoader &mLoader;
    BrowserConnection &mConnection;
    WindowPlace &mPlace;
    LifeCycle &mLife;
};
