// The detached grid's state as a passive object: a grid, or a list instead, and the menu of both. Knows controls.
#pragma once

#include "app/MenuTables.h"
#include "controls/Grid.h"
#include "controls/ListControls.h"

#include <QSize>

class frmfxg : public QObject
{
    Q_OBJECT

  public:
    static constexpr QSize usualSize{6780, 5460}, leastSize{2000, 2000}; ///< in twips

    /// True: the window shows its list, and the grid stands outside it.
    [[nodiscard]] bool showsList() const { return lstMN.listCount() > 0; }
    [[nodiscard]] bool isOpen() const { return mOpen; }
    /// Shows the window, in front of the others.
    void show()
    {
        mOpen = true;
        Q_EMIT shown();
    }
    /// Unloads it.
    void unload()
    {
        mOpen = false;
        Q_EMIT unloaded();
    }
    /// In twips; whoever shows the window tells.
    void setWidth(int twips)
    {
        mWidth = twips;
        Q_EMIT resized();
    }
    [[nodiscard]] int width() const { return mWidth; }

    Grid fxgTrawlex{QStringLiteral("fxgTrawlex"), this};
    ListBox lstMN{QStringLiteral("lstMN"), this};
    Menu mnuFxgPopUpMenu{QStringLiteral("mnuFxgPopUpMenu"), MenuTables::mnuFxgPopUpMenu, this};

  Q_SIGNALS:
    void shown();
    void unloaded();
    void resized();

  private:
    int mWidth = usualSize.width();
    bool mOpen = false;
};
