#include "window/commands/DataCommands.h"

#include "pages/EmailFinder.h"
#include "store/FixNull.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto form = "frmSearch"_L1;
constexpr auto lineEnd = "\r\n"_L1;
constexpr int columnOfFullPage = 4;
constexpr qsizetype tooLongToMagnify = 256;
} // namespace

const DataCommands::Row DataCommands::commandRows[] = {
    {"mnuDBNavigateTo"_L1, "Sub mnuDBNavigateTo_Click"_L1, &DataCommands::navigateTo},
    {"mnuDBCopy"_L1, "Sub mnuDBCopy_Click"_L1, &DataCommands::copy},
    {"mnuDBMagnify"_L1, "Sub mnuDBMagnify_Click"_L1, &DataCommands::magnify},
    {"mnuDBNewWindow"_L1, "Sub mnuDBNewWindow_Click"_L1, &DataCommands::newWindow},
    {"mnuDBDelete"_L1, "Sub mnuDBDelete_Click"_L1, &DataCommands::deleteSelected},
};

DataCommands::DataCommands(const Context &context, const BrowserPanel &browser, DataBoxes &data, Menu &mnuPopUpDB,
                           DataView &view, DatabaseHolder &database, ClipboardText &clipboard)
    : mContext(context), mBrowser(browser), mData(data), mMenu(mnuPopUpDB), mView(view), mDatabase(database),
      mClipboard(clipboard)
{
    for (const Row &row : commandRows)
        connect(&mMenu.item(row.item), &MenuItem::Click, this, [this, &row] {
            if (isTableChosen())
                guarded(mContext.log, {form, row.location}, [&] { (this->*row.run)(); });
        });
    connect(&grid(), &Control::mousePressed, this, &DataCommands::fxgTrawlex_MouseDown);
    connect(&grid(), &Control::doubleClicked, this, &DataCommands::fxgTrawlex_DblClick);
    // Rows of no table, as those of a saved recordset, can be copied by the key alone.
    connect(&grid(), &Grid::copyAsked, this, [this] {
        guarded(mContext.log, {form, "Sub mnuDBCopy_Click"_L1}, [this] { copy(); });
    });
}

void DataCommands::fxgTrawlex_MouseDown(MouseButton button)
{
    if (button != MouseButton::Right || !mBrowser.mbInitialized || !isTableChosen())
        return;
    const QString text = grid().text();
    if (text.isEmpty())
        return mContext.status.UpDateStatus(u"Cell is empty"_s);
    mMenu.item("mnuDBDelete"_L1).setEnabled(grid().col() == 0);
    mMenu.item("mnuDBNavigateTo"_L1).setEnabled(cIEText::IsThisEmailOrLink(text, true) == cIEText::TextKind::Link);
    Q_EMIT popUpWanted(mMenu);
}

void DataCommands::fxgTrawlex_DblClick()
{
    const QString text = grid().text();
    if (mBrowser.mbInitialized && isTableChosen() && !text.isEmpty() && text.size() < tooLongToMagnify)
        Q_EMIT magnifyWanted(text);
}

void DataCommands::navigateTo()
{
    Q_EMIT navigateWanted(grid().text());
}

void DataCommands::copy()
{
    mClipboard.setText(grid().clip().replace(u'\r', lineEnd));
}

QString DataCommands::fullPage()
{
    Recordset rows = mDatabase->GetRecordset("SELECT FullPage FROM SiteSummary WHERE Index="_L1 +
                                             grid().textMatrix(grid().row(), 0));
    return rows.isEmpty() ? QString() : FixNull(rows.Fields()[0]);
}

void DataCommands::magnify()
{
    if (mView.table() != "SiteSummary"_L1 || grid().col() != columnOfFullPage) {
        Q_EMIT magnifyWanted(grid().clip().replace(u'\t', ", "_L1).replace(u'\r', lineEnd) + lineEnd);
        return;
    }
    const QString page = fullPage();
    if (!page.isEmpty())
        Q_EMIT editWanted(page);
}

void DataCommands::newWindow()
{
    Q_EMIT newWindowWanted(grid().dataSource());
}
