#include "ui/binding/Bindings.h"
#include "ui/widgets/GridModel.h"
#include "ui/widgets/GridTable.h"

#include <QItemSelectionModel>

namespace {
constexpr int twipsPerPixel = 15;
/// The widths are made for a font whose digits are so wide.
constexpr double toldDigit = 5.5;
constexpr int usualColumn = 110;

/// Carries cells, widths and selection between a grid control and its view.
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
    }

    void show()
    {
        mShowing = true;
        if (mModel.source() != mControl.dataSource()) {
            mModel.setRows(mControl.dataSource());
            mWidths.assign(static_cast<std::size_t>(mControl.cols()), -2);
        }
        showWidths();
        showSelection();
        mShowing = false;
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
    bool mShowing = false;
};
} // namespace

Bindings::Bound Bindings::bind(Grid &control, GridTable &widget)
{
    auto *const link = new GridLink(control, widget);
    return {[link] { link->show(); }, ReturnKey::DoubleClicks};
}
