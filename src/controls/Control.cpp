#include "controls/Control.h"

#include "util/Errors.h"

using namespace Qt::StringLiterals;

Control::Control(const QString &name, QObject *parent, const QString &caption) : QObject(parent), mCaption(caption)
{
    setObjectName(name);
}

void Control::restore(const QString &)
{
    throw RuntimeError(ErrorNumber::InvalidPropertyValue, u"Invalid property value"_s);
}

void Control::enter(const QString &)
{
    refuse(u"this control has no value"_s);
}

void Control::refuse(const QString &reason)
{
    throw RuntimeError(ErrorNumber::InvalidPropertyValue, reason);
}

int Control::wholeNumber(const QString &text)
{
    bool converts = false;
    const int number = text.toInt(&converts);
    if (!converts)
        throw RuntimeError(ErrorNumber::TypeMismatch, u"Type mismatch"_s);
    return number;
}
