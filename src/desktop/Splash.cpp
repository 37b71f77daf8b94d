#include "desktop/Splash.h"

#include "ui/look/Icons.h"
#include "ui/look/Shades.h"
#include "ui/look/Theme.h"

#include <QApplication>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {
constexpr QSize splashSize(360, 132);
constexpr int margin = 32;
constexpr int iconSize = 60;
constexpr int accentHeight = 3;

/// In the colours of the window that follows.
QPixmap ground()
{
    Theme::of(*qApp);
    const qreal scale = qApp->devicePixelRatio();
    QPixmap pixmap(splashSize * scale);
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(Shades::of(QApplication::palette()).panel);
    return pixmap;
}
} // namespace

Splash::Splash() : QSplashScreen(ground()) {}

void Splash::drawContents(QPainter *painter)
{
    const Shades shades = Shades::of(QApplication::palette());
    const QRect area(QPoint(0, 0), splashSize);
    painter->setPen(shades.edge);
    painter->drawRect(area.adjusted(0, 0, -1, -1));
    painter->fillRect(QRect(0, area.height() - accentHeight, area.width(), accentHeight), shades.accent);
    const QPixmap icon = Icons::application().pixmap(QSize(iconSize, iconSize), devicePixelRatioF());
    painter->drawPixmap(margin, (area.height() - iconSize) / 2, icon);
    QFont font = painter->font();
    font.setPointSizeF(font.pointSizeF() * 2);
    font.setBold(true);
    painter->setFont(font);
    painter->setPen(shades.text);
    const QString version = QCoreApplication::applicationVersion().section(u'.', 0, 1);
    painter->drawText(area.adjusted(margin + iconSize + margin / 2, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft,
                      "Trawlex v"_L1 + version);
}
