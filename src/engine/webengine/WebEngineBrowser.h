// The built-in browser: a page of its own with a profile of its own, with or without a view on it. Knows no widget.
//
// A page that does not answer a read within the script limit loses its process, and is loaded once more in another one,
// plain: without scripts, and not laid out. One that does not answer at all even then, for nearly as long again, or not
// to its end within the read limit, is given up; reads then raise an error, as after a crash, until the next Navigate()
// has brought a document. A page that is on its way somewhere else when it is left, or sets out while the next one is
// awaited, stays behind: the next one gets a page and a process of its own, as what is told of either could be of both.
// The last reference to the browser may be dropped anywhere, in a handler of one of its own
// signals too. Reads raise an error inside a handler of NewWindow2, since the page waits for its end.
#pragma once

#include "browser/EmbeddedBrowser.h"
#include "engine/PageLoading.h"

#include <QDeadlineTimer>
#include <QUrl>
#include <deque>
#include <functional>

class QWebEngineLoadingInfo;
class QWebEngineProfile;
class WebEngineCookies;
class WebEnginePage;
class WebEngineReader;

struct WebEngineOptions
{
    /// Cookies, cache and storage of pages lie here; "" keeps them in memory. One browser at a time on one folder.
    QString storageFolder = {};
    std::chrono::milliseconds readLimit = BrowserEngine::readLimit;
    /// How long a page that is to be left may hold up the next one.
    std::chrono::milliseconds leaveLimit = std::chrono::milliseconds(2500);
};

class WebEngineBrowser : public EmbeddedBrowser
{
    Q_OBJECT

  public:
    /// prepareWebEngine() must have been called before the application object was made.
    explicit WebEngineBrowser(const WebEngineOptions &options = {});
    ~WebEngineBrowser() override;

    [[nodiscard]] QWebEnginePage *page() const override;

    /// Raises an error for what is no address. A move within the page has ended when this returns.
    void Navigate(const QString &address) override;
    void Stop() override;
    [[nodiscard]] bool isLoading() const override { return mLoading.isLoading(); }
    [[nodiscard]] Arrival arrival() const override { return mLoading.arrival(); }

    // The window sets its own geometry.
    void setTop(int) override {}
    void setLeft(int) override {}
    void setWidth(int) override {}
    void setHeight(int) override {}

    /// "about:blank" before the first page. Asks no page, so it never fails before windowClosed().
    [[nodiscard]] QString LocationURL() override;
    /// The title, or the address where that is empty.
    [[nodiscard]] QString LocationName() override;
    [[nodiscard]] QString documentPart(Part part) override;
    [[nodiscard]] PageContent content() override;
    [[nodiscard]] QStringList links() override;
    [[nodiscard]] int frameCount() override;
    [[nodiscard]] QString framePart(int index, Part part) override;
    [[nodiscard]] QStringList frameLinks(int index) override;

    void setScriptLimit(std::chrono::milliseconds limit) override { mScriptLimit = limit; }
    /// The selected text goes to the clipboard; nothing happens without a selection.
    void copySelection() override;
    /// Emits saveRequested(); raises an error when nobody listens.
    void saveAs() override;

    [[nodiscard]] QString userAgent() override;
    [[nodiscard]] QString cookiesFor(const QString &url) override;

  public Q_SLOTS:
    void goBack() override;
    void reload() override;
    void windowClosed() override;

  private:
    struct Kernel;

    /// What stands behind the page.
    enum class Process {
        Alive,
        Lost,     ///< or left to itself, and with it the document: nothing can be read until another one has come
        Changing, ///< the same, and the address is about to be given to a new one
        Closed    ///< the window has been closed: nothing is answered any more
    };

    void makePage();
    void replacePage();
    void connectPage();
    void onLoadingChanged(const QWebEngineLoadingInfo &info);
    void onUrlChanged(const QUrl &url);
    void onDocumentCreated(const QString &url, bool topDocument);
    void onDocumentLoaded(const QString &url, bool topDocument);
    void askWhetherLoaded();
    void onReadyState(const QString &state);
    [[nodiscard]] bool isAlive() const { return mProcess == Process::Alive; }
    void onProcessGone();
    void onWindowRefused();
    void tellEnd(bool withDocument);
    void request();
    void issue();
    void issueSoon();
    void onNavigationBegun(bool asGiven);
    [[nodiscard]] bool leaveIfInTheWay();
    void leavePage();
    [[nodiscard]] QString awaited() const;
    void watchLeaving(const std::shared_ptr<bool> &answered, QDeadlineTimer patience);
    void onLeaveLimit();
    void loadPlain(QDeadlineTimer patience);
    void requireReadable() const;
    void endProcess();
    void keepVisible();
    [[nodiscard]] QStringList read(QLatin1StringView what, int frame = -1);
    [[nodiscard]] QString readPart(Part part, int frame);
    void raiseIfClosed() const;
    void emitLater(std::function<void()> emission);
    void emitSoon();
    void emitDue();

    std::unique_ptr<Kernel> mKernel;
    std::unique_ptr<WebEngineReader> mReader;
    WebEngineOptions mOptions;

    std::deque<std::function<void()>> mDue; ///< signals that wait for the event loop, in order
    bool mEmissionDue = false;              ///< the event loop has been asked for a turn
    QString mLocation = QStringLiteral("about:blank");
    QUrl mAddress; ///< of the navigation under way
    PageLoading mLoading;
    Process mProcess = Process::Alive;
    int mNavigation = 0; ///< the latest navigation, as PageLoading counts them
    int mReissued = 0;   ///< the navigation that has been given to a second process
    int mDocuments = 0;  ///< counts the documents that have come into being
    QString mDocument;   ///< the name of the latest, for PageLoading
    int mRefusing = 0;   ///< handlers of NewWindow2 on the stack
    int mReads = 0;      ///< reads under way
    bool mPlain = false; ///< the page is loaded without scripts
    std::chrono::milliseconds mScriptLimit = usualScriptLimit;
};
