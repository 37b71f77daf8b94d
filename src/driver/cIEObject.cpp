#include "driver/cIEObject.h"

#include "pages/EmailFinder.h"
#include "pages/ServerTypes.h"
#include "pages/TagContent.h"
#include "util/Text.h"

using namespace Qt::StringLiterals;

namespace {
constexpr auto module = "cIEObject"_L1;
constexpr quint32 browserIsBusy = 0x800700AA;
constexpr int shortestPage = 10;

bool beginsWithProtocol(QStringView address)
{
    return std::any_of(protocolTypes.begin(), protocolTypes.end(),
                       [&](QStringView protocol) { return cUtility::startsWithIgnoringCase(address, protocol); });
}
} // namespace

cIEObject::cIEObject(ErrorReceiver &log, Desktop &desktop, ClipboardText &clipboard, BrowserFactory &browsers)
    : mLog(log), mDesktop(desktop), mClipboard(clipboard), mBrowsers(browsers)
{
}

cIEObject::~cIEObject() = default;

BrowserEngine *cIEObject::engine() const
{
    if (!moIE)
        throw RuntimeError(ErrorNumber::ObjectNotSet, u"Object variable or With block variable not set"_s);
    return moIE.get();
}

template <class Result, class Body> Result cIEObject::read(QLatin1StringView location, Result result, Body body)
{
    if (!mbHasBrowser)
        return result;
    return guardedResult(mLog, {module, location}, std::move(result), body);
}

template <class Body> void cIEObject::act(QLatin1StringView location, Body body)
{
    if (mbHasBrowser)
        guarded(mLog, {module, location}, body);
}

bool cIEObject::InitializeObject(std::shared_ptr<BrowserEngine> browser)
{
    guarded(mLog, {module, "Function InitializeObject"_L1}, [&] {
        if (moIE)
            moIE->disconnect(this);
        moIE = browser ? std::move(browser) : GetActiveBrowser();
        if (!moIE)
            return;
        mbHasBrowser = true;
        connect(moIE.get(), &BrowserEngine::DocumentComplete, this, &cIEObject::DocumentComplete);
        connect(moIE.get(), &BrowserEngine::NewWindow2, this, &cIEObject::NewWindow2, Qt::DirectConnection);
        connect(moIE.get(), &BrowserEngine::WindowClosing, this, &cIEObject::WindowClosing);
        connect(moIE.get(), &BrowserEngine::Died, this, &cIEObject::Died);
        connect(moIE.get(), &BrowserEngine::loadingEnded, this, &cIEObject::loadingEnded);
    });
    return mbHasBrowser;
}

std::shared_ptr<BrowserEngine> cIEObject::GetActiveBrowser()
{
    return guardedResult(mLog, {module, "Function GetActiveBrowser"_L1}, std::shared_ptr<BrowserEngine>(),
                         [&](auto &found) { found = mBrowsers.runningBrowser(); });
}

QString cIEObject::InternetExplorerPath() const
{
    return msIEPath.isEmpty() ? mBrowsers.defaultProgram() : msIEPath;
}

void cIEObject::IEStop()
{
    act("Sub IETop"_L1, [&] { engine()->Stop(); });
}

void cIEObject::IETop(int pixels)
{
    act("Sub IETop"_L1, [&] { engine()->setTop(pixels); });
}

void cIEObject::IELeft(int pixels)
{
    act("Sub IELeft"_L1, [&] { engine()->setLeft(pixels); });
}

void cIEObject::IEWidth(int pixels)
{
    act("Sub IEWidth"_L1, [&] { engine()->setWidth(pixels); });
}

void cIEObject::IEHeight(int pixels)
{
    act("Sub IEHeight"_L1, [&] { engine()->setHeight(pixels); });
}

void cIEObject::NavigateToUrl(const QString &address)
{
    if (!mbHasBrowser)
        return;
    try {
        if (beginsWithProtocol(address))
            engine()->Navigate(address);
        else if (address.contains(u'@'))
            mDesktop.open("mailto:"_L1 + address + "?Subject=Hello"_L1);
        else
            engine()->Navigate("http://"_L1 + address);
    } catch (...) {
        const RuntimeError error = currentError();
        if (static_cast<quint32>(error.number()) != browserIsBusy)
            mLog.ErrorLogger(error.number(), error.description(), module, u"NavigateToUrl"_s);
    }
}

QString cIEObject::GetSiteUrl()
{
    return read("Function GetSiteUrl"_L1, QString(), [&](QString &url) { url = engine()->LocationURL(); });
}

QString cIEObject::GetSiteTitle()
{
    return read("Function GetSiteTitle"_L1, QString(), [&](QString &title) { title = engine()->LocationName(); });
}

QString cIEObject::GetBrowserHTML()
{
    return read("GetBrowserHtml"_L1, QString(),
                [&](QString &html) { html = engine()->documentPart(BrowserEngine::Part::Html); });
}

QString cIEObject::GetBrowserText()
{
    return read("GetBrowserText"_L1, QString(),
                [&](QString &text) { text = engine()->documentPart(BrowserEngine::Part::Text); });
}

std::optional<PageContent> cIEObject::GetPage()
{
    return read("GetBrowserHtml"_L1, std::optional<PageContent>(), [&](auto &page) { page = engine()->content(); });
}

QStringList cIEObject::GetLinksOnWebPage()
{
    return read("GetLinksOnWebPage"_L1, mbHasBrowser ? emptyList() : QStringList(),
                [&](QStringList &links) { links = orEmptyList(engine()->links()); });
}

QStringList cIEObject::GetLinksOnAllFrames(bool topDocumentOnly)
{
    constexpr auto location = "Function GetLinksOnAllFrames"_L1;
    return read(location, mbHasBrowser ? emptyList() : QStringList(), [&](QStringList &links) {
        const int highest = topDocumentOnly ? -1 : FrameCount();
        bool refused = highest < 1;
        // Each frame starts over at the front and cuts off what the frame before it left behind.
        for (int i = 0; i <= highest && !refused; ++i) {
            refused = !guarded(mLog, {module, location}, [&] {
                if (const QStringList found = engine()->frameLinks(i); !found.isEmpty())
                    links = found;
            });
        }
        if (refused)
            links = orEmptyList(engine()->links());
    });
}

QString cIEObject::allFrames(BrowserEngine::Part part, QLatin1StringView location)
{
    return read(location, QString(), [&](QString &all) {
        const int highest = FrameCount();
        if (highest < 1)
            all = engine()->documentPart(part);
        else
            for (int i = 0; i <= highest; ++i)
                all += engine()->framePart(i, part);
    });
}

QString cIEObject::GetHTMLFromAllFrames()
{
    return allFrames(BrowserEngine::Part::Html, "Function GetHTMLFromAllFrames"_L1);
}

QString cIEObject::GetTextFromAllFrames()
{
    return allFrames(BrowserEngine::Part::Text, "Function GetTextFromAllFrames"_L1);
}

int cIEObject::FrameCount()
{
    return read("Function FrameCount"_L1, 0, [&](int &highest) { highest = engine()->frameCount() - 1; });
}

QString cIEObject::GetFrame(int index)
{
    return read("Function Frame"_L1, QString(), [&](QString &html) {
        if (index >= 0 && index < FrameCount())
            html = engine()->framePart(index, BrowserEngine::Part::Html);
    });
}

QString cIEObject::CopySelection()
{
    return read("CopySelection"_L1, QString(), [&](QString &text) {
        engine()->copySelection();
        text = mClipboard.text();
    });
}

void cIEObject::SaveWebPage()
{
    act("Sub SaveWebPage"_L1, [&] { engine()->saveAs(); });
}

QStringList cIEObject::CollectEmail(const QString &text, const QString &search)
{
    if (text.isEmpty() && !mbHasBrowser)
        return {};
    return guardedResult(mLog, {module, "Function CollectEmail"_L1}, QStringList(), [&](QStringList &found) {
        const QString &markup = text.isEmpty() ? GetBrowserHTML() : text;
        if (!text.isEmpty() || markup.size() >= shortestPage)
            found = cIEText::CollectEmail(markup, search, mLog.ifListening());
    });
}

QStringList cIEObject::Get_HtmlTag_Content(const QString &tag, const QString &endTag, const QString &markup)
{
    if (markup.isEmpty() && !mbHasBrowser)
        return {};
    return guardedResult(mLog, {module, "Get_HtmlTag_Content"_L1}, QStringList(), [&](QStringList &contents) {
        const QString &searched = markup.isEmpty() ? GetBrowserHTML() : markup;
        if (!markup.isEmpty() || searched.size() >= shortestPage)
            contents = cIEText::Get_HtmlTag_Content(tag, endTag, searched, &mLog);
    });
}
