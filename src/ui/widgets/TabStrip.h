// The tabs of the main window, which are its title bar too: dragged, they move the window.
#pragma once

#include <QTabBar>

class TabStrip : public QTabBar
{
    Q_OBJECT

  public:
    explicit TabStrip(QWidget *parent = nullptr);

  protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    [[nodiscard]] QSize tabSizeHint(int index) const override;
    [[nodiscard]] QSize minimumTabSizeHint(int index) const override { return tabSizeHint(index); }

  private:
    void drag(QMouseEvent &event);

    enum class Drag { None, Ready, BySystem, ByUs };
    Drag mDrag = Drag::None;
    QPoint mGrabbed; ///< where the button went down, in the window
};
