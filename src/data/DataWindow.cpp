#include "data/DataWindow.h"

#include "controls/cLstBx.h"
#include "data/ColumnWidths.h"
#include "data/GridSources.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto form = "frmSearch"_L1, window = "frmfxg"_L1;
constexpr auto lineEnd = "\r\n"_L1;
constexpr int besidesUrl = 700;
} // namespace

DataWindow::DataWindow(const Context &context, const BrowserPanel &browser, frmfxg &formOfGrid,
                       DatabaseHolder &database, Navigation &navigation, ClipboardText &clipboard, PopUpMenus &menus)
    : mContext(context), mBrowser(browser), mWindow(formOfGrid), mDatabase(database), mNavigation(navigation),
      mClipboard(clipboard), mFilling(context.log, formOfGrid.fxgTrawlex)
{
    connectMenu(menus);
    connect(&mWindow, &frmfxg::resized, this, &DataWindow::ReScale);
    connect(&mWindow.fxgTrawlex, &Grid::headClicked, this, &DataWindow::sortBy);
    connect(&mFilling, &GridFilling::shown, this, &DataWindow::SetColumnSizes);
    connect(&mWindow, &frmfxg::unloaded, this, [this] {
        mFilling.drop();
        mWindow.fxgTrawlex.setDataSource(nullptr);
        mWindow.lstMN.clear();
    });
}

void DataWindow::connectMenu(PopUpMenus &menus)
{
    const auto popUp = [this, &menus](MouseButton button) {
        if (button == MouseButton::Right)
            menus.popUp(mWindow.mnuFxgPopUpMenu);
    };
    connect(&mWindow.fxgTrawlex, &Control::mousePressed, this, popUp);
    connect(&mWindow.lstMN, &Control::mousePressed, this, popUp);
    const auto onClick = [this](QLatin1StringView item, QLatin1StringView location, auto action) {
        connect(&mWindow.mnuFxgPopUpMenu.item(item), &MenuItem::Click, this, [this, location, action] {
            guarded(mContext.log, {window, location}, action);
        });
    };
    onClick("mnuFxgNavigateTo"_L1, "Sub mnuFxgNavigateTo_Click"_L1, [this] {
        mNavigation.OpenSite(mWindow.showsList() ? mWindow.lstMN.list(mWindow.lstMN.listIndex())
                                                 : mWindow.fxgTrawlex.clip());
    });
    onClick("mnuFxgMagnify"_L1, "Sub mnuFxgMagnify_Click"_L1, [this] {
        Q_EMIT magnifyWanted(mWindow.showsList() ? cLstBx::CopySelected(mWindow.lstMN, lineEnd)
                                                 : mWindow.fxgTrawlex.clip());
    });
    onClick("mnuFxgCopy"_L1, "Sub mnuFxgCopy_Click"_L1, [this] {
        mClipboard.setText(mWindow.showsList() ? cLstBx::CopySelected(mWindow.lstMN, lineEnd) : clipLines());
    });
    connect(&mWindow.fxgTrawlex, &Grid::copyAsked, &mWindow.mnuFxgPopUpMenu.item("mnuFxgCopy"_L1), &MenuItem::click);
    onClick("mnuFxgClose"_L1, "Sub mnuFxgClose_Click"_L1, [this] { mWindow.unload(); });
}

QString DataWindow::clipLines() const
{
    return mWindow.fxgTrawlex.clip().replace(u'\r', lineEnd);
}

void DataWindow::ReScale()
{
    guarded(mContext.log, {window, "Sub ReScale"_L1}, [this] {
        mWindow.lstMN.setVisible(mWindow.showsList());
        mWindow.fxgTrawlex.setVisible(!mWindow.showsList());
        if (!mWindow.showsList())
            SetColumnSizes();
    });
}

void DataWindow::SetColumnSizes()
{
    const ColumnWidths::Width widths[] = {
        {"Idx Index"_L1, 700},      {"Type"_L1, 500},     {"SSIndex"_L1, 830},
        {"Date FullPage"_L1, 1100}, {"Number"_L1, 1200},  {"MaskName"_L1, 1300},
        {"Note Title"_L1, 4000},    {"Address"_L1, 4400}, {"Url"_L1, mWindow.width() - besidesUrl}};
    ColumnWidths::set(mWindow.fxgTrawlex, widths);
}

void DataWindow::showRows(std::shared_ptr<const GridRows> rows)
{
    mWindow.lstMN.clear();
    mFilling.show(std::move(rows));
    ReScale();
    mWindow.show();
}

void DataWindow::sortBy(int column)
{
    const Grid &grid = mWindow.fxgTrawlex;
    guarded(mContext.log, {window, "fxgTrawlex_Click"_L1}, [&] {
        if (grid.canSort())
            mFilling.show(grid.dataSource()->sorted(grid.sortMark().clicked(column)));
    });
}

void DataWindow::showItems(const QStringList &items)
{
    mWindow.lstMN.setItems(items);
    ReScale();
    mWindow.show();
}

void DataWindow::ShowDataInNewWindow(const QString &table)
{
    guarded(mContext.log, {form, "Sub ShowDataInNewWindow"_L1}, [&] {
        if (!mBrowser.mbInitialized)
            return mContext.status.UpDateStatus(u"Not initialized"_s);
        if (!table.isEmpty())
            showRows(std::make_shared<TableRows>(TablePages(*mDatabase, table)));
    });
}

void DataWindow::CloseDataWindow()
{
    guarded(mContext.log, {form, "Sub CloseDataWindow"_L1}, [this] { mWindow.unload(); });
}
