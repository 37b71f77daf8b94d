// The grid of the Data tab: its menu, and what its items do with the selected cells.
#pragma once

#include "data/DataView.h"

class DataCommands : public QObject
{
    Q_OBJECT

  public:
    DataCommands(const Context &context, const BrowserPanel &browser, DataBoxes &data, Menu &mnuPopUpDB, DataView &view,
                 DatabaseHolder &database, ClipboardText &clipboard);

  Q_SIGNALS:
    void popUpWanted(Menu &menu);
    void navigateWanted(const QString &url);
    /// A short text is to be seen large, or a whole page in the editor.
    void magnifyWanted(const QString &text);
    void editWanted(const QString &text);
    void newWindowWanted(std::shared_ptr<const GridRows> rows);

  private:
    using Command = void (DataCommands::*)();
    struct Row
    {
        QLatin1StringView item, location;
        Command run;
    };
    static const Row commandRows[];

    [[nodiscard]] Grid &grid() const { return mData.fxgTrawlex; }
    [[nodiscard]] bool isTableChosen() const { return !mView.table().isEmpty(); }
    void fxgTrawlex_MouseDown(MouseButton button);
    void fxgTrawlex_DblClick();
    void navigateTo();
    void copy();
    void magnify();
    [[nodiscard]] QString fullPage();
    void newWindow();
    void deleteSelected() { mView.deleteSelected(); }

    Context mContext;
    const BrowserPanel &mBrowser;
    DataBoxes &mData;
    Menu &mMenu;
    DataView &mView;
    DatabaseHolder &mDatabase;
    ClipboardText &mClipboard;
};
