// Shows menus: any tree becomes a QMenu, made anew each time it opens. Knows controls.
#pragma once

#include "app/Ports.h"

#include <QMenu>
#include <memory>

namespace MenuMirror {
/// A menu that looks like `menu` and follows each change of its items; what the user chooses is clicked there once this
/// menu has closed. An item without a caption is not shown.
[[nodiscard]] std::unique_ptr<QMenu> mirrored(const Menu &menu, QWidget *parent = nullptr);
} // namespace MenuMirror

class QtMenus : public PopUpMenus
{
  public:
    /// The menus belong to `window`; without one (null) nothing is shown.
    void set(QWidget *window) { mWindow = window; }

  protected:
    void show(Menu &menu) override;

  private:
    /// The pointer, or the widget with the focus while the user works with the keyboard.
    [[nodiscard]] QPoint whereTheUserIs() const;

    QWidget *mWindow = nullptr;
};
