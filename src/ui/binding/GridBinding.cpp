#include "ui/binding/Bindings.h"
#include "ui/widgets/CardView.h"
#include "ui/widgets/GridModel.h"
#include "ui/widgets/GridTable.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QMouseEvent>

namespace {
constexpr int twipsPerPixel = 15;
/// The widths are made for a font whose digits are so wide.
constexpr double toldDigit = 5.5;
constexpr int usualColumn = 110;

/// Carries cells, widths, order and selection between a grid control and its view.
class GridLink : public QObject
{
  public:
    GridLink(Grid &control, GridTable &view) : QObject(&view), mControl(control), mView(view), mModel(this)
    {
        mView.setModel(&mModel);
        const auto userChose = [this] {
            if (!mShowing)
                deliver();
        };
        connect(mView.selectionModel(), &QItemSelectionModel::selectionChanged, this, userChose);
        connect(mView.selectionModel(), &QItemSelectionModel::currentChanged, this, userChose);
        connect(&mView, &GridTable::copyPressed, &mControl, &Grid::askForCopy);
        const auto clickHead = [this](int column) {
            if (mControl.isEnabled())
                mControl.clickHead(column);
            showSortMark(); // the head has turned its own
        };
        // The second one of two quick clicks is a click too.
        for (const auto click : {&QHeaderView::sectionClicked, &QHeaderView::sectionDoubleClicked})
            connect(mView.horizontalHeader(), click, this, clickHead);
    }

    void show()
    {
        // The filter that was put on last is asked first.
        if (!std::exchange(mFirst, true))
            mView.viewport()->installEventFilter(this);
        mShowing = true;
        if (mModel.source() != mControl.dataSource()) {
            mModel.setRows(mControl.dataSource());
            mWidths.assign(static_cast<std::size_t>(mControl.cols()), -2);
        }
        mModel.grow();
        showWidths();
        showSelection();
        showSortMark();
        mShowing = false;
    }

  protected:
    /// The cell under the right button is the one in use before anybody hears of the button.
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::MouseButtonPress) {
            const auto &press = static_cast<const QMouseEvent &>(*event);
            const QModelIndex index = mView.indexAt(press.pos());
            if (press.button() == Qt::RightButton && index.isValid() && !mView.selectionModel()->isSelected(index))
                mView.setCurrentIndex(index);
        }
        return QObject::eventFilter(watched, event);
    }

  private:
    /// A width that the logic has not set anew stays as the user has dragged it.
    void showWidths()
    {
        for (int column = 0; column < mControl.cols(); ++column) {
            const int twips = mControl.colWidth(column);
            if (std::exchange(mWidths[static_cast<std::size_t>(column)], twips) != twips)
                mView.setColumnWidth(column, twips < 0 ? usualColumn : pixels(twips));
        }
    }

    [[nodiscard]] int pixels(int twips) const
    {
        const double scale = qMax(1.0, mView.fontMetrics().horizontalAdvance(u'0') / toldDigit);
        return static_cast<int>(scale * twips / twipsPerPixel);
    }

    void showSelection()
    {
        const CellBlock &block = mControl.selection();
        QItemSelection wanted;
        if (!block.isEmpty())
            wanted.select(mModel.index(block.top, block.left), mModel.index(block.bottom, block.right));
        QItemSelectionModel &selection = *mView.selectionModel();
        const QModelIndex current = mModel.index(mControl.row(), mControl.col());
        if (selection.currentIndex() != current)
            selection.setCurrentIndex(current, QItemSelectionModel::NoUpdate);
        if (selection.selection() != wanted)
            selection.select(wanted, QItemSelectionModel::ClearAndSelect);
    }

    void showSortMark()
    {
        const SortMark mark = mControl.sortMark();
        mView.horizontalHeader()->setSectionsClickable(mControl.canSort());
        mView.horizontalHeader()->setSortIndicatorShown(mark.column >= 0);
        mView.horizontalHeader()->setSortIndicator(mark.column, mark.order);
    }

    void deliver()
    {
        if (!mControl.isEnabled())
            return;
        CellBlock block;
        const QItemSelection &ranges = mView.selectionModel()->selection();
        if (!ranges.isEmpty())
            block = {ranges.first().top(), ranges.first().left(), ranges.first().bottom(), ranges.first().right()};
        const QModelIndex current = mView.currentIndex();
        mControl.select(current.row(), current.column(), block);
    }

    Grid &mControl;
    GridTable &mView;
    GridModel mModel;
    std::vector<int> mWidths;
    bool mShowing = false, mFirst = false;
};
} // namespace

Bindings::Bound Bindings::bind(Grid &control, GridTable &widget)
{
    auto *const link = new GridLink(control, widget);
    return {[link] { link->show(); }, ReturnKey::DoubleClicks};
}

Bindings::Bound Bindings::bind(Card &control, CardView &widget)
{
    QObject::connect(&widget, &CardView::addressClicked, &control, &Card::follow);
    return {[&control, &widget] { widget.setContent(control.content()); }};
}
