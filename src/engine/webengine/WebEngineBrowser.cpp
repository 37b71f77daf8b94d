#include "engine/webengine/WebEngineBrowser.h"
#include "engine/BrowserErrors.h"
#include "engine/Platform.h"
#include "engine/webengine/WebEngineAddress.h"
#include "engine/webengine/WebEngineCookies.h"
#include "engine/webengine/WebEnginePage.h"
#include "engine/webengine/WebEngineReader.h"
#include "engine/webengine/WebEngineStage.h"

#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QMetaMethod>
#include <QPointer>
#include <QTimer>
#include <QWebEngineDownloadRequest>
#include <QWebEngineLoadingInfo>
#include <QWebEngineProfile>
#include <QWebEngineScript>

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::milliseconds askAgain{100};
constexpr QLatin1StringView partNames[] = {"html"_L1, "text"_L1};

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
    mReader = std::make_unique<WebEngineReader>(*mKernel->page, options.readLimit);
    connect(mReader.get(), &WebEngineReader::unanswered, this, &WebEngineBrowser::endProcess);
    connect(mReader.get(), &WebEngineReader::finished, this, [this] { emitLater({}); });
}

// From within a handler of NewWindow2 or a read, the page's own functions are still on the stack.
WebEngineBrowser::~WebEngineBrowser()
{
    const bool inUse = mRefusing > 0 || mReader->isReading();
    mReader.reset();
    if (inUse)
        mKernel->leaveLater();
}

void WebEngineBrowser::makePage()
{
    mKernel->page = std::make_unique<WebEnginePage>(mKernel->profile.get(), mKernel->token);
    connectPage();
    page()->runJavaScript(QStringLiteral("0")); // brings the page to life, else it cannot be made visible
    keepVisible();
}

// A page whose process has crashed comes back without some of what it had: our script no longer reaches all its frames.
void WebEngineBrowser::replacePage()
{
    WebEnginePage *old = mKernel->page.release();
    old->disconnect(this);
    makePage();
    mReader->setPage(*mKernel->page);
    WebEngineStage::replacePage(*old, *mKernel->page);
    mProcess = Process::Alive;
    Q_EMIT pageReplaced(page());
    old->deleteLater(); // it may be on the stack
}

void WebEngineBrowser::connectPage()
{
    const WebEnginePage *page = mKernel->page.get();
    connect(page, &QWebEnginePage::loadingChanged, this, &WebEngineBrowser::onLoadingChanged);
    connect(page, &QWebEnginePage::urlChanged, this, &WebEngineBrowser::onUrlChanged);
    connect(page, &QWebEnginePage::renderProcessTerminated, this, &WebEngineBrowser::onProcessGone);
    connect(page, &QWebEnginePage::visibleChanged, this, &WebEngineBrowser::keepVisible, Qt::QueuedConnection);
    connect(page, &WebEnginePage::windowRefused, this, &WebEngineBrowser::onWindowRefused);
    connect(page, &WebEnginePage::navigationTakenUp, this, [this] { mLoading.started(mAddress.toString()); });
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
    if (!page()->isVisible())
        page()->setVisible(true);
}

// --- loading -------------------------------------------------------------------------------------------------------

void WebEngineBrowser::Navigate(const QString &address)
{
    raiseIfClosed();
    const QUrl url = WebEngineAddress::parsed(address);
    const bool moveWithin = isAlive() && !isLoading() && WebEngineAddress::isMoveWithin(page()->url(), url);
    mAddress = url;
    mNavigation = mLoading.begin();
    if (isAlive() && !moveWithin)
        watchLeaving();
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
    mLoading.issued(page()->isLoading());
    page()->setUrl(mAddress);
}

// A page whose script never ends keeps the next one from coming, as the same site's pages share a process. It is asked
// twice, since the first question may have gone with the document.
void WebEngineBrowser::watchLeaving()
{
    const auto answered = std::make_shared<bool>(false);
    const auto stillLeaving = [this, navigation = mNavigation] {
        return navigation == mNavigation && mLoading.isWaitingForDocument();
    };
    mReader->probe(answered);
    QTimer::singleShot(mOptions.leaveLimit / 2, this, [this, answered, stillLeaving] {
        if (stillLeaving())
            mReader->probe(answered);
    });
    QTimer::singleShot(mOptions.leaveLimit, this, [this, answered, stillLeaving] {
        if (stillLeaving())
            onLeaveLimit(*answered);
    });
}

void WebEngineBrowser::onLeaveLimit(bool answered)
{
    if (!answered)
        Platform::endProcess(page()->renderProcessPid()); // onProcessGone() gives the address to the next process
    else if (!page()->isLoading() && mLoading.cancel())
        tellEnd(false); // the page has taken the address for nothing that it can open
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

void WebEngineBrowser::onLoadingChanged(const QWebEngineLoadingInfo &info)
{
    if (mProcess == Process::Changing)
        return;
    if (info.status() == QWebEngineLoadingInfo::LoadStartedStatus) {
        mLoading.started(mAddress.toString());
        mLoading.resumed(); // also when the page moves on by itself
        return;
    }
    // Stopped: nothing came (a download, an empty answer, another program's address); the old document still stands.
    const bool stopped = info.status() == QWebEngineLoadingInfo::LoadStoppedStatus;
    const bool sameAddress = info.url() == mAddress;
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
    if (!isLoading())
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
    mLoading.documentComplete(QString::number(mDocuments));
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
    emitLater([this] { Q_EMIT loadingEnded(); });
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
    if (!topDocument)
        return;
    const bool errorPage = WebEngineAddress::isErrorPage(url);
    const auto kind = errorPage ? PageLoading::Document::ErrorPage : PageLoading::Document::Page;
    (void)mLoading.committed(QString::number(++mDocuments), kind);
    if (mProcess != Process::Closed)
        mProcess = Process::Alive;
    mLocation = errorPage ? WebEngineAddress::text(page()->url()) : url;
}

// The process of the page that is being left takes the navigation along when it ends; the address is then given again.
void WebEngineBrowser::onProcessGone()
{
    if (mProcess == Process::Closed)
        return;
    mProcess = Process::Lost;
    mReader->fail({EngineError::BrowserGone, QStringLiteral("The page's process has ended.")});
    const bool again = mLoading.isWaitingForDocument() && mReissued != mNavigation;
    if (mLoading.processLost() || (!again && mLoading.cancel()))
        tellEnd(false);
    if (!again)
        return;
    mProcess = Process::Changing;
    mReissued = mNavigation;
    QTimer::singleShot(0, this, [this] {
        if (mProcess == Process::Changing)
            issue();
    });
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

// --- reading -------------------------------------------------------------------------------------------------------

void WebEngineBrowser::raiseIfClosed() const
{
    if (mProcess == Process::Closed)
        throw RuntimeError(EngineError::BrowserGone, QStringLiteral("The browser's window has been closed."));
}

QStringList WebEngineBrowser::read(QLatin1StringView what, int frame)
{
    raiseIfClosed();
    if (!isAlive())
        throw RuntimeError(EngineError::BrowserGone, QStringLiteral("The page's process has ended."));
    if (mRefusing > 0)
        throw RuntimeError(EngineError::BrowserGone, QStringLiteral("The page waits for its new window."));
    if (mLoading.isWaitingForDocument())
        throw RuntimeError(EngineError::NotArrived, QStringLiteral("The page has not arrived yet."));
    return mReader->read(what, frame);
}

QString WebEngineBrowser::LocationURL()
{
    raiseIfClosed();
    return mLocation;
}

QString WebEngineBrowser::LocationName()
{
    const QString title = read("title"_L1).constFirst();
    return WebEngineAddress::isErrorPage(title) ? mLocation : title;
}

QString WebEngineBrowser::readPart(Part part, int frame)
{
    return read(partNames[int(part)], frame).constFirst();
}

QString WebEngineBrowser::documentPart(Part part)
{
    return readPart(part, -1);
}

PageContent WebEngineBrowser::content()
{
    const QStringList texts = read("content"_L1);
    PageContent result{texts[0], texts[1], texts[2]};
    if (WebEngineAddress::isErrorPage(result.url))
        result.url = mLocation;
    else
        mLocation = result.url;
    if (WebEngineAddress::isErrorPage(result.title))
        result.title = mLocation;
    return result;
}

QStringList WebEngineBrowser::links()
{
    return read("links"_L1);
}

int WebEngineBrowser::frameCount()
{
    return read("frameCount"_L1).constFirst().toInt();
}

QString WebEngineBrowser::framePart(int index, Part part)
{
    if (index < 0)
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange, QStringLiteral("There is no frame %1.").arg(index));
    return readPart(part, index);
}

QStringList WebEngineBrowser::frameLinks(int index)
{
    if (index < 0)
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange, QStringLiteral("There is no frame %1.").arg(index));
    return read("links"_L1, index);
}

// The browser's own command would copy only in a page that has the focus, and some time later.
void WebEngineBrowser::copySelection()
{
    const QString text = read("selection"_L1).constFirst();
    if (!text.isEmpty())
        QGuiApplication::clipboard()->setText(text);
}

void WebEngineBrowser::saveAs()
{
    raiseIfClosed();
    if (!isSignalConnected(QMetaMethod::fromSignal(&WebEngineBrowser::saveRequested)))
        throw RuntimeError(EngineError::CannotDo, QStringLiteral("The page can be saved only from a window."));
    Q_EMIT saveRequested();
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

// An empty emission only sees to it that what is due is emitted.
void WebEngineBrowser::emitLater(std::function<void()> emission)
{
    if (emission)
        mDue.push_back(std::move(emission));
    QMetaObject::invokeMethod(this, &WebEngineBrowser::emitDue, Qt::QueuedConnection);
}

// A handler may drop the browser, or wait and so come back here.
void WebEngineBrowser::emitDue()
{
    const QPointer self(this);
    while (self && !mDue.empty() && !mReader->isReading()) {
        const auto emission = std::move(mDue.front());
        mDue.pop_front();
        emission();
    }
}
