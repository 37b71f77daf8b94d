#include "ui/widgets/DropDown.h"

#include <QWheelEvent>

void DropDown::showPopup()
{
    Q_EMIT opening();
    QComboBox::showPopup();
}

void DropDown::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}
