// Where the user is, as a path of captions through the nested tabs.
#include "window/commands/TabsInForce.h"

#include "app/frmSearch.h"
#include "util/QtPrint.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
struct PathCase
{
    int search, settings, files, misc;
    QStringList path;
};
} // namespace

TEST(TabsInForce, AreThePathToTheInnermostTab)
{
    const PathCase rows[] = {
        {Tab::Auto, Tab::Misc, Tab::Import, Tab::Sites, {u"Auto"_s}},
        {Tab::Manual, Tab::Blocking, 0, 0, {u"Manual"_s}},
        {Tab::Data, Tab::Files, 0, 0, {u"Data"_s}},
        {Tab::Settings, Tab::Blocking, Tab::Import, Tab::View, {u"Settings"_s, u"Blocking"_s}},
        {Tab::Settings, Tab::Files, Tab::Directory, Tab::View, {u"Settings"_s, u"Files"_s, u"Directory"_s}},
        {Tab::Settings, Tab::Files, Tab::Import, Tab::View, {u"Settings"_s, u"Files"_s, u"Import"_s}},
        {Tab::Settings, Tab::Misc, Tab::Import, Tab::AutoAndManual, {u"Settings"_s, u"Misc"_s, u"A-M"_s}},
        {Tab::Settings, Tab::Misc, Tab::Import, Tab::Save, {u"Settings"_s, u"Misc"_s, u"Save"_s}},
        {Tab::Settings, Tab::Misc, Tab::Import, Tab::View, {u"Settings"_s, u"Misc"_s, u"View"_s}},
        {Tab::Settings, Tab::Misc, Tab::Import, Tab::Sites, {u"Settings"_s, u"Misc"_s, u"Sites"_s}},
    };
    frmSearch form;
    for (const PathCase &row : rows) {
        form.frame.sstSearch.setTab(row.search);
        form.frame.sstSettings.setTab(row.settings);
        form.frame.sstFiles.setTab(row.files);
        form.frame.sstMiscOptions.setTab(row.misc);
        EXPECT_EQ(TabsInForce::path(form.frame), row.path);
    }
}

TEST(TabsInForce, OfTheSettingsAreToldFromOtherTabsToo)
{
    frmSearch form;
    form.frame.sstSearch.setTab(Tab::Auto);
    form.frame.sstSettings.setTab(Tab::Files);
    form.frame.sstFiles.setTab(Tab::Import);
    EXPECT_EQ(TabsInForce::settingsPath(form.frame), (QStringList{u"Settings"_s, u"Files"_s, u"Import"_s}));
}
