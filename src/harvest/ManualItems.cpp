#include "harvest/ManualItems.h"

#include "pages/DownloadNames.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
}

QString ManualItems::GetFileNameMNDL(const QString &url) const
{
    return areFiles() ? DownloadNames::fileName(url) : QString();
}

QString ManualItems::NavFileOrSite(int mode, const QString &url, bool noOpen, Downloads::Turn turn)
{
    return guardedResult(mContext.log, {module, "Function NavFileOrSite"_L1}, QString(), [&](QString &name) {
        const QString address = url.isEmpty() ? mDesk.GetUseBaseUrl(mode) : url;
        if (address.isEmpty())
            return;
        const QString file = GetFileNameMNDL(address);
        if (file.isEmpty()) {
            if (!noOpen)
                mNavigation.OpenSite(address);
            return;
        }
        name = mDownloads.fetch(address, file, turn);
        if (hasArrived())
            Q_EMIT fileArrived(name);
    });
}
