#include "ui/binding/DragAndDrop.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QComboBox>
#include <QDrag>
#include <QDropEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QUrl>

#include <algorithm>

DragAndDrop::DragAndDrop(Control &control, QWidget &widget)
    : QObject(&widget), mControl(control), mTakes(widget.property(takesDropsProperty).toBool())
{
    widget.installEventFilter(this);
    auto *const area = qobject_cast<QAbstractScrollArea *>(&widget);
    if (area != nullptr)
        area->viewport()->installEventFilter(this);
    // The line inside a combo would take a drop into its text.
    if (const auto *const combo = qobject_cast<QComboBox *>(&widget); combo != nullptr && combo->isEditable())
        combo->lineEdit()->installEventFilter(this);
    if (!mTakes)
        return;
    widget.setAcceptDrops(true);
    if (area != nullptr)
        area->viewport()->setAcceptDrops(true);
}

QString DragAndDrop::textOf(const QMimeData &data)
{
    const QList<QUrl> urls = data.urls();
    const bool files =
        !urls.isEmpty() && std::all_of(urls.begin(), urls.end(), [](const QUrl &url) { return url.isLocalFile(); });
    if (!files)
        return data.text();
    QStringList paths;
    for (const QUrl &url : urls)
        paths.append(url.toLocalFile());
    return paths.join(u'\n');
}

bool DragAndDrop::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
        return mTakes && dragged(static_cast<QDropEvent &>(*event));
    case QEvent::Drop:
        return mTakes && dropped(static_cast<QDropEvent &>(*event));
    case QEvent::MouseButtonPress:
        mPressed = static_cast<QMouseEvent *>(event)->globalPosition().toPoint();
        return false;
    case QEvent::MouseMove: {
        const auto &mouse = static_cast<QMouseEvent &>(*event);
        const int way = (mouse.globalPosition().toPoint() - mPressed).manhattanLength();
        if (mouse.buttons() == Qt::RightButton && way >= QApplication::startDragDistance())
            offer(*static_cast<QWidget *>(watched));
        return false;
    }
    default:
        return false;
    }
}

/// Text is taken as a copy, anything else not at all.
bool DragAndDrop::dragged(QDropEvent &event)
{
    event.setDropAction(Qt::CopyAction);
    event.setAccepted(mControl.isEnabled() && !textOf(*event.mimeData()).isEmpty());
    return true;
}

bool DragAndDrop::dropped(QDropEvent &event)
{
    dragged(event);
    if (event.isAccepted())
        mControl.dropText(textOf(*event.mimeData()));
    return true;
}

void DragAndDrop::offer(QWidget &source)
{
    const QString text = mControl.textToDrag();
    if (text.isEmpty())
        return;
    auto *const drag = new QDrag(&source);
    auto *const data = new QMimeData;
    data->setText(text);
    drag->setMimeData(data);
    drag->exec(Qt::CopyAction);
}
