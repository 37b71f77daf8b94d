#include "ui/widgets/GridTable.h"

#include "ui/look/Shades.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QPainter>

namespace {
constexpr int leastRow = 24;
}

GridTable::GridTable(QWidget *parent) : QTableView(parent), mPlace(new QLabel(this)), mFind(new GridFind(*this))
{
    addScrollBarWidget(mPlace, Qt::AlignLeft);
    addScrollBarWidget(mFind, Qt::AlignLeft);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    mPlace->setObjectName(QStringLiteral("gridPlace"));
    mPlace->setMargin(2);
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
    const bool inSelection = selectionModel() != nullptr && selectionModel()->isSelected(indexAt(event->pos()));
    if (event->button() != Qt::RightButton || !inSelection)
        QTableView::mousePressEvent(event);
}

void GridTable::setModel(QAbstractItemModel *model)
{
    QTableView::setModel(model);
    if (model != nullptr)
        connect(model, &QAbstractItemModel::modelReset, this, &GridTable::showPlace);
    showPlace();
}

void GridTable::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTableView::currentChanged(current, previous);
    showPlace();
}

/// "3 of 1,000,000", and nothing where there are no rows.
void GridTable::showPlace()
{
    const int rows = model() == nullptr ? 0 : model()->rowCount();
    const int row = currentIndex().row() + 1;
    mPlace->setText(rows == 0 ? QString() : tr("%L1 of %L2").arg(row).arg(rows));
}
