// What the Manual tab keeps over a start, an import and another database.
#include "ManualCommandsFixture.h"

using namespace Qt::StringLiterals;

namespace {
using ManualSideTest = ManualCommandsTest;
} // namespace

TEST_F(ManualSideTest, TheTabComesBackWithItsSettings)
{
    settings.preset("txtMNGenerateUrlA", u"www.a.com/7"_s);
    settings.preset("mnuMNUseAutoBase", u"1"_s);
    settings.preset("cboMNMCMNCFilter", u"tea"_s);
    settings.preset("cboMNMCMNC", u"1"_s);
    settings.preset("mnuMNLoadLinksIEUnique", u"True"_s);
    settings.preset("mnuMNStatusElongate", u"1"_s);
    program.reset();
    load();
    EXPECT_EQ(form().series.cboMNAutoUrl.text(), u"www.a.com/7"_s);
    EXPECT_TRUE(item("mnuMNUseAutoBase"_L1).isChecked());
    EXPECT_TRUE(item("mnuMNUseSiteData"_L1).isChecked());
    EXPECT_TRUE(item("mnuMNStatusElongate"_L1).isChecked());
    EXPECT_EQ(form().urlFilter.cboMNMCMNCFilter.text(), u"tea"_s);
    EXPECT_EQ(form().urlFilter.cboMNMCMNC.listIndex(), 1);
}

TEST_F(ManualSideTest, AFilterOfTheStartIsColouredAtTheFirstChange)
{
    settings.preset("cboMNMCMNCFilter", u"tea"_s);
    settings.preset("cboMNMCMNC", u"1"_s);
    program.reset();
    load();
    ComboBox &kind = form().urlFilter.cboMNMCMNC;
    EXPECT_EQ(kind.foreColor(), Colours::WindowText);
    EXPECT_EQ(form().urlFilter.cboMNMCMNCFilter.foreColor(), Colours::WindowText);
    kind.setListIndex(2);
    EXPECT_EQ(kind.foreColor(), Colours::Blue);
    EXPECT_EQ(form().urlFilter.cboMNMCMNCFilter.foreColor(), Colours::Blue);
}

TEST_F(ManualSideTest, AnImportThatLoadsTheDatabaseAnewLeavesTheTabAsItWas)
{
    click("mnuMNStatusElongate"_L1);
    form().urlFilter.cboMNMCMNCFilter.setText(u"tea"_s);
    form().urlFilter.cboMNMCMNC.setListIndex(2);
    form().mbFormReady = false;
    ASSERT_TRUE(program->loader.LoadDBData(false));
    form().mbFormReady = true;
    EXPECT_TRUE(item("mnuMNStatusElongate"_L1).isChecked());
    EXPECT_EQ(settings.of("mnuMNStatusElongate"), u"1"_s);
    EXPECT_EQ(form().urlFilter.cboMNMCMNCFilter.text(), u"tea"_s);
    EXPECT_EQ(form().urlFilter.cboMNMCMNC.listIndex(), 2);
}

TEST_F(ManualSideTest, AnotherDatabaseHasNoFilterInForce)
{
    ComboBox &filter = form().urlFilter.cboMNMCMNCFilter;
    filter.setText(u"tea"_s);
    form().urlFilter.cboMNMCMNC.setListIndex(1);
    ASSERT_EQ(filter.foreColor(), Colours::Blue);
    form().places.txtSFDBFile.setText(u"Other.mdb"_s);
    ASSERT_TRUE(program->loader.LoadDBData(true));
    EXPECT_EQ(filter.text(), QString());
    EXPECT_EQ(form().urlFilter.cboMNMCMNC.listIndex(), 0);
    EXPECT_EQ(filter.foreColor(), Colours::WindowText);
    EXPECT_EQ(settings.of("cboMNMCMNCFilter"), QString());
}
