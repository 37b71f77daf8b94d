// The menus of the program: names, places and captions.
#include "app/MenuTables.h"
#include "app/frmSearch.h"
#include "util/QtPrint.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
struct Table
{
    const char *name;
    std::span<const MenuRow> rows;
};
const Table tables[] = {
    {"mnuPopUpANStatus", MenuTables::mnuPopUpANStatus},
    {"mnuPopUpMN", MenuTables::mnuPopUpMN},
    {"mnuPopUpMNStatus", MenuTables::mnuPopUpMNStatus},
    {"mnuPopUpANMCMNC", MenuTables::mnuPopUpANMCMNC},
    {"mnuPopUpPassUrls", MenuTables::mnuPopUpPassUrls},
    {"mnuPopUpSearchSites", MenuTables::mnuPopUpSearchSites},
    {"mnuPopUpDB", MenuTables::mnuPopUpDB},
    {"mnuPopUpDBStatus", MenuTables::mnuPopUpDBStatus},
    {"mnuFxgPopUpMenu", MenuTables::mnuFxgPopUpMenu},
    {"mnuFotoPopUpAction", MenuTables::mnuFotoPopUpAction},
};

/// The captions below `parentItem`, sub-menus in brackets: "Edit|Clear[List|Selected]|-".
QString outline(const Menu &menu, const QString &parentItem = {})
{
    QStringList captions;
    for (const MenuItem *item : menu.children(parentItem)) {
        const QString below = outline(menu, item->name());
        captions.append(below.isEmpty() ? item->caption() : item->caption() + u'[' + below + u']');
    }
    return captions.join(u'|');
}
} // namespace

TEST(Menus, AParentStandsInTheSameMenuBeforeItsChildren)
{
    for (const Table &table : tables) {
        QStringList before{QString()};
        for (const MenuRow &row : table.rows) {
            EXPECT_TRUE(before.contains(row.parent)) << table.name << ": " << row.name.data();
            before.append(row.name);
        }
    }
}

TEST(Menus, NoNameStandsTwiceInTheProgram)
{
    QStringList names;
    for (const Table &table : tables) {
        names.append(QLatin1StringView(table.name));
        for (const MenuRow &row : table.rows)
            names.append(row.name);
    }
    for (const QString &name : names)
        EXPECT_EQ(names.count(name), 1) << qPrintable(name);
}

TEST(Menus, TheFormFindsEachItemOfItsMenusByName)
{
    const frmSearch form;
    for (const Table &table : std::span(tables).first(8)) {
        const auto *menu = qobject_cast<Menu *>(form.control(QLatin1StringView(table.name)));
        ASSERT_NE(menu, nullptr) << table.name;
        for (const MenuRow &row : table.rows)
            EXPECT_EQ(form.control(row.name), &menu->item(row.name)) << row.name.data();
    }
    EXPECT_EQ(form.control(u"mnuMNRem(5)"_s)->caption(), u"Items Not Containing"_s);
}

TEST(Menus, TheTreesReadAsTheUserSeesThem)
{
    const frmSearch form;
    const Menus &menus = form.menus;
    EXPECT_EQ(outline(menus.mnuPopUpANStatus),
              u"ReSet|Auto Save[-A-|-B-|-C-|-D-|-E-]|Get Server|-|Keep On Top|-|Minimize|Help|About|End"_s);
    EXPECT_EQ(outline(menus.mnuPopUpMN),
              u"Edit|Magnify|Navigate To|New Window|-|Clear[List|Urls (DB)|Selected|All List Windows]|-|UnSelect|"
              "Select All|Paste Urls|Cut Selected|Copy Selected|-|Find[Any Text|Find Next|List Position]|"
              "Save[ListTo Db|List To File|List Position|Select (Manual)]|-|Load[Urls (IE)|Urls (DB)|Urls (File)|"
              "Special (DB)[Select (Auto)|Select (Manual)|Pass (Auto)|Saved (Auto)|UrlsCache (Deleted)]]|Use Site Data|"
              "-|IE Url Filters[Add Filter|Delete Filter|Locate Filter]|-|Reduce To Server|Unique Servers Only|"
              "Remove[Repeats|Protocol|Left Side At|Right Side At|Items Containing|Items Not Containing]"_s);
    EXPECT_EQ(outline(menus.mnuPopUpMNStatus),
              u"Magnify|Elongate|Navigate To|-|"
              "Auto Increment Number[First|Second|Third|Fourth|Fifth|Sixth|Seven|Eight|Nine]|"
              "Collect  Urls Of Sites[-A-|-B-|-C-|-D-|-E-]|Collect Urls On Sites[-A-|-B-|-C-|-D-|-E-]|-|Auto Navigate|"
              "Use Base (AutoText)|-|Save[AutoText|Select (Manual)]|Delete AutoText|-|Set Start (AutoText)|-|"
              "Minimize|Help|About|End"_s);
    EXPECT_EQ(outline(menus.mnuPopUpANMCMNC), u"Remove|Clear"_s);
    EXPECT_EQ(outline(menus.mnuPopUpPassUrls), u"Load Pass Urls|UnLoad Pass Urls|Delete Pass Urls|Delete Save Urls"_s);
    EXPECT_EQ(outline(menus.mnuPopUpDB), u"Navigate To|Copy|Magnify|New Window|-|Delete"_s);
    EXPECT_EQ(
        outline(menus.mnuPopUpDBStatus),
        u"Export[Html Table|Tab Delimited|Comma Delimited|-|Reloadable RS File|-|CSV|JSON Lines|Excel Workbook|SQLite Database]|ReLoad RS File"_s);
    QObject otherForm;
    EXPECT_EQ(outline(Menu(u"fxg"_s, MenuTables::mnuFxgPopUpMenu, &otherForm)),
              u"Navigate To|-|Magnify|-|Copy|-|Close"_s);
    EXPECT_EQ(outline(Menu(u"foto"_s, MenuTables::mnuFotoPopUpAction, &otherForm)),
              u"Refresh|-|Explore[File Source Directory|Move To Directory]|New Directory|Set Move To Dir|-|"
              "Move it           (Ins)|-|Delete It         (Del)|-|Exit"_s);
}

TEST(Menus, EachGroupOfSearchSitesHasItsFirstItem)
{
    const frmSearch form;
    const Menu &sites = form.menus.mnuPopUpSearchSites;
    EXPECT_EQ(sites.caption(), u"Web Sites"_s);
    EXPECT_EQ(sites.item("mnuSearchSites"_L1, 4).caption(), u"-E-"_s);
    ASSERT_EQ(sites.children(u"mnuSearchSites(4)"_s).size(), 1U);
    EXPECT_EQ(sites.children(u"mnuSearchSites(4)"_s).front()->name(), u"mnuSearchSitesE(0)"_s);
}
