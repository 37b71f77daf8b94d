#include "controls/Control.h"

Control::Control(const QString &name, QObject *parent, const QString &caption) : QObject(parent), mCaption(caption)
{
    setObjectName(name);
}
