#include "ui/widgets/EdgeGrips.h"

#include <QMouseEvent>
#include <QWindow>

namespace {
constexpr int thickness = 4; // beside it a scroll bar can still be taken

struct EdgeRow
{
    Qt::Edges edges;
    Qt::CursorShape cursor;
};
/// The corners come last, so that they lie above the edges.
const EdgeRow edgeRows[] = {
    {Qt::LeftEdge, Qt::SizeHorCursor},
    {Qt::RightEdge, Qt::SizeHorCursor},
    {Qt::TopEdge, Qt::SizeVerCursor},
    {Qt::BottomEdge, Qt::SizeVerCursor},
    {Qt::LeftEdge | Qt::TopEdge, Qt::SizeFDiagCursor},
    {Qt::RightEdge | Qt::BottomEdge, Qt::SizeFDiagCursor},
    {Qt::RightEdge | Qt::TopEdge, Qt::SizeBDiagCursor},
    {Qt::LeftEdge | Qt::BottomEdge, Qt::SizeBDiagCursor},
};
} // namespace

void EdgeGrip::putOn(QWidget &window)
{
    for (const EdgeRow &row : edgeRows)
        (new EdgeGrip(row.edges, window))->setCursor(row.cursor);
}

EdgeGrip::EdgeGrip(Qt::Edges edges, QWidget &window) : QWidget(&window), mEdges(edges)
{
    window.installEventFilter(this);
    place();
}

void EdgeGrip::place()
{
    const QRect whole = parentWidget()->rect();
    QRect strip = whole;
    if (mEdges.testFlag(Qt::LeftEdge))
        strip.setRight(whole.left() + thickness - 1);
    if (mEdges.testFlag(Qt::RightEdge))
        strip.setLeft(whole.right() - thickness + 1);
    if (mEdges.testFlag(Qt::TopEdge))
        strip.setBottom(whole.top() + thickness - 1);
    if (mEdges.testFlag(Qt::BottomEdge))
        strip.setTop(whole.bottom() - thickness + 1);
    setGeometry(strip);
    raise();
}

bool EdgeGrip::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        place();
    return QWidget::eventFilter(watched, event);
}

void EdgeGrip::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return event->ignore();
    QWindow *const handle = window()->windowHandle();
    if (handle != nullptr && handle->startSystemResize(mEdges))
        return;
    mPressed = event->globalPosition().toPoint();
    mBefore = window()->geometry();
}

void EdgeGrip::mouseMoveEvent(QMouseEvent *event)
{
    if (mBefore.isEmpty())
        return;
    const QPoint moved = event->globalPosition().toPoint() - mPressed;
    const QSize least = window()->minimumSizeHint().expandedTo(window()->minimumSize());
    QRect place = mBefore;
    if (mEdges.testFlag(Qt::LeftEdge))
        place.setLeft(qMin(place.left() + moved.x(), place.right() + 1 - least.width()));
    if (mEdges.testFlag(Qt::TopEdge))
        place.setTop(qMin(place.top() + moved.y(), place.bottom() + 1 - least.height()));
    if (mEdges.testFlag(Qt::RightEdge))
        place.setWidth(qMax(place.width() + moved.x(), least.width()));
    if (mEdges.testFlag(Qt::BottomEdge))
        place.setHeight(qMax(place.height() + moved.y(), least.height()));
    window()->setGeometry(place);
}

void EdgeGrip::mouseReleaseEvent(QMouseEvent *)
{
    mBefore = {};
}
