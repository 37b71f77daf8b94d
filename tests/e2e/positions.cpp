// Prints where the widgets of the main window stand, as JSON of objectName to centre in the window's pixels: those of
// all tabs, each tab as "sstSearch(0)", and the items of the pop-up menus. The end-to-end tests click there; both
// programs lay the window out the same way on the same display.
#include "app/frmSearch.h"
#include "ui/binding/MenuMirror.h"
#include "ui/windows/MainWindow.h"
#include "window/options/OptionTable.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTabBar>
#include <cstdio>

namespace {
void note(QJsonObject &positions, const QWidget &window, const QWidget &widget, const QString &name, const QRect &rect)
{
    const QPoint centre = widget.mapTo(&window, rect.center());
    positions.insert(name, QJsonArray{centre.x(), centre.y(), rect.width(), rect.height()});
}

/// The middle of the widget is on show; a list is seen through its viewport.
bool isOnShow(const QWidget &widget)
{
    const auto *const area = qobject_cast<const QAbstractScrollArea *>(&widget);
    const QWidget &seen = area != nullptr ? *area->viewport() : widget;
    return seen.visibleRegion().contains(seen.rect().center());
}

/// What can be seen now and has not been noted yet.
void noteVisible(QJsonObject &positions, const QWidget &window)
{
    // Layouts within layouts settle one after the other.
    for (int turn = 0; turn < 4; ++turn)
        QApplication::processEvents();
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        const QString name = widget->objectName();
        if (name.isEmpty() || positions.contains(name) || !isOnShow(*widget))
            continue;
        note(positions, window, *widget, name, widget->rect());
        const auto *const tabs = qobject_cast<const QTabBar *>(widget);
        for (int i = 0; tabs != nullptr && i < tabs->count(); ++i)
            note(positions, window, *tabs, QStringLiteral("%1(%2)").arg(name).arg(i), tabs->tabRect(i));
    }
}

/// The items of a menu and of its sub-menus, each in the pixels of the pop-up that shows it, by their names.
void noteMenu(QJsonObject &positions, const QMenu &menu)
{
    for (QAction *const action : menu.actions()) {
        if (action->isSeparator())
            continue;
        const QRect rect = menu.actionGeometry(action);
        positions.insert(action->objectName(),
                         QJsonArray{rect.center().x(), rect.center().y(), rect.width(), rect.height()});
        if (action->menu() != nullptr)
            noteMenu(positions, *action->menu());
    }
}

/// Every one of `tabs`, and on each what `onTab` does.
template <class OnTab> void visit(TabControl &tabs, OnTab onTab)
{
    for (int tab = 0; tab < tabs.captions().size(); ++tab) {
        tabs.setTab(tab);
        onTab(tab);
    }
}
} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    const QApplication application(argc, argv);
    frmSearch form;
    for (const OptionRow &row : optionRows()) {
        if (!row.caption.isEmpty())
            form.control(row.control)->setCaption(row.caption);
    }
    MainWindow window(form);
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.takeUsualSize();
    window.show();
    QApplication::processEvents();
    QJsonObject positions;
    WindowFrame &frame = form.frame;
    const auto noteTab = [&](int) { noteVisible(positions, window); };
    visit(frame.sstSearch, noteTab);
    frame.sstSearch.setTab(Tab::Settings);
    visit(frame.sstSettings, noteTab);
    for (const auto &[outer, tabs] : {std::pair{Tab::Files, &frame.sstFiles}, {Tab::Misc, &frame.sstMiscOptions}}) {
        frame.sstSettings.setTab(outer);
        visit(*tabs, noteTab);
    }
    for (const Menu *const menu : form.findChildren<Menu *>())
        noteMenu(positions, *MenuMirror::mirrored(*menu, &window));
    std::puts(QJsonDocument(positions).toJson(QJsonDocument::Compact).constData());
    return 0;
}
