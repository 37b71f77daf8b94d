#include "ui/look/Icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>
#include <cmath>

using namespace Qt::StringLiterals;

// Outside any namespace, as the resource compiler's macro wants it. Without the call a static library leaves them out.
static void initResources()
{
    Q_INIT_RESOURCE(ui);
}

namespace {
QString pathOf(const QString &name)
{
    [[maybe_unused]] static const bool there = (initResources(), true);
    return u":/ui/icons/"_s + name + u".svg"_s;
}

QPixmap drawn(const QString &name, QSize size, const QColor &ink)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    QSvgRenderer(pathOf(name)).render(&painter);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), ink);
    return pixmap;
}

class InkedEngine : public QIconEngine
{
  public:
    /// Without a valid `ink` the palette's text colour is taken.
    explicit InkedEngine(QString name, const QColor &ink = {}) : mName(std::move(name)), mInk(ink) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        Icons::paint(*painter, rect, mName, ink(mode));
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State) override { return drawn(mName, size, ink(mode)); }
    [[nodiscard]] QIconEngine *clone() const override { return new InkedEngine(mName, mInk); }

  private:
    [[nodiscard]] QColor ink(QIcon::Mode mode) const
    {
        if (mInk.isValid())
            return mInk;
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        return QGuiApplication::palette().color(group, QPalette::ButtonText);
    }

    QString mName;
    QColor mInk;
};
} // namespace

QIcon Icons::inked(const QString &name)
{
    return QFile::exists(pathOf(name)) ? QIcon(new InkedEngine(name)) : QIcon();
}

QIcon Icons::inked(const QString &name, const QColor &ink)
{
    return QIcon(new InkedEngine(name, ink));
}

void Icons::paint(QPainter &painter, const QRectF &rect, const QString &name, const QColor &ink)
{
    const double ratio = painter.device()->devicePixelRatioF();
    QPixmap pixmap = drawn(
        name,
        QSize(static_cast<int>(std::ceil(rect.width() * ratio)), static_cast<int>(std::ceil(rect.height() * ratio))),
        ink);
    pixmap.setDevicePixelRatio(ratio);
    painter.drawPixmap(rect.topLeft(), pixmap);
}

QIcon Icons::application()
{
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        QSvgRenderer(pathOf(u"trawlex"_s)).render(&painter);
        icon.addPixmap(pixmap);
    }
    return icon;
}
