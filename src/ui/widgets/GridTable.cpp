#include "ui/widgets/GridTable.h"

#include "ui/look/Shades.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QPainter>

namespace {
constexpr int leastRow = 24;
}

GridTable::GridTable(QWidget *parent) : QTableView(parent)
{
    setSelectionMode(ContiguousSelection);
    setEditTriggers(NoEditTriggers);
    setTextElideMode(Qt::ElideMiddle);
    setWordWrap(false);
    setShowGrid(false);
    setAlternatingRowColors(true);
    setCornerButtonEnabled(false);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(ScrollPerPixel);
    // Rows are all alike, so that none of them has to be read before it is looked at.
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(qMax(leastRow, fontMetrics().height() + 6));
    verticalHeader()->hide();
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setFocusPolicy(Qt::NoFocus);
}

void GridTable::setEmptyText(const QString &text)
{
    mEmptyText = text;
    viewport()->update();
}

void GridTable::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    if (mEmptyText.isEmpty() || (model() != nullptr && model()->columnCount() > 0))
        return;
    QPainter painter(viewport());
    painter.setPen(Shades::of(palette()).quiet);
    painter.drawText(viewport()->rect().adjusted(8, 6, -8, -6), Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap,
                     mEmptyText);
}

void GridTable::mousePressEvent(QMouseEvent *event)
{
    const QModelIndex pressed = indexAt(event->pos());
    if (!pressed.isValid())
        return; // below the last row there is nothing to choose: what is chosen stays
    const bool inSelection = selectionModel()->isSelected(pressed);
    if (event->button() != Qt::RightButton || !inSelection)
        QTableView::mousePressEvent(event);
}

void GridTable::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy))
        Q_EMIT copyPressed();
    else
        QTableView::keyPressEvent(event);
}

void GridTable::setModel(QAbstractItemModel *model)
{
    QTableView::setModel(model);
    if (model != nullptr) {
        connect(model, &QAbstractItemModel::modelReset, this, &GridTable::placeMoved);
        connect(model, &QAbstractItemModel::rowsInserted, this, &GridTable::placeMoved);
    }
    Q_EMIT placeMoved();
}

void GridTable::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTableView::currentChanged(current, previous);
    Q_EMIT placeMoved();
}
