// What the browser driver needs of a browser: the whole of it, whichever engine stands behind. Knows no engine.
//
// All calls and all signals are on the user-interface thread. A call that reads is synchronous for its caller, lets no
// user input in, and takes at most `readLimit`; no signal is emitted while one is under way (what happened meanwhile
// is emitted from the event loop afterwards). What cannot be read raises a RuntimeError.
#pragma once

#include "util/Errors.h"

#include <QObject>
#include <QStringList>
#include <chrono>
#include <memory>

/// What stands on the page at one moment.
struct PageContent
{
    QString html;  ///< innerHTML of the root element
    QString title; ///< LocationName
    QString url;   ///< LocationURL
};

class BrowserEngine : public QObject
{
    Q_OBJECT

  public:
    static constexpr std::chrono::seconds readLimit{30};
    /// How long a script or a layout may keep a read waiting, unless setScriptLimit says otherwise.
    static constexpr std::chrono::seconds usualScriptLimit{5};

    enum class Part { Html, Text };

    /// What has become of the page that the latest Navigate asked for.
    enum class Arrival {
        Pending, ///< there is no document of its own yet: reading is an error, at once
        Arrived, ///< a document of its own stands there, or the document stood there before the first Navigate
        Failed   ///< nothing came (a download, no content, stopped), the browser's own error page stands there, or the
                 ///< page's process has died; stays until the next Navigate
    };

    /// Opens `address` in the same window with a plain GET. Returns once it is issued; never waits for the page.
    virtual void Navigate(const QString &address) = 0;
    /// Cancels the load in progress.
    virtual void Stop() = 0;
    /// True from Navigate until the page has finished loading, failed, turned into a download, or lost its process.
    [[nodiscard]] virtual bool isLoading() const = 0;
    [[nodiscard]] virtual Arrival arrival() const = 0;

    /// Geometry of the browser's window in pixels; engines without a window of their own ignore it.
    virtual void setTop(int pixels) = 0;
    virtual void setLeft(int pixels) = 0;
    virtual void setWidth(int pixels) = 0;
    virtual void setHeight(int pixels) = 0;

    [[nodiscard]] virtual QString LocationURL() = 0;
    [[nodiscard]] virtual QString LocationName() = 0;
    /// innerHTML or innerText of the top document's root element; "" without one.
    [[nodiscard]] virtual QString documentPart(Part part) = 0;
    /// Markup, title and address of the top document, all read at one moment.
    [[nodiscard]] virtual PageContent content() = 0;
    /// href of each member of the top document's `links`, absolute, in document order.
    [[nodiscard]] virtual QStringList links() = 0;
    /// Number of frames of the top document.
    [[nodiscard]] virtual int frameCount() = 0;
    /// The same for the document of frame `index`, from 0. A frame of another site raises an error.
    [[nodiscard]] virtual QString framePart(int index, Part part) = 0;
    [[nodiscard]] virtual QStringList frameLinks(int index) = 0;

    /// A page that keeps a read waiting for longer is made to answer: its scripts are broken off, or do without. What
    /// it has by then is what is read.
    virtual void setScriptLimit(std::chrono::milliseconds limit) = 0;

    /// Copies the page's selection to the clipboard.
    virtual void copySelection() = 0;
    /// Lets the user save the page.
    virtual void saveAs() = 0;

    /// What the browser calls itself to servers; "" if it cannot be given.
    [[nodiscard]] virtual QString userAgent() = 0;
    /// The value of the header "Cookie" with which the browser would ask for `url`, the same each time while the
    /// cookies are; "" without any, or if it cannot be given.
    [[nodiscard]] virtual QString cookiesFor(const QString &url) = 0;

  Q_SIGNALS:
    /// Once for each frame that was loaded and once for the whole page, in that order.
    void DocumentComplete(const QString &url, bool topDocument);
    /// A page wants to open a window; set `*cancel` to refuse it. Always emitted directly.
    void NewWindow2(bool *cancel);
    /// The user has closed the browser's window. The engine answers nothing from then on.
    void WindowClosing();
    /// The browser has ended by itself, its window with it: it may be started again. The engine answers nothing from
    /// then on. Comes in the place of WindowClosing, never with it.
    void Died();
    /// isLoading() has turned False.
    void loadingEnded();
};

/// Ways to a browser; both programs hand one in.
class BrowserFactory
{
  public:
    virtual ~BrowserFactory() = default;
    /// The built-in browser, or nothing where there is none.
    [[nodiscard]] virtual std::shared_ptr<BrowserEngine> internalBrowser() = 0;
    /// A free-standing browser window of ours that runs already, or nothing.
    [[nodiscard]] virtual std::shared_ptr<BrowserEngine> runningBrowser() = 0;
    /// Starts the free-standing browser's program; its window is found by runningBrowser() once it answers.
    virtual void start(const QString &programPath) = 0;
    /// The program that is started where no other is set; "" if none is installed.
    [[nodiscard]] virtual QString defaultProgram() const = 0;
    /// True for the file name of a program that can be driven, as in "chromium".
    [[nodiscard]] virtual bool isDrivable(const QString &fileName) const = 0;
};
