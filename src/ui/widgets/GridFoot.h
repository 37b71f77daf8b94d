// The line below a grid: the number of the row in use, and the box to find a text. It comes and goes with its grid.
#pragma once

#include "ui/widgets/GridFind.h"
#include "ui/widgets/GridTable.h"

#include <QLabel>

class GridFoot : public QWidget
{
    Q_OBJECT

  public:
    /// `grid` outlives the foot.
    explicit GridFoot(GridTable &grid);

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    void showPlace();

    GridTable &mGrid;
    QLabel *mPlace;
    GridFind *mFind;
};
