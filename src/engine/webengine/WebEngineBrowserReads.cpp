// What is read of the built-in browser's page.
#include "engine/BrowserErrors.h"
#include "engine/webengine/WebEngineAddress.h"
#include "engine/webengine/WebEngineBrowser.h"
#include "engine/webengine/WebEngineReader.h"

#include <QClipboard>
#include <QEventLoop>
#include <QGuiApplication>
#include <QMetaMethod>
#include <QPointer>
#include <QScopeGuard>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {
constexpr std::chrono::milliseconds askAgain{20};
constexpr QLatin1StringView partNames[] = {"html"_L1, "text"_L1};
} // namespace

void WebEngineBrowser::raiseIfClosed() const
{
    if (mProcess == Process::Closed)
        throw RuntimeError(EngineError::BrowserGone, QStringLiteral("The browser's window has been closed."));
}

void WebEngineBrowser::requireReadable() const
{
    raiseIfClosed();
    if (mLoading.isWaitingForDocument())
        throw RuntimeError(EngineError::NotArrived, QStringLiteral("The page has not arrived yet."));
    if (!isAlive())
        throw RuntimeError(EngineError::BrowserGone, QStringLiteral("The page's process has ended."));
    if (mRefusing > 0)
        throw RuntimeError(EngineError::BrowserGone, QStringLiteral("The page waits for its new window."));
}

QStringList WebEngineBrowser::read(QLatin1StringView what, int frame)
{
    requireReadable();
    const QPointer self(this);
    ++mReads;
    const auto leave = qScopeGuard([self] {
        if (self && --self->mReads == 0)
            self->emitSoon();
    });
    const QDeadlineTimer deadline(mOptions.readLimit);
    if (!mPlain) {
        try {
            return mReader->read(what, frame, deadline, mScriptLimit);
        } catch (const RuntimeError &error) {
            if (!self || error.number() != EngineError::NoAnswer || deadline.hasExpired())
                throw;
        }
        const QDeadlineTimer patience(mScriptLimit * 4 / 5); // that of a run ends ten seconds behind the page's wait
        loadPlain(patience);
        if (!self)
            throw RuntimeError(EngineError::BrowserGone, QStringLiteral("The browser is gone."));
        requireReadable();
        (void)mReader->read("frameCount"_L1, -1, patience, mScriptLimit); // it answers, or is given up
    }
    return mReader->read(what, frame, deadline, mOptions.readLimit);
}

// The process that did not answer has been ended. Also without scripts a page may keep its process busy for long, and
// cannot be stopped there: its parser alone does, with tens of thousands of elements inside one another. What it has
// after a while is what is read.
void WebEngineBrowser::loadPlain(QDeadlineTimer patience)
{
    const QPointer self(this);
    mPlain = true;
    mAddress = QUrl::fromEncoded(mLocation.toUtf8());
    request();
    mReissued = mNavigation;
    issue();
    QEventLoop loop;
    QTimer look;
    connect(&look, &QTimer::timeout, &loop, &QEventLoop::quit);
    look.start(askAgain);
    QDeadlineTimer whole(QDeadlineTimer::Forever);
    while (self && isLoading() && mProcess != Process::Closed && !std::min(patience, whole).hasExpired()) {
        loop.exec(QEventLoop::ExcludeUserInputEvents);
        if (self && whole.isForever() && !mLoading.isWaitingForDocument())
            whole = QDeadlineTimer(mScriptLimit / 2);
    }
    if (self && isAlive() && isLoading() && !mLoading.isWaitingForDocument())
        Stop();
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
