#include "engine/chromium/TargetWatch.h"
#include "engine/BrowserErrors.h"
#include "engine/EngineResources.h"
#include "util/Errors.h"

#include <QJsonArray>
#include <QPointer>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::chrono::seconds callLimit{5};
// A browser that is just starting opens its window a moment after it answers.
constexpr std::chrono::milliseconds firstWindowLimit{1500};
constexpr std::chrono::milliseconds betweenLooks{50};
constexpr std::chrono::seconds pageLimit{3};

const QJsonArray pagesOnly{QJsonObject{{u"type"_s, u"page"_s}}};

QJsonObject autoAttach(const QString &type)
{
    return {{u"autoAttach"_s, true},
            {u"waitForDebuggerOnStart"_s, true},
            {u"flatten"_s, true},
            {u"filter"_s, QJsonArray{QJsonObject{{u"type"_s, type}}}}};
}

// A window that is just closing has no address.
bool isUsable(const QString &address)
{
    return !address.isEmpty() && !address.startsWith("devtools:"_L1);
}

} // namespace

void TargetWatch::attach()
{
    mConnection.call({}, "Target.setDiscoverTargets"_L1, {{u"discover"_s, true}, {u"filter"_s, pagesOnly}}, callLimit);
    const QJsonObject page = findPage();
    mTarget = page[u"targetId"].toString();
    mAddress = page[u"url"].toString();
    mFamily.insert(mTarget);
    mConnection.send({}, "Browser.setDownloadBehavior"_L1, {{u"behavior"_s, u"deny"_s}});
    mConnection.call({}, "Target.setAutoAttach"_L1, autoAttach(u"page"_s), callLimit);
    mConnection.waitUntil([this] { return !mSession.isEmpty(); }, QDeadlineTimer(callLimit));
    if (mSession.isEmpty())
        throw RuntimeError(EngineError::BrowserGone, u"The browser's window cannot be reached."_s);
    awaitPage();
}

// A window that hangs takes no command at all, not even to break its script off.
void TargetWatch::awaitPage()
{
    const auto settled = [this] { return mReady || mGone; };
    if (!mConnection.waitUntil(settled, QDeadlineTimer(pageLimit)) && mConnection.isOpen()) {
        replaceWindow();
        mConnection.waitUntil(settled, QDeadlineTimer(callLimit));
    }
    if (mGone || !mConnection.isOpen())
        throw RuntimeError(EngineError::BrowserGone, u"The browser's window was closed."_s);
    if (!mReady)
        throw RuntimeError(EngineError::NoAnswer, u"The browser's window does not answer."_s);
    keepOpen();
}

// A script may close a window that shows its first page; ours has shown another one before.
void TargetWatch::keepOpen()
{
    if (mAddress == "about:blank"_L1)
        mConnection.send(mSession, "Runtime.evaluate"_L1, {{u"expression"_s, u"history.pushState(null, '')"_s}});
}

QJsonObject TargetWatch::findPage()
{
    const QDeadlineTimer deadline(firstWindowLimit);
    do {
        const QJsonObject answer = mConnection.call({}, "Target.getTargets"_L1, {{u"filter"_s, pagesOnly}}, callLimit);
        for (const QJsonValue each : answer[u"targetInfos"].toArray()) {
            if (isUsable(each[u"url"].toString()))
                return each.toObject();
        }
        mConnection.waitUntil([] { return false; }, QDeadlineTimer(betweenLooks));
    } while (!deadline.hasExpired());
    return mConnection.call({}, "Target.createTarget"_L1, {{u"url"_s, u"about:blank"_s}, {u"newWindow"_s, true}},
                            callLimit);
}

void TargetWatch::attached(const QString &parent, const QJsonObject &params)
{
    const QString session = params[u"sessionId"].toString();
    const QJsonObject info = params[u"targetInfo"].toObject();
    const QString target = info[u"targetId"].toString();
    if (isOfPage(parent)) {
        silence(session);
        preparePage(session);
    } else if (target == mTarget) {
        mSession = session;
        preparePage(session);
        whenReady([] {});
    } else if (mReplacing && !info.contains(u"openerId") && info[u"url"].toString() == "about:blank"_L1) {
        takeReplacement(session, target);
    } else if (mFamily.contains(info[u"openerId"].toString())) {
        decideOnWindow(session, info, params[u"waitingForDebugger"].toBool());
    } else {
        run(session);
        mConnection.send({}, "Target.detachFromTarget"_L1, {{u"sessionId"_s, session}});
    }
}

// Where the old window stood is a matter of taste: without an answer the new one stands where the browser puts it.
void TargetWatch::replaceWindow()
{
    if (std::exchange(mReplacing, true))
        return;
    const QPointer<TargetWatch> self(this);
    mConnection.send({}, "Browser.getWindowForTarget"_L1, {{u"targetId"_s, mTarget}},
                     [self](const DevToolsConnection::Answer &answer) {
                         if (self)
                             self->openReplacement(answer.result[u"bounds"].toObject());
                     });
}

void TargetWatch::openReplacement(const QJsonObject &bounds)
{
    QJsonObject window{{u"url"_s, u"about:blank"_s}, {u"newWindow"_s, true}};
    for (const QString &name : {u"left"_s, u"top"_s, u"width"_s, u"height"_s}) {
        if (bounds.contains(name))
            window.insert(name, bounds[name]);
    }
    mConnection.send({}, "Target.createTarget"_L1, window);
}

void TargetWatch::takeReplacement(const QString &session, const QString &target)
{
    mReplacing = false;
    mReady = false;
    const QString old = std::exchange(mTarget, target);
    mAddress = u"about:blank"_s;
    mSession = session;
    mSessions.clear();
    mFamily.insert(target);
    preparePage(session);
    whenReady([this] {
        keepOpen();
        Q_EMIT windowReplaced();
    });
    mConnection.send({}, "Target.closeTarget"_L1, {{u"targetId"_s, old}});
}

// A page takes our commands one after the other: with the answer to a last one it has taken all.
void TargetWatch::whenReady(std::function<void()> then)
{
    const QPointer<TargetWatch> self(this);
    mConnection.send(mSession, "Page.getFrameTree"_L1, {},
                     [self, session = mSession, then = std::move(then)](const DevToolsConnection::Answer &answer) {
                         if (!self || self->mSession != session || answer.failed())
                             return;
                         self->mReady = true;
                         then();
                     });
}

void TargetWatch::preparePage(const QString &session)
{
    mSessions.insert(session);
    guard(session);
    mConnection.send(session, "Page.setLifecycleEventsEnabled"_L1, {{u"enabled"_s, true}});
    mConnection.send(session, "Page.setInterceptFileChooserDialog"_L1, {{u"enabled"_s, true}, {u"cancel"_s, true}});
    mConnection.send(session, "Target.setAutoAttach"_L1, autoAttach(u"iframe"_s));
    run(session);
}

// From here on the boxes of the page are told, and answered.
void TargetWatch::guard(const QString &session)
{
    static const QString script = QString::fromUtf8(engineResource(u"js/guard.js"_s));
    mConnection.send(session, "Page.enable"_L1);
    mConnection.send(session, "Page.addScriptToEvaluateOnNewDocument"_L1,
                     {{u"source"_s, script}, {u"worldName"_s, u"trawlex"_s}, {u"runImmediately"_s, true}});
}

// Frames of other sites only: in the page's own documents our script would be seen.
void TargetWatch::silence(const QString &session)
{
    static const QString script = QString::fromUtf8(engineResource(u"js/silent-frame.js"_s));
    mConnection.send(session, "Page.addScriptToEvaluateOnNewDocument"_L1,
                     {{u"source"_s, script}, {u"runImmediately"_s, true}});
}

void TargetWatch::decideOnWindow(const QString &session, const QJsonObject &info, bool isNew)
{
    const QPointer<TargetWatch> self(this);
    bool cancel = false;
    if (isNew)
        Q_EMIT windowWanted(&cancel);
    if (!self)
        return;
    mFamily.insert(info[u"targetId"].toString());
    guard(session);
    if (cancel)
        refuse(session, info);
    else
        run(session);
}

// A window that its opener can reach shares that one's process, and holds it: closed while it is held, it would leave
// the process held for ever. So it is let run, without a network, and closed as soon as it runs. Any other window is
// closed while it is held.
void TargetWatch::refuse(const QString &session, const QJsonObject &info)
{
    const QPointer<TargetWatch> self(this);
    const auto closeWindow = [self, target = info[u"targetId"]](const DevToolsConnection::Answer &) {
        if (self)
            self->mConnection.send({}, "Target.closeTarget"_L1, {{u"targetId"_s, target}});
    };
    if (!info[u"canAccessOpener"].toBool())
        return closeWindow({});
    // Offline: requests that are only held would be sent when the window closes. Only the answer tells that the network
    // knows.
    static const QJsonObject offline{
        {u"offline"_s, true}, {u"latency"_s, 0}, {u"downloadThroughput"_s, 0}, {u"uploadThroughput"_s, 0}};
    mConnection.send(session, "Network.enable"_L1);
    mConnection.send(session, "Network.emulateNetworkConditions"_L1, offline,
                     [self, session, closeWindow](const DevToolsConnection::Answer &) {
                         if (self)
                             self->run(session, closeWindow);
                     });
}

void TargetWatch::run(const QString &session, DevToolsConnection::Then then)
{
    mConnection.send(session, "Runtime.runIfWaitingForDebugger"_L1, {}, std::move(then));
}

void TargetWatch::detached(const QJsonObject &params)
{
    mSessions.remove(params[u"sessionId"].toString());
    if (params[u"sessionId"].toString() == mSession)
        close();
}

void TargetWatch::destroyed(const QJsonObject &params)
{
    if (params[u"targetId"].toString() == mTarget)
        close();
}

void TargetWatch::close()
{
    if (!std::exchange(mGone, true))
        Q_EMIT windowClosed();
}

void TargetWatch::crashed(const QJsonObject &params)
{
    if (params[u"targetId"].toString() == mTarget)
        Q_EMIT processLost();
}
