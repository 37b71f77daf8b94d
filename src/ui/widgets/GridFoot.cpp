#include "ui/widgets/GridFoot.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QShortcut>

using namespace Qt::StringLiterals;

GridFoot::GridFoot(GridTable &grid)
    : QWidget(grid.parentWidget()), mGrid(grid), mPlace(new QLabel(this)), mFind(new GridFind(grid, this))
{
    mPlace->setObjectName(u"gridPlace"_s);
    mFind->setObjectName(u"gridFind"_s);
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(4, 0, 0, 0);
    layout->addWidget(mPlace);
    layout->addStretch();
    layout->addWidget(mFind);
    auto *const findKey = new QShortcut(QKeySequence::Find, &grid);
    findKey->setContext(Qt::WidgetShortcut);
    connect(findKey, &QShortcut::activated, mFind, qOverload<>(&QWidget::setFocus));
    connect(&grid, &GridTable::placeMoved, this, &GridFoot::showPlace);
    grid.installEventFilter(this);
    setVisible(!grid.isHidden());
    showPlace();
}

bool GridFoot::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent)
        setVisible(event->type() == QEvent::ShowToParent);
    return QWidget::eventFilter(watched, event);
}

/// "3 of 1,000,000", and nothing where there are no rows.
void GridFoot::showPlace()
{
    const int rows = mGrid.model() == nullptr ? 0 : mGrid.model()->rowCount();
    const int row = mGrid.currentIndex().row() + 1;
    mPlace->setText(rows == 0 ? QString() : tr("%L1 of %L2").arg(row).arg(rows));
    mFind->setEnabled(rows > 0);
}
