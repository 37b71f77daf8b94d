// Draws a list of pictures with a small one before each name.
#pragma once

#include "ui/pictures/ThumbnailStore.h"

#include <QStyledItemDelegate>

class ThumbnailDelegate : public QStyledItemDelegate
{
    Q_OBJECT

  public:
    static constexpr int side = 56;

    /// `pathOf` gives the file of a row.
    ThumbnailDelegate(std::function<QString(int row)> pathOf, QObject *parent);

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

  Q_SIGNALS:
    /// One more can be drawn.
    void arrived();

  protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

  private:
    std::function<QString(int row)> mPathOf;
    ThumbnailStore *mStore;
};
