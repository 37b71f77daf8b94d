// The menu of PassUrls and Saved Urls: shows the one or the other in the box of start addresses, or deletes a whole
// table, which is kept until the next such deletion.
#pragma once

#include "app/Context.h"
#include "app/frmSearch.h"
#include "lists/DeletedRows.h"
#include "lists/SavedUrls.h"
#include "window/commands/PopUps.h"

class PassUrlsMenu : public QObject
{
    Q_OBJECT

  public:
    PassUrlsMenu(const Context &context, frmSearch &form, SavedUrls &savedUrls, DeletedRows &deleted,
                 DatabaseHolder &database, PopUps &popUps);

    /// What may be done, from what the tables hold and what is on show.
    struct Facts
    {
        bool hasPassUrls, passUrlsLoaded, boxHasItems;
    };
    struct Enabled
    {
        bool load, unload, deletePass, deleteSaved;
    };
    [[nodiscard]] static Enabled enabledFor(const Facts &facts);

  private:
    void prepare();
    void load();
    void unload();
    void showSaved();
    void remove(SavedUrls::Kind kind);

    Context mContext;
    frmSearch &mForm;
    SavedUrls &mSavedUrls;
    DeletedRows &mDeleted;
    DatabaseHolder &mDatabase;
};
