// Prints where the widgets of the main window stand, as JSON of objectName to centre in the window's pixels. The
// end-to-end tests click there; both programs lay the window out the same way on the same display.
#include "app/frmSearch.h"
#include "ui/windows/MainWindow.h"

#include <QApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cstdio>

int main(int argc, char *argv[])
{
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    const QApplication application(argc, argv);
    frmSearch form;
    MainWindow window(form);
    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.takeUsualSize();
    window.show();
    QApplication::processEvents();
    QJsonObject positions;
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        if (widget->objectName().isEmpty() || !widget->isVisible())
            continue;
        const QPoint centre = widget->mapTo(&window, widget->rect().center());
        positions.insert(widget->objectName(), QJsonArray{centre.x(), centre.y(), widget->width(), widget->height()});
    }
    std::puts(QJsonDocument(positions).toJson(QJsonDocument::Compact).constData());
    return 0;
}
