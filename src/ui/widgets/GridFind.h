// A box in which a text is looked for in the cells of a grid, however long they are, from the cell in use on and around
// the end. It looks in small portions, so that a million rows hold nothing up. Return goes on to the next cell, with
// Shift back.
#pragma once

#include <QLineEdit>
#include <QTableView>
#include <QTimer>

class GridFind : public QLineEdit
{
    Q_OBJECT

  public:
    GridFind(QTableView &grid, QWidget *parent);

    [[nodiscard]] bool isLooking() const { return mTurn.isActive(); }

  Q_SIGNALS:
    /// The cell has been made the one in use, or there is none.
    void ended(bool found);

  protected:
    void keyPressEvent(QKeyEvent *event) override;

  private:
    void begin(int step);
    void look();
    void end(bool found);
    [[nodiscard]] qint64 cells() const;

    QTableView &mGrid;
    QTimer mTurn;
    qint64 mCell = 0, mLeft = 0;
    int mStep = 1;
};
