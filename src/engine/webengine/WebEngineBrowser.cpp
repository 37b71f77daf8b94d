#include "engine/webengine/WebEngineBrowser.h"
#include "engine/BrowserErrors.h"
#include "engine/Platform.h"
#include "engine/webengine/WebEngineAddress.h"
#include "engine/webengine/WebEngineCookies.h"
#include "engine/webengine/WebEnginePage.h"
#include "engine/webengine/WebEngineReader.h"
#include "engine/webengine/WebEngineStage.h"

#include <QDir>
#include <QFile>
#include <QPointer>
#include <QTimer>
#include <QWebEngineDownloadRequest>
#include <QWebEngineHistory>
#include <QWebEngineLoadingInfo>
#include <QWebEngineProfile>
#include <QWebEngineScript>
#include <QWebEngineSettings>

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::milliseconds askAgain{100};
constexpr int looksAtLeaving = 5; // within the limit

// Where the folder is given, it holds cookies: nobody else's business.
std::unique_ptr<QWebEngineProfile> makeProfile(const QString &folder)
{
    if (folder.isEmpty())
        return std::make_unique<QWebEngineProfile>();
    QDir().mkpath(folder);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    auto profile = std::make_unique<QWebEngineProfile>(QStringLiteral("trawlex"));
    profile->setPersistentStoragePath(folder);
    profile->setCachePath(QDir(folder).filePath(QStringLiteral("cache")));
    return profile;
}

// Nothing is ever downloaded, except the page that the user saves.
void refuseDownload(QWebEngineDownloadRequest *download)
{
    if (download->isSavePageDownload())
        download->accept();
    else
        download->cancel();
}

} // namespace

// The page goes before its profile, at once or from the event loop.
struct WebEngineBrowser::Kernel
{
    std::unique_ptr<QWebEngineProfile> profile;
    std::unique_ptr<WebEngineCookies> cookies;
    std::unique_ptr<WebEnginePage> shown; // what the view shows while the page is a plain one, which no view shows
    std::unique_ptr<WebEnginePage> page;
    QString token = WebEnginePage::newToken();

    void leaveLater()
    {
        page->disconnect();
        QObject::connect(page.get(), &QObject::destroyed, profile.get(), &QObject::deleteLater);
        page.release()->deleteLater();
        (void)profile.release(); // goes when the page has gone
    }
};

WebEngineBrowser::WebEngineBrowser(const WebEngineOptions &options)
    : mKernel(std::make_unique<Kernel>()), mOptions(options)
{
    mKernel->profile = makeProfile(options.storageFolder);
    mKernel->cookies = std::make_unique<WebEngineCookies>(*mKernel->profile);
    connect(mKernel->profile.get(), &QWebEngineProfile::downloadRequested, this, &refuseDownload);
    makePage();
    mReader = std::make_unique<WebEngineReader>(*mKernel->page);
    connect(mReader.get(), &WebEngineReader::unanswered, this, &WebEngineBrowser::endProcess);
}

// From within a handler of NewWindow2 or a read, the page's own functions are still on the stack.
WebEngineBrowser::~WebEngineBrowser()
{
    const bool inUse = mRefusing > 0 || mReads > 0;
    mReader.reset();
    if (inUse)
        mKernel->leaveLater();
}

void WebEngineBrowser::makePage()
{
    mKernel->page = std::make_unique<WebEnginePage>(mKernel->profile.get(), mKernel->token);
    mKernel->page->settings()->setAttribute(QWebEngineSettings::JavascriptEnabled, !mPlain);
    mKernel->page->settings()->setAttribute(QWebEngineSettings::AutoLoadImages, !mPlain);
    connectPage();
    mKernel->page->runJavaScript(QStringLiteral("0")); // brings the page to life, else it cannot be made visible
    keepVisible();
}

// A page whose process has crashed comes back without some of what it had: our script no longer reaches all its frames.
void WebEngineBrowser::replacePage()
{
    std::unique_ptr<WebEnginePage> old = std::move(mKernel->page);
    old->disconnect(this);
    makePage();
    mReader->setPage(*mKernel->page);
    mProcess = Process::Alive;
    if (mPlain) {
        mKernel->shown = mKernel->shown ? std::move(mKernel->shown) : std::move(old);
    } else {
        const std::unique_ptr<WebEnginePage> shown = std::move(mKernel->shown);
        WebEngineStage::replacePage(shown ? *shown : *old, *mKernel->page);
        Q_EMIT pageReplaced(page());
    }
    if (old)
        old.release()->deleteLater(); // it may be on the stack
}

void WebEngineBrowser::connectPage()
{
    const WebEnginePage *page = mKernel->page.get();
    connect(page, &QWebEnginePage::loadingChanged, this, &WebEngineBrowser::onLoadingChanged);
    connect(page, &QWebEnginePage::urlChanged, this, &WebEngineBrowser::onUrlChanged);
    connect(page, &QWebEnginePage::renderProcessTerminated, this, &WebEngineBrowser::onProcessGone);
    connect(page, &QWebEnginePage::visibleChanged, this, &WebEngineBrowser::keepVisible, Qt::QueuedConnection);
    connect(page, &WebEnginePage::windowRefused, this, &WebEngineBrowser::onWindowRefused);
    connect(page, &WebEnginePage::navigationBegun, this, &WebEngineBrowser::onNavigationBegun);
    connect(page, &WebEnginePage::documentCreated, this, &WebEngineBrowser::onDocumentCreated);
    connect(page, &WebEnginePage::documentLoaded, this, &WebEngineBrowser::onDocumentLoaded);
}

QWebEnginePage *WebEngineBrowser::page() const
{
    return mKernel->page.get();
}

// A page in a hidden window works on like any other: its timers keep their pace and its frames are drawn.
void WebEngineBrowser::keepVisible()
{
    if (!mPlain && !mKernel->page->isVisible())
        mKernel->page->setVisible(true);
}

// --- loading -------------------------------------------------------------------------------------------------------

void WebEngineBrowser::Navigate(const QString &address)
{
    raiseIfClosed();
    const QUrl url = WebEngineAddress::parsed(address);
    const bool moveWithin = isAlive() && !mPlain && !isLoading() && WebEngineAddress::isMoveWithin(page()->url(), url);
    mAddress = url;
    if (std::exchange(mPlain, false) || (mKernel->page->isUnderWay() && !moveWithin))
        leavePage(); // the next one has its scripts again, and nothing of this one comes in its place
    request();
    issue();
    if (moveWithin) { // the page tells nothing more of it
        mLocation = WebEngineAddress::text(url);
        (void)mLoading.answered(mNavigation, {}, {});
        (void)mLoading.movedWithinPage();
        tellEnd(true);
    }
}

void WebEngineBrowser::issue()
{
    if (!isAlive())
        replacePage();
    if (mKernel->page->hasDocument())
        watchLeaving(std::make_shared<bool>(true), QDeadlineTimer(mOptions.leaveLimit));
    mLoading.issued(page()->isLoading());
    page()->setUrl(mAddress);
    QTimer::singleShot(mOptions.leaveLimit, this, [this, asked = QPointer(page()), navigation = mNavigation] {
        if (asked == page() && navigation == mNavigation)
            onLeaveLimit();
    });
}

// A page whose script never ends keeps the next one from coming, as the same site's pages share a process. It is asked
// again and again: it may begin to hang only when it is left.
void WebEngineBrowser::watchLeaving(const std::shared_ptr<bool> &answered, QDeadlineTimer patience)
{
    const QDeadlineTimer rest = *answered ? QDeadlineTimer(mOptions.leaveLimit) : patience;
    *answered = false;
    mReader->probe(answered);
    const auto look = [this, answered, rest, asked = QPointer(page()), navigation = mNavigation] {
        if (asked != page() || navigation != mNavigation || !isAlive() || !mLoading.isWaitingForDocument())
            return;
        if (*answered || !rest.hasExpired())
            watchLeaving(answered, rest);
        else
            Platform::endProcess(page()->renderProcessPid()); // onProcessGone() gives the address to the next process
    };
    QTimer::singleShot(mOptions.leaveLimit / looksAtLeaving, this, look);
}

// The page has taken the address for nothing that it can open.
void WebEngineBrowser::onLeaveLimit()
{
    if (mLoading.isWaitingForDocument() && mProcess == Process::Alive && !page()->isLoading() && mLoading.cancel())
        tellEnd(false);
}

void WebEngineBrowser::Stop()
{
    raiseIfClosed();
    if (mProcess == Process::Changing)
        mProcess = Process::Lost;
    page()->triggerAction(QWebEnginePage::Stop);
    if (mLoading.cancel())
        tellEnd(false);
}

// A plain page is another one than the view shows, which knows where the user came from.
void WebEngineBrowser::goBack()
{
    if (mProcess == Process::Closed)
        return;
    const QWebEngineHistory &history = *(mKernel->shown ? *mKernel->shown : *mKernel->page).history();
    if (!mPlain)
        page()->triggerAction(QWebEnginePage::Back);
    else if (history.canGoBack())
        Navigate(history.backItem().url().toString());
}

void WebEngineBrowser::reload()
{
    if (mProcess == Process::Closed)
        return;
    if (mPlain)
        Navigate(mLocation);
    else
        page()->triggerAction(QWebEnginePage::Reload);
}

void WebEngineBrowser::onLoadingChanged(const QWebEngineLoadingInfo &info)
{
    if (mProcess == Process::Changing)
        return;
    if (info.status() == QWebEngineLoadingInfo::LoadStartedStatus) {
        if (!mLoading.hasStarted())
            mLoading.started(awaited());
        mLoading.resumed(); // also when the page moves on by itself
        return;
    }
    // Stopped: nothing came (a download, an empty answer, another program's address); the old document still stands.
    const bool stopped = info.status() == QWebEngineLoadingInfo::LoadStoppedStatus;
    const bool sameAddress = info.url() == mAddress;
    if (stopped && !sameAddress && leaveIfInTheWay())
        return;
    switch (mLoading.endTold(stopped ? PageLoading::End::Stopped : PageLoading::End::Loaded, sameAddress)) {
    case PageLoading::Verdict::Ended:
        tellEnd(!stopped);
        break;
    case PageLoading::Verdict::Wait:
        askWhetherLoaded();
        break;
    default:
        break;
    }
}

// The end that was told may be that of a load which this one has cut off: the document knows.
void WebEngineBrowser::askWhetherLoaded()
{
    page()->runJavaScript(QStringLiteral("document.readyState"), QWebEngineScript::ApplicationWorld,
                          [self = QPointer(this), navigation = mNavigation](const QVariant &state) {
                              if (self && navigation == self->mNavigation)
                                  self->onReadyState(state.toString());
                          });
}

void WebEngineBrowser::onReadyState(const QString &state)
{
    if (!isLoading() || mProcess == Process::Changing)
        return;
    if (state == u"complete") {
        if (mLoading.documentFound())
            tellEnd(true);
        return;
    }
    QTimer::singleShot(askAgain, this, [this, navigation = mNavigation] {
        if (isLoading() && navigation == mNavigation)
            askWhetherLoaded();
    });
}

// The end of a load that began while another one was under way is not always told; the document then tells it.
void WebEngineBrowser::onDocumentLoaded(const QString &url, bool topDocument)
{
    if (!topDocument) { // the page itself has loaded when all its frames have: see tellEnd()
        emitLater([this, url] { Q_EMIT DocumentComplete(url, false); });
        return;
    }
    mLoading.documentComplete(mDocument);
    QTimer::singleShot(askAgain, this, [this, navigation = mNavigation] {
        const bool inPlace = isLoading() && !mLoading.isWaitingForDocument() && mProcess != Process::Changing;
        if (navigation == mNavigation && inPlace && !page()->isLoading())
            askWhetherLoaded();
    });
}

void WebEngineBrowser::tellEnd(bool withDocument)
{
    if (withDocument) {
        mProcess = Process::Alive;
        onUrlChanged(page()->url());
        emitLater([this, url = mLocation] { Q_EMIT DocumentComplete(url, true); });
    }
    emitLater([this, navigation = mNavigation] {
        if (navigation == mNavigation) // that of an earlier one would be taken for the end of this one
            Q_EMIT loadingEnded();
    });
}

// An address that is only asked for is told here too; it counts from the document's creation on.
void WebEngineBrowser::onUrlChanged(const QUrl &url)
{
    const bool inPlace = isAlive() && !mLoading.isWaitingForDocument();
    if (inPlace && !url.isEmpty() && !WebEngineAddress::isSame(mLocation, url))
        mLocation = WebEngineAddress::text(url);
}

void WebEngineBrowser::onDocumentCreated(const QString &url, bool topDocument)
{
    if (!topDocument || mProcess == Process::Changing)
        return;
    const bool errorPage = WebEngineAddress::isErrorPage(url);
    const auto kind = errorPage ? PageLoading::Document::ErrorPage : PageLoading::Document::Page;
    mDocument = mLoading.isWaitingForDocument() ? awaited() : QString::number(++mDocuments);
    mLoading.committed(mDocument, kind);
    if (mProcess != Process::Closed)
        mProcess = Process::Alive;
    mLocation = errorPage ? WebEngineAddress::text(page()->url()) : url;
}

// What the page calls the document of the latest navigation; it tells of a document and not whose it is.
QString WebEngineBrowser::awaited() const
{
    return QStringLiteral("navigation %1").arg(mNavigation);
}

void WebEngineBrowser::onNavigationBegun(bool asGiven)
{
    if (asGiven)
        mLoading.started(awaited());
    else
        (void)leaveIfInTheWay();
}

// The old page has set out for another one while ours was on its way: either may come, and nothing tells which it is.
bool WebEngineBrowser::leaveIfInTheWay()
{
    if (!isAlive() || !mKernel->page->hasDocument() || !mLoading.isWaitingForDocument())
        return false;
    leavePage();
    request();
    issueSoon();
    return true;
}

// What the old page and its process do no longer counts; the address is given to another one.
void WebEngineBrowser::leavePage()
{
    mProcess = Process::Lost;
    mReader->fail({EngineError::NotArrived, QStringLiteral("The page has been left.")});
}

void WebEngineBrowser::issueSoon()
{
    mProcess = Process::Changing;
    QTimer::singleShot(0, this, [this] {
        if (mProcess == Process::Changing)
            issue();
    });
}

void WebEngineBrowser::request()
{
    mNavigation = mLoading.begin();
    (void)mLoading.answered(mNavigation, awaited(), {});
}

// The process of the page that is being left takes the navigation along when it ends; the address is then given again.
void WebEngineBrowser::onProcessGone()
{
    if (mProcess == Process::Closed || mProcess == Process::Changing)
        return;
    mProcess = Process::Lost;
    mReader->fail({EngineError::BrowserGone, QStringLiteral("The page's process has ended.")});
    const bool again = mLoading.isWaitingForDocument() && mReissued != mNavigation;
    if (mLoading.processLost() || (!again && mLoading.cancel()))
        tellEnd(false);
    if (!again)
        return;
    mReissued = mNavigation;
    issueSoon();
}

void WebEngineBrowser::endProcess()
{
    mProcess = Process::Lost;
    Platform::endProcess(page()->renderProcessPid());
}

void WebEngineBrowser::onWindowRefused()
{
    const QPointer self(this);
    ++mRefusing;
    bool cancel = true; // whatever the handler makes of it: this browser has no second window
    Q_EMIT NewWindow2(&cancel);
    if (self)
        --mRefusing;
}

void WebEngineBrowser::windowClosed()
{
    if (mProcess == Process::Closed)
        return;
    mProcess = Process::Closed;
    mReader->fail({EngineError::BrowserGone, QStringLiteral("The browser's window has been closed.")});
    page()->triggerAction(QWebEnginePage::Stop);
    (void)mLoading.cancel();
    (void)mLoading.processLost();
    emitLater([this] { Q_EMIT WindowClosing(); });
}

QString WebEngineBrowser::userAgent()
{
    return mKernel->profile->httpUserAgent();
}

QString WebEngineBrowser::cookiesFor(const QString &url)
{
    return mKernel->cookies->headerFor(QUrl(url));
}

// --- signals -------------------------------------------------------------------------------------------------------

void WebEngineBrowser::emitLater(std::function<void()> emission)
{
    mDue.push_back(std::move(emission));
    emitSoon();
}

void WebEngineBrowser::emitSoon()
{
    if (!mEmissionDue)
        mEmissionDue = QMetaObject::invokeMethod(this, &WebEngineBrowser::emitDue, Qt::QueuedConnection);
}

// One a turn of the event loop: handlers may be slower than a page that never ends completing, and whatever else waits
// for its turn must get it. The handler may drop the browser, or wait and so come back here.
void WebEngineBrowser::emitDue()
{
    mEmissionDue = false;
    if (mDue.empty() || mReads > 0) // behind the read it goes on
        return;
    const auto emission = std::move(mDue.front());
    mDue.pop_front();
    emitSoon();
    emission();
}
