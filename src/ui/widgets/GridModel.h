// The cells of a grid control for the view. It holds no cell: the control's source is read for what is on show.
#pragma once

#include "controls/Grid.h"

#include <QAbstractTableModel>

class GridModel : public QAbstractTableModel
{
    Q_OBJECT

  public:
    /// Longer texts, such as whole pages, are cut here for the eye.
    static constexpr int longestShown = 300;
    /// The role of a cell's text as it is, however long.
    static constexpr int WholeText = Qt::UserRole;

    using QAbstractTableModel::QAbstractTableModel;

    void setRows(std::shared_ptr<const GridRows> rows);
    /// The rows may have become more.
    void grow();
    [[nodiscard]] const std::shared_ptr<const GridRows> &source() const { return mRows; }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// Numbers and dates, which stand at the right of their column.
    [[nodiscard]] static bool isFigure(const QString &text);

  private:
    std::shared_ptr<const GridRows> mRows;
    QStringList mHeads;
    int mCount = 0;
};
