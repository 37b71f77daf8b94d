#include "ui/widgets/DropDown.h"

#include <QKeyEvent>
#include <QWheelEvent>

void DropDown::showPopup()
{
    Q_EMIT opening();
    QComboBox::showPopup();
}

void DropDown::keyPressEvent(QKeyEvent *event)
{
    // A letter with Alt is the key of a control that may be disabled now; it is no search in this list.
    if (event->modifiers().testFlag(Qt::AltModifier) && !event->text().isEmpty())
        return event->ignore();
    QComboBox::keyPressEvent(event);
}

void DropDown::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}
