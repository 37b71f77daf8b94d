// The detached grid: what it shows, and what its menu does. There is one window; what is shown next takes its place.
#pragma once

#include "app/Context.h"
#include "app/FormGroups.h"
#include "app/frmfxg.h"
#include "data/GridFilling.h"
#include "driver/Navigation.h"
#include "store/DatabaseHolder.h"

class DataWindow : public QObject
{
    Q_OBJECT

  public:
    DataWindow(const Context &context, const BrowserPanel &browser, frmfxg &window, DatabaseHolder &database,
               Navigation &navigation, ClipboardText &clipboard, PopUpMenus &menus);

    /// Shows a table. Without a browser the status says so.
    void ShowDataInNewWindow(const QString &table);
    void CloseDataWindow();
    /// Shows what another grid shows.
    void showRows(std::shared_ptr<const GridRows> rows);
    /// Shows a list.
    void showItems(const QStringList &items);

  Q_SIGNALS:
    void magnifyWanted(const QString &text);

  private:
    void ReScale();
    void sortBy(int column);
    void SetColumnSizes();
    void connectMenu(PopUpMenus &menus);
    [[nodiscard]] QString clipLines() const;

    Context mContext;
    const BrowserPanel &mBrowser;
    frmfxg &mWindow;
    DatabaseHolder &mDatabase;
    Navigation &mNavigation;
    ClipboardText &mClipboard;
    GridFilling mFilling;
};
