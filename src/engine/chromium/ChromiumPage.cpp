#include "engine/chromium/ChromiumPage.h"
#include "engine/BrowserErrors.h"
#include "engine/chromium/DialogAnswers.h"

#include <QJsonArray>
#include <QPointer>
#include <algorithm>
#include <tuple>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::chrono::seconds windowCallLimit{5};
// How often one page is asked for once more, because a process was lost.
constexpr int repetitionsAtMost = 3;
// A page that has gone somewhere by itself within this time does so again, for all that is known.
constexpr std::chrono::seconds restlessFor{2};

} // namespace

const QString ChromiumPage::emptyPage = u"about:blank"_s;

struct ChromiumPage::EventRow
{
    QLatin1StringView method;
    Handler handler;
};

const ChromiumPage::EventRow ChromiumPage::eventRows[] = {
    {"Target.attachedToTarget"_L1, &ChromiumPage::onAttached},
    {"Target.detachedFromTarget"_L1, &ChromiumPage::onDetached},
    {"Target.targetDestroyed"_L1, &ChromiumPage::onDestroyed},
    {"Target.targetCrashed"_L1, &ChromiumPage::onCrashed},
    {"Page.javascriptDialogOpening"_L1, &ChromiumPage::onDialog},
    {"Page.frameNavigated"_L1, &ChromiumPage::onFrameNavigated},
    {"Page.navigatedWithinDocument"_L1, &ChromiumPage::onFrameMoved},
    {"Page.frameDetached"_L1, &ChromiumPage::onFrameRemoved},
    {"Page.lifecycleEvent"_L1, &ChromiumPage::onLifecycle},
    {"Page.frameStartedNavigating"_L1, &ChromiumPage::onStartedNavigating},
    {"Page.frameStoppedLoading"_L1, &ChromiumPage::onStoppedLoading},
};

ChromiumPage::ChromiumPage(std::shared_ptr<DevToolsConnection> connection)
    : mConnection(std::move(connection)), mTargets(*mConnection), mReader(*mConnection), mWatch(*mConnection)
{
    QObject::connect(mConnection.get(), &DevToolsConnection::event, this, &ChromiumPage::handleEvent);
    QObject::connect(mConnection.get(), &DevToolsConnection::closed, this, &ChromiumPage::onDied);
    QObject::connect(mConnection.get(), &DevToolsConnection::idle, this, &ChromiumPage::noticed);
    QObject::connect(&mTargets, &TargetWatch::windowWanted, this, &ChromiumPage::windowWanted);
    QObject::connect(&mTargets, &TargetWatch::processLost, this, &ChromiumPage::onProcessLost);
    QObject::connect(&mTargets, &TargetWatch::windowReplaced, this, &ChromiumPage::onWindowReplaced);
    QObject::connect(&mTargets, &TargetWatch::windowClosed, this, &ChromiumPage::onClosed);
    QObject::connect(&mWatch, &NavigationWatch::pageStuck, this, &ChromiumPage::onPageStuck);
    mTargets.attach();
    mTopFrame = mTargets.target(); // the top frame of a page goes by its target's name
    mAddress = mTargets.address();
    mReader.setPage(mTargets.session(), mTopFrame);
}

ChromiumPage::~ChromiumPage()
{
    abandon();
}

void ChromiumPage::abandon()
{
    mClosed = true;
    mConnection->abandon();
}

void ChromiumPage::requireWindow() const
{
    if (mClosed || !mConnection->isOpen())
        throw RuntimeError(EngineError::BrowserGone, u"The browser's window is no longer there."_s);
}

DevToolsConnection::Then ChromiumPage::whileAlive(std::function<void(const DevToolsConnection::Answer &)> then)
{
    return [self = QPointer<ChromiumPage>(this), then = std::move(then)](const DevToolsConnection::Answer &answer) {
        if (self)
            then(answer);
    };
}

// ---- What is asked of the page

void ChromiumPage::navigate(const QString &address)
{
    requireWindow();
    mRequested = address;
    mStuck = 0;
    mRepetitions = 0;
    mLeft = mLeaving;
    ++mNavigations;
    std::erase_if(mNotices, [](const PageNotice &each) { return each.kind == PageNotice::Kind::LoadingEnded; });
    const bool restless = !std::exchange(mRestless, QDeadlineTimer()).hasExpired();
    if (mLeaving)
        (void)mLoading.begin();
    else if (!restless || isMoveWithin() || !leave())
        requestAsUsual();
}

void ChromiumPage::requestAsUsual()
{
    if (mPlain)
        requestWithScripts();
    else
        request();
}

// A page that goes on by itself sets out again whenever the next one is about to take its place, and so prevents it or
// takes that place again. Its process is ended, which takes all of that along. Once for each page that is asked for:
// what stands in the way then is that page itself.
bool ChromiumPage::leave()
{
    if (std::exchange(mLeft, true))
        return false;
    (void)mLoading.begin();
    mLeaving = true;
    mStuck = 1;
    mConnection->send(mTargets.session(), "Page.crash"_L1);
    mWatch.processEnding();
    return true;
}

bool ChromiumPage::isMoveWithin() const
{
    return mRequested.contains(u'#') && mRequested.section(u'#', 0, 0) == mAddress.section(u'#', 0, 0);
}

// A page that is left needs its scripts no more; one that never ends can be broken off only before the browser begins
// to put the next document in its place, and one that reloads itself would take that place again. A move within the
// page does not leave it.
void ChromiumPage::breakOff()
{
    if (isMoveWithin())
        return;
    mConnection->send(mTargets.session(), "Runtime.terminateExecution"_L1);
    mConnection->send(mTargets.session(), "Page.stopLoading"_L1);
}

void ChromiumPage::request()
{
    breakOff();
    mLostProcess = false;
    const int number = mLoading.begin();
    mWatch.begin(mTargets.session());
    mConnection->send(mTargets.session(), "Page.navigate"_L1, {{u"url"_s, mRequested}},
                      whileAlive([this, number](const auto &answer) { answered(number, answer); }));
}

void ChromiumPage::answered(int number, const DevToolsConnection::Answer &answer)
{
    const QString error = answer.failed() ? answer.error : answer.result[u"errorText"].toString();
    switch (mLoading.answered(number, answer.result[u"loaderId"].toString(), error)) {
    case PageLoading::Verdict::Ended:
        loadingEnded();
        break;
    case PageLoading::Verdict::Moved:
        notice({PageNotice::Kind::PageComplete, mAddress});
        loadingEnded();
        break;
    case PageLoading::Verdict::Aborted:
        if (mLostProcess)
            requestAfterLoss();
        else
            settle(number);
        break;
    case PageLoading::Verdict::Wait:
        if (mLoading.isDocumentComing())
            mWatch.documentComing();
        break;
    case PageLoading::Verdict::Outdated:
        break;
    }
}

// The browser answers in order: with the answer to a harmless question it has told all that went before.
void ChromiumPage::settle(int number)
{
    mConnection->send(mTargets.session(), "Page.getNavigationHistory"_L1, {}, whileAlive([this, number](const auto &) {
                          if (mLoading.isOvertaken() && leave())
                              return;
                          if (mLoading.settle(number))
                              loadingEnded();
                      }));
}

// A document that was about to take its place in the lost process is lost with it.
void ChromiumPage::requestAfterLoss()
{
    if (mRepetitions++ < repetitionsAtMost)
        request();
    else if (mLoading.cancel())
        loadingEnded();
}

// An old page that does not let go loses its process; if that does not help, its window.
void ChromiumPage::onPageStuck()
{
    switch (++mStuck) {
    case 1:
        mConnection->send(mTargets.session(), "Page.crash"_L1);
        mWatch.processEnding();
        break;
    case 2:
        mTargets.replaceWindow();
        break;
    default:
        if (mLoading.cancel())
            loadingEnded();
    }
}

void ChromiumPage::onWindowReplaced()
{
    mLeaving = false;
    mTopFrame = mTargets.target();
    mAddress = emptyPage;
    mUnreachable.clear();
    mDocuments.clear();
    mReader.setPage(mTargets.session(), mTopFrame);
    ++mNavigations;
    if (std::exchange(mPlain, false) && mLoadsPlain)
        letScriptsRun(false);
    if (mLoading.isLoading())
        request();
}

void ChromiumPage::stop()
{
    requireWindow();
    mConnection->send(mTargets.session(), "Page.stopLoading"_L1);
    mLeaving = false;
    if (mLoading.cancel())
        loadingEnded();
}

QString ChromiumPage::address() const
{
    requireWindow();
    return mUnreachable.isEmpty() ? mAddress : mUnreachable;
}

void ChromiumPage::setBound(const QString &name, int pixels)
{
    requireWindow();
    const QJsonObject window =
        mConnection->call({}, "Browser.getWindowForTarget"_L1, {{u"targetId"_s, mTargets.target()}}, windowCallLimit);
    const QJsonValue id = window[u"windowId"];
    if (window[u"bounds"][u"windowState"].toString() != "normal"_L1)
        mConnection->call({}, "Browser.setWindowBounds"_L1,
                          {{u"windowId"_s, id}, {u"bounds"_s, QJsonObject{{u"windowState"_s, u"normal"_s}}}},
                          windowCallLimit);
    mConnection->call({}, "Browser.setWindowBounds"_L1,
                      {{u"windowId"_s, id}, {u"bounds"_s, QJsonObject{{name, pixels}}}}, windowCallLimit);
}

// What cannot be had is no reason to end a transfer: it then goes without.
QJsonObject ChromiumPage::askBrowser(const QString &session, QLatin1StringView method, const QJsonObject &params)
{
    const auto held = mConnection;
    try {
        requireWindow();
        return held->call(session, method, params, windowCallLimit);
    } catch (const RuntimeError &) {
        return {};
    }
}

QString ChromiumPage::userAgent()
{
    // The same for as long as the browser runs.
    if (mUserAgent.isEmpty())
        mUserAgent = askBrowser({}, "Browser.getVersion"_L1, {})[u"userAgent"].toString();
    return mUserAgent;
}

QString ChromiumPage::cookiesFor(const QString &url)
{
    const QJsonObject answer = askBrowser(mTargets.session(), "Network.getCookies"_L1, {{u"urls"_s, QJsonArray{url}}});
    const QJsonArray told = answer[u"cookies"].toArray();
    QList<QJsonValue> cookies(told.cbegin(), told.cend());
    // The longer paths first, as they are sent. Those of one path are told in any order, each time in another.
    std::sort(cookies.begin(), cookies.end(), [](const QJsonValue &one, const QJsonValue &other) {
        const auto place = [](const QJsonValue &cookie) {
            return std::tuple(-cookie[u"path"].toString().size(), cookie[u"name"].toString(),
                              cookie[u"domain"].toString());
        };
        return place(one) < place(other);
    });
    QStringList pairs;
    for (const QJsonValue &cookie : cookies) {
        const QString name = cookie[u"name"].toString();
        pairs.append(name.isEmpty() ? cookie[u"value"].toString() : name + u'=' + cookie[u"value"].toString());
    }
    return pairs.join("; "_L1);
}

// ---- What the browser tells

void ChromiumPage::handleEvent(const QString &session, const QString &method, const QJsonObject &params)
{
    for (const EventRow &row : eventRows) {
        if (row.method == method)
            return (this->*row.handler)(session, params);
    }
}

void ChromiumPage::onAttached(const QString &session, const QJsonObject &params)
{
    mTargets.attached(session, params);
}

void ChromiumPage::onDetached(const QString &, const QJsonObject &params)
{
    mTargets.detached(params);
}

void ChromiumPage::onDestroyed(const QString &, const QJsonObject &params)
{
    mTargets.destroyed(params);
}

void ChromiumPage::onCrashed(const QString &, const QJsonObject &params)
{
    mTargets.crashed(params);
}

void ChromiumPage::onDialog(const QString &session, const QJsonObject &params)
{
    DialogAnswers::answer(*mConnection, session, params);
}

void ChromiumPage::onFrameNavigated(const QString &session, const QJsonObject &params)
{
    if (!mTargets.isOfPage(session))
        return;
    const QJsonObject frame = params[u"frame"].toObject();
    const QString id = frame[u"id"].toString();
    const QString url = frame[u"url"].toString() + frame[u"urlFragment"].toString();
    const QString loader = frame[u"loaderId"].toString();
    const bool top = session == mTargets.session() && !frame.contains(u"parentId");
    const bool isOurs = mLoading.isDocumentComing() && !mLoading.isOvertaken();
    if (top && mLoading.isWaitingForDocument() && !isOurs && (mLeaving || leave()))
        return;
    if (top)
        mDocuments.clear();
    mDocuments[id] = {.loader = loader, .url = url};
    if (!top)
        return;
    mTopFrame = id;
    mAddress = url;
    mUnreachable = frame[u"unreachableUrl"].toString();
    mLoading.committed(loader, mUnreachable.isEmpty() ? PageLoading::Document::Page : PageLoading::Document::ErrorPage);
    if (!mLoading.isWaitingForDocument())
        mWatch.end();
    mReader.documentChanged(id);
}

void ChromiumPage::onFrameMoved(const QString &session, const QJsonObject &params)
{
    const QString url = params[u"url"].toString();
    const auto document = mDocuments.find(params[u"frameId"].toString());
    if (document != mDocuments.end())
        document->url = url;
    if (session != mTargets.session() || params[u"frameId"].toString() != mTopFrame)
        return;
    mAddress = url;
    if (mLoading.movedWithinPage()) {
        notice({PageNotice::Kind::PageComplete, mAddress});
        loadingEnded();
    }
}

// A frame that goes to another process is told of there.
void ChromiumPage::onFrameRemoved(const QString &session, const QJsonObject &params)
{
    if (mTargets.isOfPage(session) && params[u"reason"].toString() != "swap"_L1)
        mDocuments.remove(params[u"frameId"].toString());
}

// Documents that were there before us are told once more when we come; they are in no row and do not count.
void ChromiumPage::onLifecycle(const QString &session, const QJsonObject &params)
{
    if (params[u"name"].toString() != "load"_L1 || !mTargets.isOfPage(session))
        return;
    const QString frame = params[u"frameId"].toString();
    const QString loader = params[u"loaderId"].toString();
    const auto document = mDocuments.find(frame);
    if (document == mDocuments.end() || document->loader != loader || std::exchange(document->complete, true))
        return;
    const bool top = frame == mTopFrame;
    const QString url = top && !mUnreachable.isEmpty() ? mUnreachable : document->url;
    notice({top ? PageNotice::Kind::PageComplete : PageNotice::Kind::FrameComplete, url});
    if (top && mLoading.documentLoaded(loader))
        loadingEnded();
}

void ChromiumPage::onStartedNavigating(const QString &session, const QJsonObject &params)
{
    if (session != mTargets.session() || params[u"frameId"].toString() != mTopFrame)
        return;
    if (!mLoadsPlain)
        letScriptsRun(true); // the user does, or the page itself
    if (!mLoading.isWaitingForDocument())
        mRestless = QDeadlineTimer(restlessFor);
    mLoading.started(params[u"loaderId"].toString());
}

void ChromiumPage::onStoppedLoading(const QString &session, const QJsonObject &params)
{
    if (session != mTargets.session() || params[u"frameId"].toString() != mTopFrame)
        return;
    if (mLoading.stopped())
        loadingEnded();
    else if (mLoading.isMoving())
        settleMove();
}

// The word of a move comes from the page itself, which answers in order; one that has not come with its answer to a
// harmless question never will.
void ChromiumPage::settleMove()
{
    mConnection->send(mTargets.session(), "Runtime.evaluate"_L1, {{u"expression"_s, u"0"_s}, {u"silent"_s, true}},
                      whileAlive([this](const auto &) {
                          if (mLoading.isMoving() && mLoading.cancel())
                              loadingEnded();
                      }));
}

void ChromiumPage::onProcessLost()
{
    mLostProcess = true;
    mReader.processLost();
    mDocuments.clear();
    if (std::exchange(mLeaving, false))
        requestAsUsual();
    else if (mLoading.isDocumentComing())
        requestAfterLoss();
    else if (mLoading.processLost())
        loadingEnded();
}

void ChromiumPage::onClosed()
{
    end(PageNotice::Kind::Closed);
}

// A browser that its user ends has closed its windows before.
void ChromiumPage::onDied()
{
    end(PageNotice::Kind::Died);
}

void ChromiumPage::end(PageNotice::Kind how)
{
    if (std::exchange(mClosed, true))
        return;
    mReader.processLost(); // a read under way ends at once
    // First of all: whoever hears that loading has ended must know already that the browser has.
    mNotices.clear();
    notice({how});
    if (mLoading.cancel())
        notice({PageNotice::Kind::LoadingEnded});
    (void)mLoading.processLost();
}

void ChromiumPage::loadingEnded()
{
    mWatch.end();
    notice({PageNotice::Kind::LoadingEnded});
}

// ---- What the owner is told

void ChromiumPage::notice(PageNotice notice)
{
    mNotices.push_back(std::move(notice));
    Q_EMIT noticed();
}

std::optional<PageNotice> ChromiumPage::takeNotice()
{
    if (mNotices.empty() || mConnection->isWaiting())
        return std::nullopt;
    PageNotice first = std::move(mNotices.front());
    mNotices.pop_front();
    return first;
}
