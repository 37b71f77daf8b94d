#include "ui/widgets/GridModel.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

void GridModel::setRows(std::shared_ptr<const GridRows> rows)
{
    beginResetModel();
    mRows = std::move(rows);
    mHeads = mRows ? mRows->heads() : QStringList();
    mCount = mRows ? mRows->rowCount() : 0;
    endResetModel();
}

void GridModel::grow()
{
    const int count = mRows ? mRows->rowCount() : 0;
    if (count <= mCount)
        return;
    beginInsertRows({}, mCount, count - 1);
    mCount = count;
    endInsertRows();
}

int GridModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : mCount;
}

int GridModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(mHeads.size());
}

bool GridModel::isFigure(const QString &text)
{
    static const QRegularExpression figure(u"^[+-]?[0-9][0-9.,:/ -]*$"_s);
    return figure.match(text).hasMatch();
}

QVariant GridModel::data(const QModelIndex &index, int role) const
{
    if (role == WholeText)
        return mRows ? mRows->wholeText(index.row(), index.column()) : QString();
    if (role != Qt::DisplayRole && role != Qt::TextAlignmentRole)
        return {};
    const QString text = mRows ? mRows->text(index.row(), index.column()) : QString();
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(Qt::AlignVCenter | (isFigure(text) ? Qt::AlignRight : Qt::AlignLeft));
    return text.size() > longestShown ? QString(text.left(longestShown) + u'…') : text;
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role == Qt::DisplayRole && orientation == Qt::Horizontal)
        return mHeads.value(section);
    return {};
}
