// What is read of the free-standing browser's page.
#include "engine/BrowserErrors.h"
#include "engine/chromium/ChromiumPage.h"

#include <QScopedValueRollback>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::chrono::seconds confirmLimit{5};
constexpr auto scriptsSwitch = "Emulation.setScriptExecutionDisabled"_L1;

} // namespace

void ChromiumPage::requireDocument() const
{
    requireWindow();
    if (mLoading.isWaitingForDocument()) // nor would the browser answer before it comes
        throw RuntimeError(EngineError::NotArrived, u"The page has not arrived yet."_s);
}

QStringList ChromiumPage::read(QLatin1StringView what, int frame)
{
    requireDocument();
    const QDeadlineTimer deadline(BrowserEngine::readLimit);
    try {
        return mReader.read(what, frame, deadline);
    } catch (const RuntimeError &error) {
        if (error.number() != EngineError::NoAnswer || mPlain || deadline.hasExpired())
            throw;
    }
    loadPlain(deadline);
    requireDocument();
    return mReader.read(what, frame, deadline);
}

void ChromiumPage::letScriptsRun(bool run)
{
    if (mPlain == !run)
        return;
    mPlain = !run;
    mConnection->send(mTargets.session(), scriptsSwitch, {{u"value"_s, mPlain}});
}

// A page that comes before the browser has confirmed the word might be without scripts still. One that hangs and so
// keeps the answer back is seen to by the watch.
void ChromiumPage::requestWithScripts()
{
    (void)mLoading.begin();
    mWatch.begin(mTargets.session());
    mConnection->send(mTargets.session(), scriptsSwitch, {{u"value"_s, false}},
                      whileAlive([this, navigation = mNavigations](const DevToolsConnection::Answer &answer) {
                          if (!answer.failed())
                              mPlain = false;
                          else
                              letScriptsRun(true); // its process has gone; the next one is told
                          if (navigation == mNavigations && mLoading.isLoading())
                              request();
                      }));
}

// The process that did not answer has gone. A new one takes no word about scripts before it has a document: an empty
// one comes first, of which nobody is told. Not before that word is confirmed the page may come: it would run its
// scripts once more. What it has after a while is what is read.
void ChromiumPage::loadPlain(QDeadlineTimer deadline)
{
    const QScopedValueRollback loadsPlain(mLoadsPlain, true);
    const QString address = std::exchange(mAddress, {});
    load(emptyPage, deadline);
    mPlain = true;
    mConnection->call(mTargets.session(), scriptsSwitch, {{u"value"_s, true}}, confirmLimit);
    load(address, deadline);
    if (mLoading.isLoading() && !mLoading.isWaitingForDocument())
        stop();
}

void ChromiumPage::load(const QString &address, QDeadlineTimer deadline)
{
    requireWindow();
    std::erase_if(mNotices, [](const PageNotice &notice) { return notice.url == emptyPage; });
    mRequested = address;
    mLeft = true; // there is no old page
    request();
    mConnection->waitUntil([this] { return !mLoading.isWaitingForDocument(); }, deadline);
    const QDeadlineTimer patience(mReader.patience() / 2);
    mConnection->waitUntil([this] { return !mLoading.isLoading(); }, std::min(deadline, patience));
    requireWindow();
}

PageContent ChromiumPage::content()
{
    const QStringList texts = read("content"_L1);
    PageContent result{.html = texts.value(0), .title = texts.value(1), .url = texts.value(2)};
    if (!mUnreachable.isEmpty() && result.url == mAddress)
        result.url = mUnreachable;
    return result;
}
