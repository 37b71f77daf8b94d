#include "ui/pictures/PictureGoing.h"

#include <QPainter>
#include <QStyle>
#include <QVariantAnimation>

void PictureGoing::letGo(QWidget &view, Way way)
{
    delete view.findChild<PictureGoing *>(QString(), Qt::FindDirectChildrenOnly);
    if (view.isVisible() && view.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &view) > 0)
        new PictureGoing(view, way);
}

PictureGoing::PictureGoing(QWidget &view, Way way) : QWidget(&view), mPicture(view.grab()), mWay(way)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(view.rect());
    auto *const motion = new QVariantAnimation(this);
    motion->setDuration(milliseconds);
    motion->setStartValue(0.0);
    motion->setEndValue(1.0);
    connect(motion, &QVariantAnimation::valueChanged, this, [this](const QVariant &progress) {
        mProgress = progress.toDouble();
        update();
    });
    connect(motion, &QVariantAnimation::finished, this, &QObject::deleteLater);
    motion->start();
    show();
}

void PictureGoing::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (mWay == Way::Fade)
        painter.setOpacity(1 - mProgress);
    painter.drawPixmap(QPointF(mWay == Way::Slide ? mProgress * width() : 0, 0), mPicture);
}
