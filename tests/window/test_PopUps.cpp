// Pop-up menus open with a browser alone.
#include "window/commands/PopUps.h"

#include "app/frmSearch.h"
#include "support/Fakes.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
struct PopUpsTest : testing::Test
{
    frmSearch form;
    Tips tips{form.options.chkSMV(0)};
    StatusLine status{form.frame.picStatus, tips};
    FakeMenus menus;
    PopUps popUps{form.browser, status, menus};
};
} // namespace

TEST_F(PopUpsTest, WithoutABrowserTheStatusTellsSo)
{
    popUps.ShowPopUp(form.menus.mnuPopUpMN);
    EXPECT_TRUE(menus.shown.isEmpty());
    EXPECT_EQ(form.frame.picStatus.printed(), u"Not initialized..."_s);
}

TEST_F(PopUpsTest, AMenuIsMadeReadyBeforeItShows)
{
    form.browser.mbInitialized = true;
    QStringList events;
    QObject::connect(&form.menus.mnuPopUpMN, &Menu::aboutToShow, &form, [&] { events.append(u"ready"_s); });
    menus.choice = [&](Menu &) { events.append(u"shown"_s); };
    popUps.ShowPopUp(form.menus.mnuPopUpMN);
    EXPECT_EQ(menus.shown, QStringList{u"mnuPopUpMN"_s});
    EXPECT_EQ(events, (QStringList{u"ready"_s, u"shown"_s}));
    EXPECT_TRUE(form.frame.picStatus.printed().isEmpty());
}

TEST_F(PopUpsTest, ADisabledMenuStaysClosed)
{
    form.browser.mbInitialized = true;
    form.menus.mnuPopUpPassUrls.setEnabled(false);
    popUps.ShowPopUp(form.menus.mnuPopUpPassUrls);
    EXPECT_TRUE(menus.shown.isEmpty());
}
