#include "sites/DiscoveredLinks.h"

#include "app/OptionNumbers.h"
#include "controls/cLstBx.h"
#include "pages/Addresses.h"
#include "pages/LinkFilter.h"
#include "util/Arrays.h"

using namespace Qt::StringLiterals;

QStringList DiscoveredLinks::DiscoverLinks(Use use)
{
    return guardedResult(mLog, {"frmSearch"_L1, "Function DiscoverLinks"_L1}, emptyList(), [&](QStringList &kept) {
        const LinkFilter filter{mFilter.cboMNMCMNC.listIndex(), mFilter.cboMNMCMNCFilter.text(),
                                mOptions.chkSMA(SMA::ConvertHex).value() == 1};
        const bool byRecord = use == Use::SiteData && mRecords.IsSiteDataSaved();
        QStringList links = byRecord ? mResults.GetLinks() : mBrowser->GetLinksOnWebPage();
        if (firstOf(links).isEmpty() && links.size() == 1)
            return;
        if (mOptions.chkSMA(SMA::UniqueServers).value() == 1)
            links = cIEText::GetUniqueServers(links);
        links = filter.wanted(links);
        if (!byRecord)
            links = cUtility::RemoveRepeatsFromArray(links);
        if (mBlocking.urls.on.isOn())
            links = cUtility::FilterArray(links, cLstBx::GetItems(mBlocking.urls.items, cLstBx::Which::All), mUnwanted);
        kept = links;
    });
}
