// The only object through which the logic touches a browser: one reference to an engine, its events passed on, and the
// current page as text, markup, links, address and title. The text routines on addresses and mailboxes stand beside it
// (Addresses.h, EmailFinder.h, TagContent.h) and need no browser.
#pragma once

#include "app/Ports.h"
#include "browser/BrowserEngine.h"
#include "util/AddressList.h"

#include <optional>

class cIEObject : public QObject
{
    Q_OBJECT

  public:
    cIEObject(ErrorReceiver &log, Desktop &desktop, ClipboardText &clipboard, BrowserFactory &browsers);
    ~cIEObject() override;

    /// Takes `browser`, or the running one if that is nothing. True once a browser has been taken, also when a later
    /// call finds none; what is then asked of the browser is error 91.
    bool InitializeObject(std::shared_ptr<BrowserEngine> browser);
    /// A free-standing window of ours that runs already, or nothing.
    [[nodiscard]] std::shared_ptr<BrowserEngine> GetActiveBrowser();
    [[nodiscard]] QString InternetExplorerPath() const;
    void setInternetExplorerPath(const QString &path) { msIEPath = path; }
    /// A page is on its way.
    [[nodiscard]] bool isLoading() const { return moIE && moIE->isLoading(); }
    /// What has become of the page that NavigateToUrl has sent the browser to; Failed without a browser.
    [[nodiscard]] BrowserEngine::Arrival arrival() const
    {
        return moIE ? moIE->arrival() : BrowserEngine::Arrival::Failed;
    }
    /// As the browser gives them; "" without one.
    [[nodiscard]] QString userAgent() { return moIE ? moIE->userAgent() : QString(); }
    [[nodiscard]] QString cookiesFor(const QString &url) { return moIE ? moIE->cookiesFor(url) : QString(); }

    // Without a browser each of these does nothing and gives its type's empty value. None of them raises: an error goes
    // to the log, and the result is what was built until then.
    void IEStop();
    void IETop(int pixels);
    void IELeft(int pixels);
    void IEWidth(int pixels);
    void IEHeight(int pixels);
    /// Opens `address`: as it stands with a known protocol, as mail to a bare mailbox, else with "http://" in front.
    void NavigateToUrl(const QString &address);
    [[nodiscard]] QString GetSiteUrl();
    [[nodiscard]] QString GetSiteTitle();
    /// innerHTML of the page's root element.
    [[nodiscard]] QString GetBrowserHTML();
    /// innerText of the page's root element.
    [[nodiscard]] QString GetBrowserText();
    /// Markup, title and address as they stand at one moment; nothing where they cannot be read.
    [[nodiscard]] std::optional<PageContent> GetPage();
    /// Addresses of the page's links, resolved, in document order, repeats as they stand; the empty list without any,
    /// a list without elements without a browser.
    [[nodiscard]] QStringList GetLinksOnWebPage();
    /// The links of the last frame that has any, or those of the page itself.
    [[nodiscard]] QStringList GetLinksOnAllFrames(bool topDocumentOnly);
    /// The frames' markup or text one after the other; the page's own with less than two frames.
    [[nodiscard]] QString GetHTMLFromAllFrames();
    [[nodiscard]] QString GetTextFromAllFrames();
    /// The highest frame index; -1 for a page without frames.
    [[nodiscard]] int FrameCount();
    /// Markup of frame `index`, which must lie below the highest index; "" otherwise.
    [[nodiscard]] QString GetFrame(int index);
    QString CopySelection();
    void SaveWebPage();
    /// Mail addresses in `text`, or in the page's markup where `text` is empty.
    [[nodiscard]] QStringList CollectEmail(const QString &text, const QString &search);
    /// Contents between `tag` and `endTag` in `markup`, or in the page's where that is empty.
    [[nodiscard]] QStringList Get_HtmlTag_Content(const QString &tag, const QString &endTag, const QString &markup);

  Q_SIGNALS:
    /// Once for each loaded frame and once for the page.
    void DocumentComplete(const QString &url, bool topDocument);
    void NewWindow2(bool *cancel);
    void WindowClosing();
    /// The browser has ended by itself and may be started again; comes in the place of WindowClosing.
    void Died();
    /// The page that NavigateToUrl has sent the browser to is there, or will not come.
    void loadingEnded();

  private:
    template <class Result, class Body> Result read(QLatin1StringView location, Result result, Body body);
    template <class Body> void act(QLatin1StringView location, Body body);
    QString allFrames(BrowserEngine::Part part, QLatin1StringView location);
    [[nodiscard]] BrowserEngine *engine() const;

    ErrorReceiver &mLog;
    Desktop &mDesktop;
    ClipboardText &mClipboard;
    BrowserFactory &mBrowsers;
    std::shared_ptr<BrowserEngine> moIE;
    QString msIEPath;
    bool mbHasBrowser = false;
};
