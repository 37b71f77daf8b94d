// What the window program adds to the windows themselves: the main window's place in the pixels of other programs, and
// the detached grid, made when it is wanted.
#include "desktop/DesktopGridWindow.h"
#include "desktop/MainWindowPlace.h"

#include "WindowFixture.h"
#include "support/EnvironmentVariable.h"
#include "support/Fakes.h"

using namespace Qt::StringLiterals;

struct MainWindowPlaces : WindowFixture
{
    MainWindowPlaces() { place.set(&window); }
    MainWindowPlace place;
};

TEST_F(MainWindowPlaces, WithoutAWindowThereIsNone)
{
    place.set(nullptr);
    EXPECT_TRUE(place.place().isNull());
    EXPECT_TRUE(place.screen().isNull());
    place.moveTo({1, 2, 3, 4});
    place.putOnTop(true);
    place.minimize();
}

TEST_F(MainWindowPlaces, AreThoseOfTheWindow)
{
    place.moveTo({40, 30, 7, 7});
    settle();
    EXPECT_EQ(window.pos(), QPoint(40, 30));
    EXPECT_EQ(place.place(), window.geometry()) << "moved and not resized";
    EXPECT_EQ(place.screen(), window.screen()->availableGeometry());
}

TEST_F(MainWindowPlaces, CountThePixelsThatTheBrowserBesideItCounts)
{
    const QRect ours(40, 30, window.width(), window.height());
    window.setGeometry(ours);
    settle();
    const EnvironmentVariable scale("QT_SCALE_FACTOR", "2");
    EXPECT_EQ(place.place(), QRect(ours.topLeft() * 2, ours.size() * 2));
    place.moveTo({100, 60, 7, 7});
    settle();
    EXPECT_EQ(window.pos(), QPoint(50, 30));
}

TEST_F(MainWindowPlaces, ASizeIsTakenAsFarAsTheScreenHasTheRoom)
{
    place.sizeTo({10'000, 10'000});
    settle();
    const QSize screen = window.screen()->availableSize();
    EXPECT_LE(window.width(), screen.width());
    EXPECT_LE(window.height(), screen.height());
    EXPECT_GE(window.height(), screen.height() / 2);
}

struct DesktopGrids : WindowFixture
{
    [[nodiscard]] GridWindow *shown() { return window.findChild<GridWindow *>(); }

    MemorySettings settings;
    frmfxg grid;
    DesktopGridWindow desktop{grid, settings, window};
};

TEST_F(DesktopGrids, AreMadeWhenTheyAreWantedAndOnce)
{
    EXPECT_EQ(shown(), nullptr);
    grid.show();
    ASSERT_NE(shown(), nullptr);
    EXPECT_TRUE(shown()->isVisible());
    grid.show();
    EXPECT_EQ(window.findChildren<GridWindow *>().size(), 1);
}

TEST_F(DesktopGrids, ClosedByTheUserAreUnloadedAndComeBackToTheirPlace)
{
    grid.show();
    const QRect place(60, 40, 500, 300);
    shown()->setGeometry(place);
    settle();
    shown()->close();
    EXPECT_FALSE(grid.isOpen());
    ASSERT_TRUE(QTest::qWaitFor([this] { return shown() == nullptr; }, 2000));
    EXPECT_FALSE(settings.values.isEmpty());
    grid.show();
    ASSERT_NE(shown(), nullptr);
    EXPECT_EQ(shown()->geometry(), place);
}

TEST_F(DesktopGrids, UnloadedByTheProgramAreClosed)
{
    grid.show();
    grid.unload();
    EXPECT_TRUE(QTest::qWaitFor([this] { return shown() == nullptr; }, 2000));
}
