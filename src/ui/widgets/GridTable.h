// The view of a grid: one block of cells may be selected, long texts lose their middle, the right mouse button leaves a
// selection that it lies in as it is, a press beside the cells leaves every selection. Empty, it says in grey what
// belongs there.
#pragma once

#include <QTableView>

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

  Q_SIGNALS:
    /// Another row is the one in use, or there are other rows.
    void placeMoved();
    /// The key for copying: what is selected is meant, whole, not the cell as it is shown.
    void copyPressed();

  protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

  private:
    QString mEmptyText;
};
