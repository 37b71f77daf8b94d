// Long addresses, to be read: each line of a text large in a box of its own, over the full width of the screen, above
// all other windows. A double click or Escape closes the window.
#pragma once

#include <QWidget>

class QLineEdit;
class QVBoxLayout;

class MagnifyWindow : public QWidget
{
    Q_OBJECT

  public:
    static constexpr int mostLines = 20;

    explicit MagnifyWindow(QWidget *main);

    /// At most 20 lines of it, parted by CR LF.
    void Magnify(const QString &text);
    /// The place where it opens when none is kept: as wide as the screen, directly under `main`.
    void placeUnder(const QWidget &main);

  Q_SIGNALS:
    void closing();

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

  private:
    QLineEdit *newBox();

    QVBoxLayout *mBoxes;
    QList<QLineEdit *> txtMagnify;
};
