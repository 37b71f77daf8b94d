#include "ui/widgets/ItemList.h"

#include "ui/look/Shades.h"

#include <QMouseEvent>
#include <QPainter>

ItemList::ItemList(QWidget *parent) : QListView(parent)
{
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideMiddle);
    setVerticalScrollMode(ScrollPerPixel);
    setViewportMargins(1, 2, 1, 2); // inside the frame's rounding
}

void ItemList::setEmptyText(const QString &text)
{
    mEmptyText = text;
    viewport()->update();
}

QSize ItemList::sizeHint() const
{
    return {160, 6 * qMax(23, fontMetrics().height() + 4) + 2 * frameWidth()};
}

void ItemList::paintEvent(QPaintEvent *event)
{
    QListView::paintEvent(event);
    if (mEmptyText.isEmpty() || model() == nullptr || model()->rowCount() > 0)
        return;
    QPainter painter(viewport());
    // It reads whether or not the list may be used now: it is what tells why it may not.
    painter.setPen(Shades::of(palette()).quiet);
    painter.drawText(viewport()->rect().adjusted(8, 6, -8, -6), Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap,
                     mEmptyText);
}

void ItemList::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::RightButton)
        QListView::mousePressEvent(event);
}

void ItemList::mouseMoveEvent(QMouseEvent *event)
{
    if (!event->buttons().testFlag(Qt::RightButton))
        QListView::mouseMoveEvent(event);
}
