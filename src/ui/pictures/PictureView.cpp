#include "ui/pictures/PictureView.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

namespace {
// The same in light and dark: a picture is judged on a dark ground.
constexpr QColor ground(0x1c, 0x1c, 0x1e);
constexpr QColor quietText(0xb4, 0xb4, 0xb8);
constexpr int textMargin = 24;
} // namespace

PictureView::PictureView(QWidget *parent) : QScrollArea(parent), mCanvas(new QWidget)
{
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setAlignment(Qt::AlignCenter);
    QPalette dark = palette();
    dark.setColor(QPalette::Window, ground);
    viewport()->setPalette(dark);
    viewport()->setAutoFillBackground(true);
    mCanvas->setPalette(dark);
    mCanvas->installEventFilter(this);
    setWidget(mCanvas);
    arrange();
}

PictureView::~PictureView() = default;

void PictureView::showPicture(const Picture &picture, const QString &path)
{
    mMovie.reset();
    mPicture = picture;
    mReason.clear();
    if (picture.moves) {
        mMovie = std::make_unique<QMovie>(path, "gif");
        connect(mMovie.get(), &QMovie::frameChanged, mCanvas, qOverload<>(&QWidget::update));
        mMovie->start();
    }
    arrange();
}

void PictureView::refuse(const QString &reason)
{
    mMovie.reset();
    mPicture = {};
    mReason = reason;
    arrange();
}

void PictureView::setActualSize(bool actual)
{
    mActualSize = actual;
    arrange();
}

QImage PictureView::current() const
{
    const QImage frame = mMovie ? mMovie->currentImage() : QImage();
    return frame.isNull() ? mPicture.image : frame;
}

QSize PictureView::wholeSize() const
{
    return (QSizeF(mPicture.size) / devicePixelRatioF()).toSize();
}

QSize PictureView::drawnSize() const
{
    const QSize whole = wholeSize(), room = viewport()->size();
    const bool fits = whole.width() <= room.width() && whole.height() <= room.height();
    return mActualSize || fits ? whole : whole.scaled(room, Qt::KeepAspectRatio);
}

void PictureView::arrange()
{
    mCanvas->resize(mActualSize && mReason.isEmpty() ? drawnSize().expandedTo(viewport()->size()) : viewport()->size());
    mCanvas->setCursor(mCanvas->size() == viewport()->size() ? Qt::ArrowCursor : Qt::OpenHandCursor);
    mCanvas->update();
}

void PictureView::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    arrange();
}

void PictureView::paintPicture()
{
    QPainter painter(mCanvas);
    painter.fillRect(mCanvas->rect(), ground);
    if (!mReason.isEmpty()) {
        painter.setPen(quietText);
        const QRect room = mCanvas->rect().adjusted(textMargin, textMargin, -textMargin, -textMargin);
        painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, mReason);
        return;
    }
    QRect place(QPoint(), drawnSize());
    place.moveCenter(mCanvas->rect().center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, current());
}

void PictureView::drag(const QPoint &to)
{
    const QPoint moved = to - mDraggedFrom;
    mDraggedFrom = to;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - moved.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() - moved.y());
}

bool PictureView::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != mCanvas)
        return QScrollArea::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::Paint:
        paintPicture();
        return true;
    case QEvent::MouseButtonPress:
        mDraggedFrom = static_cast<QMouseEvent *>(event)->globalPosition().toPoint();
        return false;
    case QEvent::MouseMove:
        drag(static_cast<QMouseEvent *>(event)->globalPosition().toPoint());
        return true;
    case QEvent::MouseButtonDblClick:
        Q_EMIT doubleClicked();
        return true;
    default:
        return QScrollArea::eventFilter(watched, event);
    }
}
