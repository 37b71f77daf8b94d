#include "controls/Control.h"

#include "util/Errors.h"

Control::Control(const QString &name, QObject *parent, const QString &caption) : QObject(parent), mCaption(caption)
{
    setObjectName(name);
}

void Control::restore(const QString &)
{
    throw RuntimeError(ErrorNumber::InvalidPropertyValue, QStringLiteral("Invalid property value"));
}

void Control::enter(const QString &)
{
    refuse(QStringLiteral("this control has no value"));
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
        throw RuntimeError(ErrorNumber::TypeMismatch, QStringLiteral("Type mismatch"));
    return number;
}
