// Brings rows into a grid. Rows that take long to find come in portions, one a turn of the event loop; sorted ones come
// together, and until then the grid keeps what it shows. What is shown next drops what is still coming.
#pragma once

#include "controls/Grid.h"
#include "util/Errors.h"

#include <QTimer>

class GridFilling : public QObject
{
    Q_OBJECT

  public:
    /// Both outlive it.
    GridFilling(ErrorReceiver &log, Grid &grid);

    /// What is found soon is in the grid when this returns.
    void show(std::shared_ptr<const GridRows> rows);
    /// The grid keeps what it shows.
    void drop();
    /// Rows are on their way, none of which is on show.
    [[nodiscard]] bool isWaiting() const { return mComing != nullptr && !isShown(); }

  Q_SIGNALS:
    /// The grid has other rows.
    void shown();
    /// The grid has all of its rows.
    void complete();
    /// They take long.
    void delayed();
    /// An error has come between; no more are coming.
    void failed();

  private:
    void goOn(int milliseconds);
    [[nodiscard]] bool isShown() const { return mGrid.dataSource() == mComing; }

    ErrorReceiver &mLog;
    Grid &mGrid;
    QTimer mTurn;
    std::shared_ptr<const GridRows> mComing;
};
