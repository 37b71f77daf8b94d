#include "app/StatusLine.h"

using namespace Qt::StringLiterals;

const QString StatusLine::standardTip =
    u"Double clicking the status bar on different tabs performs different functions"_s;

void StatusLine::UpDateStatus(const QString &text, const QString &tip)
{
    if (!text.isEmpty())
        mStatus.print(text + "..."_L1);
    mStatus.setToolTipText(mTips.ifShown(tip));
    if (!text.isEmpty())
        Q_EMIT told(text);
}
