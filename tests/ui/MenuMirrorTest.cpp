// A menu on the screen is its tree, and what is chosen there is clicked in the tree.
#include "WindowFixture.h"

#include "ui/binding/MenuMirror.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace {
QAction *actionOf(const QMenu &menu, const char *name)
{
    return menu.findChild<QAction *>(QLatin1StringView(name));
}

QStringList textsOf(const QMenu &menu)
{
    QStringList texts;
    for (const QAction *action : menu.actions())
        texts.append(action->isSeparator() ? u"-"_s : action->text());
    return texts;
}

struct MenuMirrorTest : WindowFixture
{
    QtMenus menus;
};
} // namespace

TEST_F(MenuMirrorTest, ATreeIsShownWithItsSubMenusAndSeparators)
{
    const auto shown = MenuMirror::mirrored(form.menus.mnuPopUpANStatus);
    EXPECT_EQ(textsOf(*shown), (QStringList{u"ReSet"_s, u"Auto Save"_s, u"Get Server"_s, u"-"_s, u"Keep On Top"_s,
                                            u"-"_s, u"Minimize"_s, u"Help"_s, u"About"_s, u"End"_s}));
    const QMenu *const lists = shown->actions().at(1)->menu();
    ASSERT_NE(lists, nullptr);
    EXPECT_EQ(textsOf(*lists), (QStringList{u"-A-"_s, u"-B-"_s, u"-C-"_s, u"-D-"_s, u"-E-"_s}));
    EXPECT_EQ(lists->actions().constLast()->objectName(), u"mnuANStatusACList(4)"_s);
}

TEST_F(MenuMirrorTest, WhatChangesWhileTheMenuIsOpenIsShown)
{
    MenuItem &item = form.menus.mnuPopUpANStatus.item("mnuANStatusKeepOnTop"_L1);
    item.setChecked(true);
    const auto shown = MenuMirror::mirrored(form.menus.mnuPopUpANStatus);
    const QAction *const action = actionOf(*shown, "mnuANStatusKeepOnTop");
    EXPECT_TRUE(action->isCheckable() && action->isChecked());
    item.setChecked(false);
    item.setEnabled(false);
    item.setCaption(u"Fish & chips"_s);
    EXPECT_FALSE(action->isChecked() || action->isEnabled());
    EXPECT_EQ(action->text(), u"Fish && chips"_s);
}

TEST_F(MenuMirrorTest, AnItemWithoutACaptionIsNotShown)
{
    const auto shown = MenuMirror::mirrored(form.menus.mnuPopUpSearchSites);
    EXPECT_FALSE(actionOf(*shown, "mnuSearchSitesA(0)")->isVisible());
    form.menus.mnuPopUpSearchSites.item("mnuSearchSitesA"_L1, 0).setCaption(u"Seek"_s);
    EXPECT_TRUE(actionOf(*shown, "mnuSearchSitesA(0)")->isVisible());
}

TEST_F(MenuMirrorTest, AChoiceWithTheKeyboardClicksTheItemOnceTheMenuHasClosed)
{
    menus.set(&window);
    MenuItem &item = form.menus.mnuPopUpPassUrls.item("mnuPUUnLoadPassUrls"_L1);
    Raised clicks(item, &MenuItem::Click);
    QWidget *openAtClick = &window;
    QObject::connect(&item, &MenuItem::Click, &form, [&] { openAtClick = QApplication::activePopupWidget(); });
    form.menus.mnuPopUpPassUrls.item("mnuPULoadPassUrls"_L1).setEnabled(false);
    menus.popUp(form.menus.mnuPopUpPassUrls);
    QWidget *const shown = QApplication::activePopupWidget();
    ASSERT_NE(shown, nullptr);
    QTest::keyClick(shown, Qt::Key_Down);
    if (qobject_cast<QMenu *>(shown)->activeAction()->objectName() == u"mnuPULoadPassUrls"_s)
        QTest::keyClick(shown, Qt::Key_Down);
    QTest::keyClick(shown, Qt::Key_Return);
    settle();
    EXPECT_EQ(clicks.times(), 1);
    EXPECT_EQ(openAtClick, nullptr);
}

TEST_F(MenuMirrorTest, WithoutAWindowNothingIsShown)
{
    menus.popUp(form.menus.mnuPopUpPassUrls);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}
