#include "ui/widgets/PageScroller.h"

#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QScrollBar>

namespace {
constexpr int leastHeight = 84;
constexpr int aroundFocus = 12;
} // namespace

PageScroller::PageScroller(QWidget *parent) : QScrollArea(parent)
{
    setFrameShape(NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // The bar has its place in any case, where it is part of the margin; there is nothing to see of it unless it
    // scrolls.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setFocusPolicy(Qt::NoFocus);
    viewport()->setAutoFillBackground(false);
    connect(qApp, &QApplication::focusChanged, this, &PageScroller::showFocused);
}

QSize PageScroller::sizeHint() const
{
    const QSize sheet = widget() != nullptr ? widget()->sizeHint() : QScrollArea::sizeHint();
    return sheet + QSize(verticalScrollBar()->sizeHint().width(), 0);
}

QSize PageScroller::minimumSizeHint() const
{
    const int sheet = widget() != nullptr ? widget()->minimumSizeHint().width() : 0;
    return {sheet + verticalScrollBar()->sizeHint().width(), leastHeight};
}

bool PageScroller::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest)
        updateGeometry();
    const bool done = QScrollArea::eventFilter(watched, event);
    // A sheet that was resized while it was coming up has not laid itself out for that size.
    if (watched == widget() && event->type() == QEvent::Show && widget()->layout() != nullptr)
        widget()->layout()->setGeometry(widget()->contentsRect());
    return done;
}

void PageScroller::showFocused(const QWidget *, QWidget *now)
{
    if (now != nullptr && widget() != nullptr && widget()->isAncestorOf(now))
        ensureWidgetVisible(now, 0, aroundFocus);
}
