// The view of a grid: one block of cells may be selected, long texts lose their middle, the right mouse button leaves a
// selection that it lies in as it is. Empty, it says in grey what belongs there. At its foot stand the number of the
// row in use and a box to find a text.
#pragma once

#include "ui/widgets/GridFind.h"

#include <QLabel>

class GridTable : public QTableView
{
    Q_OBJECT
    Q_PROPERTY(QString emptyText READ emptyText WRITE setEmptyText)

  public:
    explicit GridTable(QWidget *parent = nullptr);

    [[nodiscard]] const QString &emptyText() const { return mEmptyText; }
    void setEmptyText(const QString &text);
    [[nodiscard]] QSize minimumSizeHint() const override { return {160, 84}; }
    void setModel(QAbstractItemModel *model) override;
    /// Typing letters looks for nothing: it would read all rows at once.
    void keyboardSearch(const QString &) override {}

  protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

  private:
    void showPlace();

    QLabel *mPlace;
    GridFind *mFind;
    QString mEmptyText;
};
