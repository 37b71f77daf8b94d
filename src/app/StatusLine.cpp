#include "app/StatusLine.h"

#include "util/Text.h"

using namespace Qt::StringLiterals;

const QString StatusLine::standardTip =
    u"Double clicking the status bar on different tabs performs different functions"_s;

void StatusLine::UpDateStatus(const QString &text, const QString &tip)
{
    mStatus.setToolTipText(mTips.ifShown(tip));
    if (text.isEmpty())
        return;
    const QString shown = cUtility::shown(text);
    mStatus.print(shown + "..."_L1);
    Q_EMIT told(shown);
}
