// The window of the built-in browser as the rest of the program sees it. Knows no engine.
#pragma once

#include <QWidget>

class BrowserWindow : public QWidget
{
    Q_OBJECT

  public:
    using QWidget::QWidget;

    /// Takes the room at the right side of `main`, as far as the screen has any.
    virtual void placeBeside(const QWidget &main) = 0;

  Q_SIGNALS:
    /// The user, or the end of the program, closes the window; it still stands where it was.
    void closing();
};
