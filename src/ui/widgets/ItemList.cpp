#include "ui/widgets/ItemList.h"

#include "ui/look/Shades.h"
#include "ui/widgets/AddressDelegate.h"

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

void ItemList::setAddresses(bool addresses)
{
    mAddresses = addresses;
    setItemDelegate(addresses ? new AddressDelegate(this) : new QStyledItemDelegate(this));
}

int ItemList::rowsHigh(int rows) const
{
    return rows * qMax(23, fontMetrics().height() + 4) + 2 * frameWidth() + 4;
}

QSize ItemList::minimumSizeHint() const
{
    return {80, rowsHigh(3)};
}

QSize ItemList::sizeHint() const
{
    return {160, rowsHigh(6)};
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
