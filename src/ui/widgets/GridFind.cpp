#include "ui/widgets/GridFind.h"

#include "ui/widgets/GridModel.h"

#include <QElapsedTimer>
#include <QKeyEvent>

namespace {
constexpr qint64 portion = 20; // milliseconds
constexpr int boxWidth = 130;
} // namespace

GridFind::GridFind(QTableView &grid, QWidget *parent) : QLineEdit(parent), mGrid(grid)
{
    setPlaceholderText(tr("Find"));
    setAccessibleName(tr("Find in the cells"));
    setToolTip(tr("A text somewhere in the cells. Return: the next one; Shift+Return: the one before"));
    setClearButtonEnabled(true);
    setFixedWidth(boxWidth);
    connect(&mTurn, &QTimer::timeout, this, &GridFind::look);
    connect(this, &QLineEdit::textChanged, &mTurn, &QTimer::stop);
}

qint64 GridFind::cells() const
{
    const QAbstractItemModel *const model = mGrid.model();
    return model == nullptr ? 0 : qint64(model->rowCount()) * model->columnCount();
}

void GridFind::keyPressEvent(QKeyEvent *event)
{
    const bool goes = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (goes)
        begin(event->modifiers() & Qt::ShiftModifier ? -1 : 1);
    else if (event->key() == Qt::Key_Escape && isLooking())
        end(false);
    else
        QLineEdit::keyPressEvent(event);
}

void GridFind::begin(int step)
{
    mLeft = text().isEmpty() ? 0 : cells();
    mStep = step;
    const QModelIndex current = mGrid.currentIndex();
    mCell = current.isValid() ? qint64(current.row()) * mGrid.model()->columnCount() + current.column() : -1;
    mTurn.start(0);
}

void GridFind::look()
{
    const qint64 all = cells();
    QElapsedTimer time;
    time.start();
    for (; mLeft > 0 && all > 0 && time.elapsed() < portion; --mLeft) {
        mCell = (mCell + mStep + all) % all;
        const int columns = mGrid.model()->columnCount();
        const QModelIndex index = mGrid.model()->index(int(mCell / columns), int(mCell % columns));
        if (!index.data(GridModel::WholeText).toString().contains(text(), Qt::CaseInsensitive))
            continue;
        mGrid.setCurrentIndex(index);
        mGrid.scrollTo(index);
        return end(true);
    }
    if (mLeft == 0 || all == 0)
        end(false);
}

void GridFind::end(bool found)
{
    mTurn.stop();
    Q_EMIT ended(found);
}
