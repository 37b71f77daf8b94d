#include "harvest/Downloads.h"

#include "app/OptionNumbers.h"
#include "transfer/RequestRules.h"
#include "transfer/TargetNames.h"
#include "util/FileNames.h"

#include <QFile>
#include <QFileInfo>
#include <QScopedValueRollback>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {
/// One of the files that hold the names from `first` on, up to `file`, stands for it where it is the same.
QString withoutRepeat(const QString &first, const QString &file)
{
    for (QString earlier = first; earlier != file && cUtility::isNameTaken(earlier);
         earlier = TargetNames::nextPath(earlier)) {
        if (cUtility::isSameContent(earlier, file) && QFile::remove(file))
            return earlier;
    }
    return file;
}

/// The address of the folder that the file at `address` lies in.
QString folderOf(const QString &address)
{
    QUrl folder = QUrl(address).adjusted(QUrl::RemoveFilename | QUrl::RemoveQuery | QUrl::RemoveFragment);
    if (folder.path().isEmpty())
        folder.setPath(u"/"_s);
    return folder.toString(QUrl::FullyEncoded);
}
} // namespace

Downloads::Downloads(const Context &context, const FilePlaces &places, const Limits &limits, const OptionBoxes &options,
                     BrowserHolder &browser, Transfers &transfers, cInetWS &inet)
    : mContext(context), mPlaces(places), mLimits(limits), mOptions(options), mBrowser(browser), mTransfers(transfers),
      mInet(inet)
{
    // What one browser was at is no other one's to tell.
    connect(&browser, &BrowserHolder::changed, this, [this] {
        mPage.clear();
        mCookies = {};
    });
}

QString Downloads::fetch(const QString &url, const QString &name, Turn turn)
{
    const QScopedValueRollback<bool> underWay(mIsUnderWay, true);
    const QString folder = mPlaces.txtSFMNDir.text();
    Download result = transfer(url, folder + name);
    if (turn == Turn::Again)
        result.file = withoutRepeat(folder + TargetNames::safeName(name), result.file);
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
    return {mBrowser->userAgent(), mPage, cookiesFor(address)};
}

/// A fast series asks a browser that stands still once a second for the cookies of a folder, and not for each file.
/// Those of a file that has some of its own are kept for none of its neighbours.
QString Downloads::cookiesFor(const QString &address)
{
    constexpr qint64 freshFor = 1000;
    const QString folder = folderOf(address);
    const bool isFresh = mCookies.age.isValid() && !mCookies.age.hasExpired(freshFor);
    if (isFresh && mCookies.page == mPage && mCookies.folder == folder)
        return mCookies.header;
    QString header = mBrowser->cookiesFor(address);
    mCookies = {mPage, folder, header, {}};
    if (header == mBrowser->cookiesFor(folder))
        mCookies.age.start();
    return header;
}

void Downloads::cancel()
{
    mTransfers.cancel();
}
