#include "ui/widgets/TextListModel.h"

#include <algorithm>

void TextListModel::setTexts(const QStringList &texts)
{
    if (texts == mTexts)
        return;
    const bool longer = texts.size() > mTexts.size() && std::equal(mTexts.begin(), mTexts.end(), texts.begin());
    if (longer) {
        beginInsertRows({}, static_cast<int>(mTexts.size()), static_cast<int>(texts.size()) - 1);
        mTexts = texts;
        endInsertRows();
    } else {
        beginResetModel();
        mTexts = texts;
        endResetModel();
    }
}

int TextListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(mTexts.size());
}

QVariant TextListModel::data(const QModelIndex &index, int role) const
{
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        return mTexts.value(index.row());
    return {};
}
