#include "app/StatusLine.h"

using namespace Qt::StringLiterals;

const QString StatusLine::standardTip =
    u"Double clicking the status bar on different tabs performs different functions"_s;

void StatusLine::UpDateStatus(const QString &text, const QString &tip)
{
    if (!text.isEmpty())
        mForm.frame.picStatus.print(text + "..."_L1);
    mForm.frame.picStatus.setToolTipText(mForm.options.chkSMV(0).value() == 1 ? tip : QString());
    if (!text.isEmpty())
        Q_EMIT told(text);
}
