// The built-in browser's window as the program has it: beside the main window at first, later where it was left.
#include "desktop/DesktopBrowsers.h"

#include "WindowFixture.h"
#include "app/SettingKeys.h"
#include "support/EnvironmentVariable.h"
#include "support/Fakes.h"

#include <QDir>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

struct BrowsersOfTheProgram : WindowFixture
{
    // The engine may still write into its folder, which then is not empty in the moment of its removal.
    BrowsersOfTheProgram() { folder.setAutoRemove(false); }
    ~BrowsersOfTheProgram() override { QDir(folder.path()).removeRecursively(); }

    /// A start of the program, as far as the browser's window goes: opens it, and gives its place.
    template <class Body> void withBrowserWindow(Body &&body)
    {
        DesktopBrowsers browsers({folder.path(), {}, true});
        browsers.standBeside(&window);
        browsers.keepPlaceIn(&settings);
        ASSERT_NE(browsers.internalBrowser(), nullptr);
        const QWidgetList all = QApplication::topLevelWidgets();
        const auto found = std::find_if(all.begin(), all.end(), [](const QWidget *widget) {
            return widget->objectName() == "frmWBare"_L1 && widget->isVisible();
        });
        ASSERT_NE(found, all.end());
        body(**found);
    }

    QTemporaryDir folder;
    const EnvironmentVariable home{"XDG_DATA_HOME", folder.path().toUtf8()};
    MemorySettings settings;
};

TEST_F(BrowsersOfTheProgram, ShowTheBuiltInOneBesideTheMainWindowAtFirst)
{
    withBrowserWindow([this](const QWidget &browser) {
        EXPECT_FALSE(settings.values.contains(u"frmWBare/"_s + Keys::Left));
        EXPECT_GT(browser.frameGeometry().right(), window.frameGeometry().right());
    });
}

TEST_F(BrowsersOfTheProgram, BringTheBuiltInOneBackToWhereItWasClosed)
{
    QRect place(60, 40, 520, 410);
    withBrowserWindow([&](QWidget &browser) {
        browser.setGeometry(place);
        settle();
        place = QRect(browser.pos(), browser.size());
        EXPECT_TRUE(browser.close());
        EXPECT_EQ(settings.GetSetting(u"frmWBare"_s, Keys::Left, {}), QString::number(browser.x() * 15)) << "in twips";
        settle();
    });
    withBrowserWindow([&](const QWidget &browser) {
        EXPECT_EQ(browser.pos(), place.topLeft());
        EXPECT_EQ(browser.size(), place.size());
    });
}
