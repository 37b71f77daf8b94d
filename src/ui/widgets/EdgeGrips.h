// The edges and corners of a window without a frame: dragged, they change its size. Where the desktop cannot do that
// for us, the window goes along with the pointer.
#pragma once

#include <QWidget>

class EdgeGrip : public QWidget
{
    Q_OBJECT

  public:
    /// Puts a grip on each edge and corner of `window`; they belong to it.
    static void putOn(QWidget &window);

    EdgeGrip(Qt::Edges edges, QWidget &window);
    [[nodiscard]] Qt::Edges edges() const { return mEdges; }

  protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    void place();

    Qt::Edges mEdges;
    QPoint mPressed;
    QRect mBefore; ///< the window's place when the drag began; empty without one of our own
};
