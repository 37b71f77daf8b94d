#include "desktop/Splash.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

using namespace Qt::StringLiterals;

namespace {
constexpr QSize splashSize(360, 160);

QPixmap ground()
{
    const qreal scale = qGuiApp->devicePixelRatio();
    QPixmap pixmap(splashSize * scale);
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(QGuiApplication::palette().color(QPalette::Window));
    return pixmap;
}
} // namespace

Splash::Splash() : QSplashScreen(ground()) {}

void Splash::drawContents(QPainter *painter)
{
    const QPalette colours = QGuiApplication::palette();
    const QRect area(QPoint(0, 0), splashSize);
    painter->setPen(colours.color(QPalette::Mid));
    painter->drawRect(area.adjusted(0, 0, -1, -1));
    QFont font = painter->font();
    font.setPointSize(20);
    font.setBold(true);
    painter->setFont(font);
    painter->setPen(colours.color(QPalette::WindowText));
    const QString version = QCoreApplication::applicationVersion().section(u'.', 0, 1);
    painter->drawText(area, Qt::AlignCenter, "Trawlex v"_L1 + version);
}
