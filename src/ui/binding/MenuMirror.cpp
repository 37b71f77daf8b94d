#include "ui/binding/MenuMirror.h"

#include "ui/look/Style.h"

#include <QApplication>
#include <QCursor>

using namespace Qt::StringLiterals;

namespace {
/// An ampersand in a caption is a character like any other.
QString withoutMnemonic(QString caption)
{
    return caption.replace(u'&', u"&&"_s);
}

void show(const MenuItem &item, QAction &action)
{
    action.setText(withoutMnemonic(item.caption()));
    action.setEnabled(item.isEnabled());
    action.setVisible(item.isVisible() && !item.caption().isEmpty());
    action.setCheckable(item.isChecked());
    action.setChecked(item.isChecked());
}

void fill(QMenu &shown, const Menu &menu, const QString &parentItem)
{
    for (MenuItem *const item : menu.children(parentItem)) {
        if (item->isSeparator()) {
            shown.addSeparator();
            continue;
        }
        const bool opens = !menu.children(item->name()).empty();
        QAction *const action = opens ? shown.addMenu(QString())->menuAction() : shown.addAction(QString());
        action->setObjectName(item->name());
        show(*item, *action);
        QObject::connect(item, &Control::changed, action, [item, action] { show(*item, *action); });
        if (opens)
            fill(*action->menu(), menu, item->name());
        else
            QObject::connect(action, &QAction::triggered, item, &MenuItem::click, Qt::QueuedConnection);
    }
}
} // namespace

std::unique_ptr<QMenu> MenuMirror::mirrored(const Menu &menu, QWidget *parent)
{
    auto shown = std::make_unique<QMenu>(parent);
    shown->setObjectName(menu.name());
    fill(*shown, menu, {});
    return shown;
}

QPoint QtMenus::whereTheUserIs() const
{
    const QWidget *const focused = QApplication::focusWidget();
    // With the keyboard in use, the pointer may lie anywhere.
    if (focused == nullptr || !mWindow->testAttribute(Qt::WA_KeyboardFocusChange))
        return QCursor::pos();
    return focused->mapToGlobal(QPoint(0, qMin(focused->height(), 2 * Style::rowHeight)));
}

void QtMenus::show(Menu &menu)
{
    if (mWindow == nullptr)
        return;
    QMenu *const shown = MenuMirror::mirrored(menu, mWindow).release();
    shown->setAttribute(Qt::WA_DeleteOnClose);
    shown->popup(whereTheUserIs());
}
