#include "driver/Navigation.h"

#include "pages/EmailFinder.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto fileProtocol = "file:///"_L1;
constexpr int internalBrowser = 0;

/// The built-in browser opens what names no protocol of its own as a web address.
QString forInternalBrowser(const QString &url)
{
    const bool named =
        url.startsWith("http"_L1, Qt::CaseInsensitive) || url.startsWith(fileProtocol, Qt::CaseInsensitive);
    return named ? url : "http://"_L1 + url;
}
} // namespace

bool Navigation::OpenSite(const QString &url)
{
    return guardedResult(mContext.log, {"frmSearch"_L1, "Function OpenSite"_L1}, false, [&](bool &issued) {
        const bool isFile = url.size() > fileProtocol.size() && url.startsWith(fileProtocol, Qt::CaseInsensitive);
        if (!isFile && cIEText::IsThisEmailOrLink(url, true) != cIEText::TextKind::Link) {
            mContext.status.UpDateStatus("Invalid url "_L1 + url);
            return;
        }
        const bool internal = mPanel.cboANWBSelect.listIndex() == internalBrowser;
        mBrowser->NavigateToUrl(internal ? forInternalBrowser(url) : url);
        issued = true;
    });
}
