#include "engine/chromium/ChromiumBrowser.h"
#include "engine/BrowserErrors.h"
#include "engine/chromium/ChromiumPage.h"

#include <QClipboard>
#include <QGuiApplication>

using namespace Qt::Literals::StringLiterals;

namespace {

QLatin1StringView wordFor(BrowserEngine::Part part)
{
    return part == BrowserEngine::Part::Html ? "html"_L1 : "text"_L1;
}

} // namespace

ChromiumBrowser::ChromiumBrowser(std::shared_ptr<ChromiumPage> page) : mPage(std::move(page))
{
    QObject::connect(mPage.get(), &ChromiumPage::noticed, this, &ChromiumBrowser::deliverSoon);
    QObject::connect(mPage.get(), &ChromiumPage::windowWanted, this, &ChromiumBrowser::NewWindow2);
    deliverSoon();
}

ChromiumBrowser::~ChromiumBrowser()
{
    mPage->abandon();
}

void ChromiumBrowser::deliverSoon()
{
    if (!mDeliveryDue)
        mDeliveryDue = QMetaObject::invokeMethod(this, &ChromiumBrowser::deliver, Qt::QueuedConnection);
}

// One a turn of the event loop: handlers may be slower than a page that never ends completing, and whatever else waits
// for its turn must get it. The handler may wait, and so let the next delivery in, or may be the end of this object.
void ChromiumBrowser::deliver()
{
    mDeliveryDue = false;
    const std::optional<PageNotice> notice = mPage->takeNotice();
    if (!notice)
        return;
    deliverSoon();
    switch (notice->kind) {
    case PageNotice::Kind::FrameComplete:
    case PageNotice::Kind::PageComplete:
        Q_EMIT DocumentComplete(notice->url, notice->kind == PageNotice::Kind::PageComplete);
        break;
    case PageNotice::Kind::LoadingEnded:
        Q_EMIT loadingEnded();
        break;
    case PageNotice::Kind::Closed:
        Q_EMIT WindowClosing();
        break;
    case PageNotice::Kind::Died:
        Q_EMIT Died();
        break;
    }
}

// Each call holds the page by itself: what is called from within its wait may destroy this object.

void ChromiumBrowser::Navigate(const QString &address)
{
    mPage->navigate(address);
}

void ChromiumBrowser::Stop()
{
    mPage->stop();
}

bool ChromiumBrowser::isLoading() const
{
    return mPage->isLoading();
}

BrowserEngine::Arrival ChromiumBrowser::arrival() const
{
    return mPage->arrival();
}

void ChromiumBrowser::setTop(int pixels)
{
    const auto page = mPage;
    page->setBound(u"top"_s, pixels);
}

void ChromiumBrowser::setLeft(int pixels)
{
    const auto page = mPage;
    page->setBound(u"left"_s, pixels);
}

void ChromiumBrowser::setWidth(int pixels)
{
    const auto page = mPage;
    page->setBound(u"width"_s, pixels);
}

void ChromiumBrowser::setHeight(int pixels)
{
    const auto page = mPage;
    page->setBound(u"height"_s, pixels);
}

QString ChromiumBrowser::LocationURL()
{
    return mPage->address();
}

QString ChromiumBrowser::LocationName()
{
    const auto page = mPage;
    return page->read("title"_L1).value(0);
}

QString ChromiumBrowser::documentPart(Part part)
{
    const auto page = mPage;
    return page->read(wordFor(part)).value(0);
}

PageContent ChromiumBrowser::content()
{
    const auto page = mPage;
    return page->content();
}

QStringList ChromiumBrowser::links()
{
    const auto page = mPage;
    return page->read("links"_L1);
}

int ChromiumBrowser::frameCount()
{
    const auto page = mPage;
    return page->read("frameCount"_L1).value(0).toInt();
}

QString ChromiumBrowser::framePart(int index, Part part)
{
    const auto page = mPage;
    return page->read(wordFor(part), index).value(0);
}

QStringList ChromiumBrowser::frameLinks(int index)
{
    const auto page = mPage;
    return page->read("links"_L1, index);
}

void ChromiumBrowser::setScriptLimit(std::chrono::milliseconds limit)
{
    mPage->setScriptLimit(limit);
}

// A browser without a window has no clipboard but its own, so the text comes over and is put there from here.
void ChromiumBrowser::copySelection()
{
    const auto page = mPage;
    const QString text = page->read("selection"_L1).value(0);
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()) == nullptr)
        throw RuntimeError(EngineError::CannotDo, u"There is no clipboard without a display."_s);
    if (!text.isEmpty())
        QGuiApplication::clipboard()->setText(text);
}

void ChromiumBrowser::saveAs()
{
    throw RuntimeError(EngineError::CannotDo, u"Use the browser's own menu to save the page."_s);
}

QString ChromiumBrowser::userAgent()
{
    const auto page = mPage;
    return page->userAgent();
}

QString ChromiumBrowser::cookiesFor(const QString &url)
{
    const auto page = mPage;
    return page->cookiesFor(url);
}
