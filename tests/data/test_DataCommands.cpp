// The menus of the grid, and the detached grid.
#include "DataSideFixture.h"

using namespace Qt::StringLiterals;

namespace {
class DataCommandsTest : public DataSideTest
{
  protected:
    DataCommandsTest()
    {
        addEmail(u"a@b.com"_s);
        addEmail(u"c@d.com"_s, u"2"_s, u"www.site.com/page.htm"_s);
        chooseTable(u"EmailAddress"_s);
    }
    [[nodiscard]] Menu &menu() { return form.menus.mnuPopUpDB; }
    [[nodiscard]] bool isEnabled(const char *item) { return menu().item(QLatin1StringView(item)).isEnabled(); }
    [[nodiscard]] frmfxg &detached() { return side.gridForm; }
};
} // namespace

TEST_F(DataCommandsTest, TheMenuOpensOnACellWithTextAndDecidesByTheCell)
{
    grid().select(1, 4);
    grid().mouseDown(MouseButton::Right);
    EXPECT_EQ(menus.shown, QStringList{u"mnuPopUpDB"_s});
    EXPECT_TRUE(isEnabled("mnuDBNavigateTo"));
    EXPECT_FALSE(isEnabled("mnuDBDelete"));
    grid().select(1, 0);
    grid().mouseDown(MouseButton::Right);
    EXPECT_FALSE(isEnabled("mnuDBNavigateTo"));
    EXPECT_TRUE(isEnabled("mnuDBDelete"));
    grid().mouseDown(MouseButton::Left);
    EXPECT_EQ(menus.shown.size(), 2);
}

TEST_F(DataCommandsTest, AnEmptyCellNoTableAndNoBrowserOpenNoMenu)
{
    addRow(*database, u"EmailAddress"_s, {{u"Url"_s, u"u"_s}});
    chooseTable(u"SiteSummary"_s);
    chooseTable(u"EmailAddress"_s);
    grid().select(2, 3);
    grid().mouseDown(MouseButton::Right);
    EXPECT_EQ(lastStatus(), u"Cell is empty"_s);
    grid().select(0, 3);
    form.browser.mbInitialized = false;
    grid().mouseDown(MouseButton::Right);
    form.browser.mbInitialized = true;
    form.data.cboDBTables.setListIndex(-1);
    grid().mouseDown(MouseButton::Right);
    EXPECT_TRUE(menus.shown.isEmpty());
}

TEST_F(DataCommandsTest, NavigateToOpensTheCell)
{
    grid().select(1, 4);
    clickItem(menu(), "mnuDBNavigateTo");
    EXPECT_EQ(browsers.running->navigated, QStringList{u"http://www.site.com/page.htm"_s});
}

TEST_F(DataCommandsTest, CopyTakesTheSelectedCellsWithWholeLineEnds)
{
    grid().select(0, 2, {0, 2, 1, 3});
    clickItem(menu(), "mnuDBCopy");
    EXPECT_EQ(clipboard.held, u"1\ta@b.com\r\n2\tc@d.com"_s);
}

TEST_F(DataCommandsTest, TheKeyForCopyingCopiesTheSameAndAlsoRowsOfNoTable)
{
    addRow(*database, u"SiteSummary"_s, {{u"FullPage"_s, QString(50'000, u'p')}});
    chooseTable(u"SiteSummary"_s);
    grid().select(0, 4);
    grid().askForCopy();
    EXPECT_EQ(clipboard.held, QString(50'000, u'p')) << "the whole text";
    clickItem(menu(), "mnuDBNewWindow");
    clipboard.held.clear();
    detached().fxgTrawlex.select(0, 4, {0, 3, 0, 4});
    detached().fxgTrawlex.askForCopy();
    EXPECT_EQ(clipboard.held, u'\t' + QString(50'000, u'p'));
    chooseTable(u"EmailAddress"_s);
    form.data.cboDBTables.setListIndex(-1);
    grid().select(0, 2, {0, 2, 1, 3});
    grid().askForCopy();
    EXPECT_EQ(clipboard.held, u"1\ta@b.com\r\n2\tc@d.com"_s);
}

TEST_F(DataCommandsTest, MagnifyPartsColumnsByCommas)
{
    grid().select(0, 2, {0, 2, 1, 3});
    clickItem(menu(), "mnuDBMagnify");
    EXPECT_EQ(magnified, QStringList{u"1, a@b.com\r\n2, c@d.com\r\n"_s});
}

TEST_F(DataCommandsTest, APageGoesToTheEditorAndAnEmptyOneNowhere)
{
    addRow(*database, u"SiteSummary"_s, {{u"FullPage"_s, u"<html>\u00e9"_s}});
    addRow(*database, u"SiteSummary"_s, {{u"Title"_s, u"T"_s}});
    chooseTable(u"SiteSummary"_s);
    grid().select(0, 4);
    clickItem(menu(), "mnuDBMagnify");
    EXPECT_EQ(edited, QStringList{u"<html>\u00e9"_s});
    grid().select(1, 4);
    clickItem(menu(), "mnuDBMagnify");
    EXPECT_EQ(edited.size(), 1);
    EXPECT_TRUE(magnified.isEmpty());
}

TEST_F(DataCommandsTest, ATextOf255CharactersOpensByDoubleClickALongerOneDoesNot)
{
    const QString url = u"http://a.com/"_s + QString(242, u'x');
    addEmail(u"long"_s, u"1"_s, url);
    addRow(*database, u"SiteSummary"_s, {{u"FullPage"_s, QString(256, u'y')}});
    chooseTable(u"SiteSummary"_s);
    grid().select(0, 4);
    grid().doubleClick();
    EXPECT_TRUE(magnified.isEmpty());
    chooseTable(u"EmailAddress"_s);
    grid().select(2, 4);
    grid().doubleClick();
    EXPECT_EQ(magnified, QStringList{url});
    EXPECT_EQ(url.size(), 255);
    clickItem(menu(), "mnuDBNavigateTo");
    EXPECT_EQ(browsers.running->navigated, QStringList{url});
}

TEST_F(DataCommandsTest, DeleteAndTheOthersAreIdleWithoutATable)
{
    grid().select(0, 0);
    form.data.cboDBTables.setListIndex(-1);
    for (const char *item : {"mnuDBNavigateTo", "mnuDBCopy", "mnuDBMagnify", "mnuDBNewWindow", "mnuDBDelete"}) {
        menu().item(QLatin1StringView(item)).setEnabled(true);
        clickItem(menu(), item);
    }
    EXPECT_EQ(values(u"EmailAddress"_s, u"Index"_s).size(), 2);
    EXPECT_TRUE(clipboard.held.isEmpty() && magnified.isEmpty() && !detached().isOpen());
    chooseTable(u"EmailAddress"_s);
    grid().select(0, 0);
    clickItem(menu(), "mnuDBDelete");
    EXPECT_EQ(values(u"EmailAddress"_s, u"Index"_s), QStringList{u"2"_s});
}

TEST_F(DataCommandsTest, ANewWindowShowsTheSameRowsInItsOwnWidths)
{
    detached().setWidth(9000);
    clickItem(menu(), "mnuDBNewWindow");
    EXPECT_TRUE(detached().isOpen());
    EXPECT_EQ(detached().fxgTrawlex.dataSource(), grid().dataSource());
    EXPECT_EQ(detached().fxgTrawlex.colWidth(3), 4400);
    EXPECT_EQ(detached().fxgTrawlex.colWidth(4), 8300);
    EXPECT_FALSE(detached().lstMN.isVisible());
}

TEST_F(DataCommandsTest, OpeningTheDetachedGridOnAnotherTableRebindsTheOneWindow)
{
    int shown = 0;
    QObject::connect(&detached(), &frmfxg::shown, &form, [&] { ++shown; });
    form.outputs.lblEmailSaved.mouseDown(MouseButton::Left);
    EXPECT_EQ(detached().fxgTrawlex.rows(), 2);
    form.outputs.lblUrlSaved.mouseDown(MouseButton::Left);
    EXPECT_EQ(detached().fxgTrawlex.rows(), 0);
    EXPECT_EQ(detached().fxgTrawlex.head(3), u"MaskName"_s);
    EXPECT_EQ(shown, 2);
    form.outputs.lblSummarySaved.mouseDown(MouseButton::Right);
    EXPECT_FALSE(detached().isOpen());
    EXPECT_EQ(detached().fxgTrawlex.dataSource(), nullptr);
    form.browser.mbInitialized = false;
    form.outputs.lblPhoneSaved.mouseDown(MouseButton::Left);
    EXPECT_EQ(lastStatus(), u"Not initialized"_s);
    EXPECT_FALSE(detached().isOpen());
}

TEST_F(DataCommandsTest, TheDetachedGridIsSortedByItsHeadsAndTheTabIsNot)
{
    addEmail(u"b@c.com"_s, u"0"_s);
    chooseTable(u"EmailAddress"_s);
    chooseField(u"Address"_s);
    form.data.txtDBQuery.setText(u"c"_s);
    grid().clickHead(3);
    clickItem(menu(), "mnuDBNewWindow");
    Grid &other = detached().fxgTrawlex;
    EXPECT_EQ(other.sortMark(), (SortMark{3, Qt::AscendingOrder})) << "as on the tab";
    const auto numbers = [&other] {
        QStringList all;
        for (int row = 0; row < other.rows(); ++row)
            all.append(other.textMatrix(row, 2));
        return all.join(u',');
    };
    const int width = other.colWidth(4);
    EXPECT_EQ(numbers(), u"1,0,2"_s);
    other.clickHead(2);
    EXPECT_EQ(numbers(), u"0,1,2"_s);
    EXPECT_EQ(other.colWidth(4), width);
    other.clickHead(2);
    EXPECT_EQ(numbers(), u"2,1,0"_s);
    other.clickHead(2);
    EXPECT_EQ(numbers(), u"1,2,0"_s) << "in table order, by the same filter";
    EXPECT_EQ(other.sortMark(), SortMark());
    EXPECT_EQ(shown(2), (QStringList{u"1"_s, u"0"_s, u"2"_s}));
}

TEST_F(DataCommandsTest, ASavedRecordsetHasNoOtherOrder)
{
    side.exports.ExportRecordSet(4);
    side.view.showSaved(pathOf(u"EmailAddress-0.dat"_s));
    EXPECT_FALSE(grid().canSort());
    side.window.showRows(grid().dataSource());
    const auto rows = detached().fxgTrawlex.dataSource();
    detached().fxgTrawlex.clickHead(1);
    EXPECT_EQ(detached().fxgTrawlex.dataSource(), rows);
}

TEST_F(DataCommandsTest, TheLampOfPagesOpensTheSummaryIfPagesGoThere)
{
    form.outputs.chkSaveToSS.setValue(0);
    form.outputs.lblPageSaved.mouseDown(MouseButton::Left);
    EXPECT_FALSE(detached().isOpen());
    form.outputs.chkSaveToSS.setValue(1);
    form.outputs.lblPageSaved.mouseDown(MouseButton::Left);
    EXPECT_EQ(detached().fxgTrawlex.head(4), u"FullPage"_s);
}

TEST_F(DataCommandsTest, TheDetachedGridsMenuWorksOnItsGrid)
{
    clickItem(menu(), "mnuDBNewWindow");
    detached().fxgTrawlex.select(1, 4, {0, 4, 1, 4});
    detached().fxgTrawlex.mouseDown(MouseButton::Right);
    EXPECT_EQ(menus.shown, QStringList{u"mnuFxgPopUpMenu"_s});
    clickItem(detached().mnuFxgPopUpMenu, "mnuFxgCopy");
    EXPECT_EQ(clipboard.held, u"http://a.com\r\nwww.site.com/page.htm"_s);
    clickItem(detached().mnuFxgPopUpMenu, "mnuFxgMagnify");
    EXPECT_EQ(magnified, QStringList{u"http://a.com\rwww.site.com/page.htm"_s});
    detached().fxgTrawlex.select(0, 4);
    clickItem(detached().mnuFxgPopUpMenu, "mnuFxgNavigateTo");
    EXPECT_EQ(browsers.running->navigated, QStringList{u"http://a.com"_s});
    clickItem(detached().mnuFxgPopUpMenu, "mnuFxgClose");
    EXPECT_FALSE(detached().isOpen());
}

TEST_F(DataCommandsTest, AListStandsInTheGridsPlaceAndTheMenuWorksOnIt)
{
    side.window.showItems({u"http://x.com"_s, u"http://y.com"_s});
    EXPECT_TRUE(detached().lstMN.isVisible());
    EXPECT_FALSE(detached().fxgTrawlex.isVisible());
    detached().lstMN.choose(1, {false, true});
    clickItem(detached().mnuFxgPopUpMenu, "mnuFxgNavigateTo");
    EXPECT_EQ(browsers.running->navigated, QStringList{u"http://y.com"_s});
    clickItem(detached().mnuFxgPopUpMenu, "mnuFxgCopy");
    EXPECT_EQ(clipboard.held, u"http://y.com"_s);
    side.window.ShowDataInNewWindow(u"EmailAddress"_s);
    EXPECT_FALSE(detached().lstMN.isVisible());
}

TEST_F(DataCommandsTest, EachItemOfExportWritesItsKind)
{
    form.menus.mnuPopUpDBStatus.prepare();
    EXPECT_TRUE(form.menus.mnuPopUpDBStatus.item("mnuDBStatusExportTable"_L1).isEnabled());
    for (const ExportKind &kind : ExportKinds::all) {
        form.menus.mnuPopUpDBStatus.item(kind.menuItem).click();
        EXPECT_TRUE(lastStatus().endsWith(kind.extension + " written"_L1)) << qPrintable(lastStatus());
    }
    EXPECT_EQ(files().size(), 8);
}
