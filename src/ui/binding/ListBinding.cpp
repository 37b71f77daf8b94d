#include "ui/binding/Bindings.h"
#include "ui/widgets/ItemList.h"
#include "ui/widgets/TextListModel.h"

#include <QItemSelectionModel>

namespace {
/// Carries selection and focus between a list control and its view. A user's choice comes from the view in several
/// signals; the control gets it as one, from the event loop, when all of them have come.
class SelectionLink : public QObject
{
  public:
    SelectionLink(ListBox &control, ItemList &view)
        : QObject(&view), mControl(control), mView(view), mDesigned(view.emptyText())
    {
        mModel = new TextListModel(this);
        mView.setModel(mModel);
        const auto userChose = [this] {
            if (mShowing || mPending)
                return;
            mPending = true;
            QMetaObject::invokeMethod(
                this, [this] { deliver(); }, Qt::QueuedConnection);
        };
        connect(mView.selectionModel(), &QItemSelectionModel::selectionChanged, this, userChose);
        connect(mView.selectionModel(), &QItemSelectionModel::currentChanged, this, userChose);
    }

    void show()
    {
        deliver();
        mShowing = true;
        mModel->setTexts(mControl.items());
        mView.setEmptyText(mControl.emptyText().isEmpty() ? mDesigned : mControl.emptyText());
        showSelection();
        mShowing = false;
    }

  private:
    void deliver()
    {
        if (!mPending)
            return;
        mPending = false;
        if (!mControl.isEnabled() || mModel->rowCount() != mControl.listCount())
            return; // the list changed under the user's hand; what is shown next is what holds
        std::vector<bool> chosen(static_cast<std::size_t>(mControl.listCount()));
        for (const QItemSelectionRange &range : mView.selectionModel()->selection())
            std::fill(chosen.begin() + range.top(), chosen.begin() + range.bottom() + 1, true);
        mControl.choose(mView.currentIndex().row(), chosen);
        mControl.endChoice();
    }

    void showSelection()
    {
        QItemSelection wanted;
        int first = -1;
        for (int row = 0; row < mControl.listCount(); ++row) {
            if (!mControl.isSelected(row))
                continue;
            int last = row;
            while (mControl.isSelected(last + 1))
                ++last;
            wanted.append(QItemSelectionRange(mModel->index(row), mModel->index(last)));
            first = first < 0 ? row : first;
            row = last;
        }
        QItemSelectionModel &selection = *mView.selectionModel();
        const bool moved = selection.selection() != wanted;
        if (moved)
            selection.select(wanted, QItemSelectionModel::ClearAndSelect);
        if (selection.currentIndex().row() != mControl.listIndex())
            selection.setCurrentIndex(mModel->index(mControl.listIndex()), QItemSelectionModel::NoUpdate);
        if (moved && first >= 0)
            mView.scrollTo(mModel->index(first));
    }

    ListBox &mControl;
    ItemList &mView;
    QString mDesigned;
    TextListModel *mModel;
    bool mShowing = false, mPending = false;
};
} // namespace

Bindings::Bound Bindings::bind(ListBox &control, ItemList &widget)
{
    auto *const link = new SelectionLink(control, widget);
    return {[link] { link->show(); }, ReturnKey::DoubleClicks};
}
