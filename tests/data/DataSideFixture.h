// The Data tab, the detached grid and the Import page, wired as in the program.
#pragma once

#include "DataFixture.h"
#include "window/DataSide.h"

class DataSideTest : public DataTest
{
  protected:
    DataSideTest()
    {
        side.view.LoadTableSelectData();
        QObject::connect(&side.commands, &DataCommands::magnifyWanted, &form,
                         [this](const QString &text) { magnified.append(text); });
        QObject::connect(&side.window, &DataWindow::magnifyWanted, &form,
                         [this](const QString &text) { magnified.append(text); });
        QObject::connect(&side.commands, &DataCommands::editWanted, &form,
                         [this](const QString &text) { edited.append(text); });
        QObject::connect(&side.import, &DataImport::reloadWanted, &form, [this] {
            ++reloads;
            EXPECT_FALSE(form.mbFormReady) << "option events do not save during the reload";
            database.set(std::make_unique<cAdoMdb>(log));
            database->setDatabasePath(pathOf(QStringLiteral("Trawlex-0.mdb")));
            declareSchema(*database);
            EXPECT_TRUE(database->TestDatabase(true));
        });
    }
    void chooseTable(const QString &name) { form.data.cboDBTables.setListIndex(int(tables().indexOf(name))); }
    void chooseField(const QString &name)
    {
        form.data.cboDBFields.setListIndex(int(form.data.cboDBFields.items().indexOf(name)));
    }
    [[nodiscard]] const QStringList &tables() { return form.data.cboDBTables.items(); }
    [[nodiscard]] Grid &grid() { return form.data.fxgTrawlex; }
    /// The texts of a column of the grid.
    [[nodiscard]] QStringList shown(int column)
    {
        QStringList texts;
        for (int row = 0; row < grid().rows(); ++row)
            texts.append(grid().textMatrix(row, column));
        return texts;
    }
    void clickItem(Menu &menu, const char *item) { menu.item(QLatin1StringView(item)).click(); }
    void addUrls(const QString &table, int count)
    {
        for (int i = 1; i <= count; ++i)
            addRow(*database, table, {{QStringLiteral("Url"), QStringLiteral("http://u%1.com").arg(i)}});
    }

    FakeMenus menus;
    DataSide side{context, form, database, navigation, work, clipboard, menus};
    QStringList magnified, edited;
    int reloads = 0;
};
