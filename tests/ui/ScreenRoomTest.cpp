// Windows come up whole within the screen's room, at every scale.
#include "ui/windows/ScreenRoom.h"

#include "WindowFixture.h"
#include "desktop/KeptPlace.h"
#include "support/Fakes.h"
#include "ui/windows/AboutWindow.h"
#include "ui/windows/DirectoryWindow.h"
#include "ui/windows/GridWindow.h"
#include "ui/windows/MagnifyWindow.h"
#include "ui/windows/PictureWindow.h"
#include "window/WindowPlaces.h"

#include <QLayout>
#include <QPushButton>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace {
/// What a frame takes of the smallest screen at most.
constexpr QSize frame(8, 40);

/// The room of a screen in our pixels, with a panel at its upper or lower edge, or without.
QList<QRect> rooms()
{
    QList<QRect> all;
    for (const QSize screen : {QSize(1366, 768), QSize(1920, 1080)}) {
        for (const double scale : {1.0, 1.5, 2.0, 3.0}) {
            const QRect whole(QPoint(0, 0), screen / scale);
            all << whole << whole.adjusted(0, 30, 0, 0) << whole.adjusted(0, 0, 0, -30) << whole.translated(1920, 0);
        }
    }
    return all;
}

std::string told(const QRect &rect)
{
    return qPrintable(u"%1,%2 %3x%4"_s.arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height()));
}
} // namespace

TEST(ScreenRooms, HoldEveryFrameWhereverItIsWanted)
{
    for (const QRect &room : rooms()) {
        for (const QSize size : {QSize(300, 200), QSize(700, 500), QSize(4000, 3000)}) {
            for (const QPoint corner : {QPoint(0, 0), QPoint(-50, -200), QPoint(5000, 5000), QPoint(100, 40)}) {
                const QRect placed = ScreenRoom::within(room, QRect(corner, size));
                EXPECT_TRUE(room.contains(placed)) << told(placed) << " in " << told(room);
                EXPECT_EQ(placed.size(), size.boundedTo(room.size()));
            }
        }
    }
}

TEST(ScreenRooms, LeaveAFrameThatLiesInThemWhereItIs)
{
    const QRect room(0, 30, 1920, 1050);
    for (const QRect &frame : {QRect(0, 30, 400, 300), QRect(1520, 780, 400, 300), room})
        EXPECT_EQ(ScreenRoom::within(room, frame), frame);
}

struct SideWindowsOnScreens : WindowFixture
{
    /// Every side window, as large as it likes to be.
    template <class Body> void forEach(Body &&body)
    {
        auto *const about = new AboutWindow(&window);
        body(*about);
        about->findChild<QPushButton *>(u"cmdSysInFo"_s)->click();
        body(*about);
        body(*new DirectoryWindow(&window));
        MagnifyWindow magnifier(&window);
        magnifier.Magnify(QStringList(MagnifyWindow::mostLines, u"line"_s).join(u"\r\n"_s));
        body(magnifier);
        frmfxg detached;
        GridWindow grid(detached, nullptr);
        body(grid);
        frmFoto foto;
        PictureWindow pictures(foto);
        body(pictures);
    }
};

TEST_F(SideWindowsOnScreens, StandWholeInEveryRoom)
{
    forEach([](QWidget &side) {
        side.show();
        settle();
        for (const QRect &room : rooms()) {
            for (const QPoint corner : {QPoint(-30, -30), QPoint(5000, 5000)}) {
                side.resize(1600, 1200);
                ScreenRoom::place(side, corner, room);
                settle();
                EXPECT_TRUE(room.contains(side.frameGeometry()))
                    << side.objectName().toStdString() << ": " << told(side.frameGeometry()) << " in " << told(room);
            }
        }
    });
}

TEST_F(SideWindowsOnScreens, LeaveRoomForTheirFramesOnTheSmallestOne)
{
    forEach([](QWidget &side) {
        side.layout()->activate();
        const QSize least = side.minimumSize().expandedTo(side.minimumSizeHint()) + frame;
        EXPECT_LE(least.width(), 1366 / 3) << side.objectName().toStdString();
        EXPECT_LE(least.height(), 768 / 3) << side.objectName().toStdString();
    });
}

TEST_F(SideWindowsOnScreens, ComeUpWithTheirTitleBarOnItBeforeTheirFramesAreKnown)
{
    MemorySettings settings;
    QWidget side;
    side.setObjectName("frmSide"_L1);
    const QRect room = window.screen()->availableGeometry();
    side.resize(room.size());
    KeptPlace::restore(side, settings, window);
    EXPECT_GE(side.y(), room.top());
    EXPECT_TRUE(room.contains(QRect(side.pos(), side.size() + frame)));
}

TEST_F(SideWindowsOnScreens, ComeBackToThePlaceOfTheirFrames)
{
    MemorySettings settings;
    const QPoint place(60, 50);
    for (int round = 0; round < 3; ++round) {
        QWidget side;
        side.setObjectName("frmSide"_L1);
        side.resize(200, 100);
        if (round > 0)
            KeptPlace::restore(side, settings, window);
        side.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&side));
        if (round == 0)
            side.move(place);
        settle();
        EXPECT_EQ(side.pos(), place) << "they do not wander";
        KeptPlace::store(side, settings);
    }
}
