#include "harvest/Downloads.h"

#include "app/OptionNumbers.h"
#include "transfer/RequestRules.h"

#include <QFileInfo>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

Downloads::Downloads(const Context &context, const FilePlaces &places, const Limits &limits, const OptionBoxes &options,
                     BrowserHolder &browser, Transfers &transfers, cInetWS &inet)
    : mContext(context), mPlaces(places), mLimits(limits), mOptions(options), mBrowser(browser), mTransfers(transfers),
      mInet(inet)
{
}

QString Downloads::fetch(const QString &url, const QString &name)
{
    const QScopedValueRollback<bool> underWay(mIsUnderWay, true);
    const Download result = transfer(url, mPlaces.txtSFMNDir.text() + name);
    mLast = {result.file.isEmpty() ? name : QFileInfo(result.file).fileName(), url, result.refusal, result.size,
             result.seconds};
    Q_EMIT fetched(mLast);
    return mLast.name;
}

Download Downloads::transfer(const QString &url, const QString &target)
{
    if (mOptions.chkSMA(SMA::DownloadByFtp).value() == 1)
        return cInternet(mTransfers, mContext.log).APIDownLoad(url, target, leastSize());
    return mInet.DownLoad(url, target, leastSize(), browserTraits(url));
}

/// What many servers of pictures ask for: the browser's name, its cookies, and the page that it stands on. A file that
/// it shows, as the last one that was fetched, is no page to have come from.
BrowserTraits Downloads::browserTraits(const QString &url)
{
    if (!mBrowser.isSet() || mOptions.chkSMA(SMA::DownloadAsBrowser).value() != 1)
        return {};
    // The address box of a series holds addresses without protocol, which a browser knows no cookies for.
    const QString address = QString::fromLatin1(RequestRules::encodedAddress(url));
    if (const QString page = mBrowser->GetSiteUrl(); !page.startsWith("file:"_L1, Qt::CaseInsensitive))
        mPage = page;
    return {mBrowser->userAgent(), mPage, mBrowser->cookiesFor(address)};
}

void Downloads::cancel()
{
    mTransfers.cancel();
}
