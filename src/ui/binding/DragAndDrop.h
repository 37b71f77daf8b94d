// What is dragged onto a widget and off it. A widget with the property "takesDrops" takes text, and the paths of files,
// for its control; dragging with the right button offers what the control has to offer.
#pragma once

#include "controls/Control.h"

#include <QMimeData>
#include <QPoint>
#include <QWidget>

class DragAndDrop : public QObject
{
    Q_OBJECT

  public:
    static constexpr const char *takesDropsProperty = "takesDrops";

    /// Lives as long as `widget`.
    DragAndDrop(Control &control, QWidget &widget);
    /// The text of what is dragged: paths of files one a line, else its text; "" without either.
    [[nodiscard]] static QString textOf(const QMimeData &data);

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    bool dragged(QDropEvent &event);
    bool dropped(QDropEvent &event);
    void offer(QWidget &source);

    Control &mControl;
    QPoint mPressed; ///< where the right button went down, on the screen
    bool mTakes;
};
