// The detached grid's window: the grid, or a list in its place, over the whole window. Escape closes it.
#pragma once

#include "app/frmfxg.h"
#include "ui/binding/Binder.h"

class GridWindow : public QWidget
{
    Q_OBJECT

  public:
    /// `form` outlives the window.
    GridWindow(frmfxg &form, QWidget *main);

  Q_SIGNALS:
    void closing();

  protected:
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

  private:
    frmfxg &mForm;
    Binder mBinder;
};
