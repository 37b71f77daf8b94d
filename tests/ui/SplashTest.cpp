// The window of the start: the name, the version as far as it is told, the colours of the window that follows.
#include "desktop/Splash.h"

#include "ui/look/Shades.h"
#include "ui/look/Theme.h"

#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using Mode = Theme::Mode;

namespace {
class SplashTest : public testing::Test
{
  protected:
    ~SplashTest() override
    {
        QApplication::setApplicationVersion(version);
        Theme::of(*qApp).setMode(Mode::Desktop);
    }
    static QImage shown(const QString &ofVersion)
    {
        QApplication::setApplicationVersion(ofVersion);
        Splash splash;
        splash.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&splash));
        return splash.grab().toImage();
    }
    /// The last column between the frame's edges in which something is drawn above the foot.
    static int lastDrawn(const QImage &image)
    {
        for (int x = image.width() - 2; x > 0; --x) {
            for (int y = 2; y < image.height() - 5; ++y) {
                if (image.pixel(x, y) != image.pixel(x, 1))
                    return x;
            }
        }
        return 0;
    }

    const QString version = QApplication::applicationVersion();
};
} // namespace

TEST_F(SplashTest, ShowsMajorAndMinorNumberOfTheVersionAlone)
{
    const QImage image = shown(u"3.7.1"_s);
    EXPECT_EQ(image, shown(u"3.7.25"_s));
    EXPECT_NE(image, shown(u"3.8.1"_s));
    EXPECT_NE(image, shown(u"4.7.1"_s));
}

TEST_F(SplashTest, HasRoomForALongVersion)
{
    const QImage image = shown(u"88.88.1"_s);
    EXPECT_GT(lastDrawn(image), lastDrawn(shown(u"88.8.1"_s)));
    EXPECT_LT(lastDrawn(image), image.width() - 12);
}

TEST_F(SplashTest, HasTheColoursOfTheWindowThatFollows)
{
    for (const Mode mode : {Mode::Light, Mode::Dark}) {
        Theme::of(*qApp).setMode(mode);
        const QImage image = shown(u"0.1.0"_s);
        const Shades shades = Shades::of(Theme::palette(mode));
        EXPECT_EQ(image.pixel(4, 4), shades.panel.rgb());
        EXPECT_EQ(image.pixel(image.width() / 2, image.height() - 2), shades.accent.rgb());
    }
}
