#include "ui/pictures/ThumbnailDelegate.h"

#include <QIcon>
#include <QWidget>

ThumbnailDelegate::ThumbnailDelegate(std::function<QString(int row)> pathOf, QObject *parent)
    : QStyledItemDelegate(parent), mPathOf(std::move(pathOf)), mStore(new ThumbnailStore(this))
{
    connect(mStore, &ThumbnailStore::arrived, this, &ThumbnailDelegate::arrived);
}

QSize ThumbnailDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    constexpr int gap = 4;
    return {side + gap, side + gap};
}

void ThumbnailDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const double scale = option->widget == nullptr ? 1 : option->widget->devicePixelRatioF();
    const QPixmap pixmap = mStore->pixmap(mPathOf(index.row()), qRound(side * scale));
    option->features |= QStyleOptionViewItem::HasDecoration;
    option->decorationSize = {side, side};
    option->icon = pixmap.isNull() ? QIcon() : QIcon(pixmap);
}
