#include "cli/ControlSetter.h"

#include "util/Errors.h"

using namespace Qt::StringLiterals;

void setControl(frmSearch &form, const QString &name, const QString &value)
{
    const auto refuse = [&](const QString &reason) {
        throw RuntimeError(ErrorNumber::InvalidPropertyValue, u"--set %1: %2"_s.arg(name, reason));
    };
    Control *control = form.control(name);
    if (!control)
        refuse(u"there is no such control"_s);
    try {
        control->enter(value);
    } catch (const RuntimeError &error) {
        refuse(error.description());
    }
}
