// The side windows as the program has them: each once, over the main window, the magnifier where it was left.
#include "desktop/DesktopSideWindows.h"

#include "WindowFixture.h"
#include "app/SettingKeys.h"
#include "support/Fakes.h"
#include "support/Places.h"

#include <QFileInfo>
#include <QPushButton>

using namespace Qt::StringLiterals;

struct SideWindowsOfTheProgram : WindowFixture
{
    SideWindowsOfTheProgram() { side.set(&window); }
    template <class Kind> Kind *shown() { return window.findChild<Kind *>(); }
    /// Lets what was closed go.
    template <class Kind> bool isGone()
    {
        return QTest::qWaitFor([this] { return shown<Kind>() == nullptr; }, 2000);
    }

    MemorySettings settings;
    FakeDesktop desktop;
    DesktopSideWindows side{settings, desktop};
};

TEST_F(SideWindowsOfTheProgram, AreNotShownWithoutAMainWindow)
{
    side.set(nullptr);
    side.magnify(u"a"_s);
    side.showAbout();
    EXPECT_FALSE(side.chooseDirectory(QString(), [](const QString &) { FAIL(); }));
    EXPECT_EQ(shown<MagnifyWindow>(), nullptr);
    EXPECT_EQ(shown<AboutWindow>(), nullptr);
}

TEST_F(SideWindowsOfTheProgram, MagnifyInOneWindowThatIsKeptOnTop)
{
    side.magnify(u"a\r\nb"_s);
    side.magnify(u"c"_s);
    EXPECT_EQ(window.findChildren<MagnifyWindow *>().size(), 1);
    EXPECT_TRUE(shown<MagnifyWindow>()->isVisible());
    EXPECT_TRUE(shown<MagnifyWindow>()->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_EQ(settings.values.value(u"Window Position/frmMagnify"_s), u"1"_s);
}

TEST_F(SideWindowsOfTheProgram, BringTheMagnifierBackToItsPlaceWhereThatIsWanted)
{
    for (const bool wanted : {true, false}) {
        settings.SaveSetting(Sections::Main, Keys::KeepMagnifyPlace, wanted ? u"1"_s : u"0"_s);
        side.magnify(u"a"_s);
        const QPoint place(60, 40);
        shown<MagnifyWindow>()->move(place);
        shown<MagnifyWindow>()->resize(300, shown<MagnifyWindow>()->height());
        settle();
        shown<MagnifyWindow>()->close();
        ASSERT_TRUE(isGone<MagnifyWindow>());
        EXPECT_FALSE(settings.GetSetting(u"frmMagnify"_s, Keys::Left, QString()).isEmpty()) << "stored in any case";
        side.magnify(u"b"_s);
        EXPECT_EQ(shown<MagnifyWindow>()->pos() == place, wanted);
        EXPECT_EQ(shown<MagnifyWindow>()->width() == 300, wanted);
        shown<MagnifyWindow>()->close();
        ASSERT_TRUE(isGone<MagnifyWindow>());
    }
}

TEST_F(SideWindowsOfTheProgram, ShowOneAboutWindowThatLeadsToTheManual)
{
    side.showAbout();
    side.showAbout();
    EXPECT_EQ(window.findChildren<AboutWindow *>().size(), 1);
    Q_EMIT shown<AboutWindow>()->helpRequested();
    ASSERT_EQ(desktop.opened.size(), 1);
    EXPECT_TRUE(desktop.opened.first().endsWith(u"/manual/index.html"_s));
    EXPECT_TRUE(QFileInfo::exists(desktop.opened.first()));
}

TEST_F(SideWindowsOfTheProgram, BringTheAboutWindowBackToItsPlace)
{
    const QPoint place(60, 40);
    side.showAbout();
    shown<AboutWindow>()->move(place);
    settle();
    shown<AboutWindow>()->close();
    ASSERT_TRUE(isGone<AboutWindow>());
    side.showAbout();
    EXPECT_EQ(shown<AboutWindow>()->pos(), place);
}

TEST_F(SideWindowsOfTheProgram, ChooseOneDirectoryAtATime)
{
    QStringList choices;
    const auto note = [&choices](const QString &directory) { choices.append(directory); };
    EXPECT_TRUE(side.chooseDirectory(u"/"_s, note));
    EXPECT_FALSE(side.chooseDirectory(u"/tmp"_s, note)) << "one is open";
    EXPECT_EQ(window.findChildren<DirectoryWindow *>().size(), 1);
    shown<DirectoryWindow>()->findChild<QPushButton *>(u"cmdDirList_0"_s)->click();
    EXPECT_EQ(choices, QStringList{u"/"_s});
    EXPECT_TRUE(side.chooseDirectory(u"/"_s, note)) << "the next one";
}
