#include "sites/ResultLinks.h"

#include "controls/cLstBx.h"
#include "pages/Addresses.h"
#include "pages/LinkStages.h"
#include "util/Arrays.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "frmSearch"_L1;
}

QStringList ResultLinks::GetLinks()
{
    return guardedResult(mLog, {module, "Function GetLinks"_L1}, QStringList(), [&](QStringList &links) {
        links = mBrowser->GetLinksOnWebPage();
        if (firstOf(links).isEmpty())
            return;
        const QString site = mRecords.GetSiteNameFromUrl({});
        constexpr Stage stages[] = {&ResultLinks::SDProcessStartStop, &ResultLinks::SDProcessCnvHex,
                                    &ResultLinks::SDProcessMinMax,    &ResultLinks::SDProcessMC,
                                    &ResultLinks::SDProcessMNC,       &ResultLinks::SDProcessBeginEndUrl};
        for (const Stage stage : stages) {
            if (QStringList kept = (this->*stage)(links, site); !firstOf(kept).isEmpty())
                links = std::move(kept);
        }
        if (mOptions.chkSMA(SMA::UniqueServers).value() == 1)
            links = cIEText::GetUniqueServers(links);
        links = cUtility::RemoveRepeatsFromArray(links);
        if (mBlocked.on.value() == 1)
            links = cUtility::FilterArray(links, cLstBx::GetItems(mBlocked.items, cLstBx::Which::All), mUnwanted);
    });
}

QStringList ResultLinks::SDProcessStartStop(const QStringList &links, const QString &site)
{
    return guardedResult(mLog, {module, "Function SDProcessStartStop"_L1}, emptyList(), [&](QStringList &kept) {
        kept = LinkStages::startStop(links, mRecords.GetSearchSiteData(site, SiteField::BUrlCol),
                                     mRecords.GetSearchSiteData(site, SiteField::EUrlCol));
    });
}

QStringList ResultLinks::SDProcessCnvHex(const QStringList &links, const QString &site)
{
    return guardedResult(mLog, {module, "Function SDProcessCnvHex"_L1}, emptyList(), [&](QStringList &kept) {
        const bool active = firstOf(mRecords.GetSearchSiteData(site, SiteField::CnvHex)) == "1"_L1 ||
                            mOptions.chkSMA(SMA::ConvertHex).value() == 1;
        kept = active ? LinkStages::cnvHex(links) : links;
    });
}

QStringList ResultLinks::SDProcessMinMax(const QStringList &links, const QString &site)
{
    return guardedResult(mLog, {module, "Function SDProcessMinMax"_L1}, emptyList(), [&](QStringList &kept) {
        kept = LinkStages::minMax(links, firstOf(mRecords.GetSearchSiteData(site, SiteField::UrlLen)));
    });
}

QStringList ResultLinks::SDProcessMC(const QStringList &links, const QString &site)
{
    return guardedResult(mLog, {module, "Function SDProcessMC"_L1}, emptyList(), [&](QStringList &kept) {
        LinkStages::countedTexts(links, mRecords.GetSearchSiteData(site, SiteField::UrlMC),
                                 LinkStages::Keeping::Containing, kept);
    });
}

QStringList ResultLinks::SDProcessMNC(const QStringList &links, const QString &site)
{
    return guardedResult(mLog, {module, "Function SDProcessMNC"_L1}, emptyList(), [&](QStringList &kept) {
        LinkStages::countedTexts(links, mRecords.GetSearchSiteData(site, SiteField::UrlMNC),
                                 LinkStages::Keeping::NotContaining, kept);
    });
}

QStringList ResultLinks::SDProcessBeginEndUrl(const QStringList &links, const QString &site)
{
    return guardedResult(mLog, {module, "Function SDProcessBeginEndUrl"_L1}, emptyList(), [&](QStringList &kept) {
        kept = LinkStages::beginEndUrl(links, mRecords.GetSearchSiteData(site, SiteField::BeginUrl),
                                       mRecords.GetSearchSiteData(site, SiteField::EndUrl));
    });
}
