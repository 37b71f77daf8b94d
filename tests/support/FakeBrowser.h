// A browser that holds pages instead of loading them. What a page is, how long it takes and how it fails is set by the
// test; until it has arrived the page before it stands there, as in a real browser.
#pragma once

#include "browser/BrowserEngine.h"
#include "support/FakePump.h"

#include <QHash>
#include <QPointer>
#include <memory>
#include <optional>

struct FakeFrame
{
    QString html;
    QString text;
    QStringList links;
    bool refused = false; ///< a frame of another site
};

struct FakePage
{
    QString html = QStringLiteral("<head></head><body>nothing</body>");
    QString title;
    QString text;
    QStringList links;
    qint64 loadTime = 0;
    QString landsOn; ///< the address after a redirect; "" for the page's own
    std::optional<RuntimeError> readingFails = {};
    QList<FakeFrame> frames = {};
    bool fails = false;   ///< what arrives is the browser's own error page
    bool nothing = false; ///< nothing arrives, as for a download: the page before it stays
};

class FakeBrowser : public BrowserEngine
{
  public:
    explicit FakeBrowser(FakePump &pump) : mPump(pump) {}

    void Navigate(const QString &address) override
    {
        requireAlive();
        navigated.append(address);
        if (navigationFails)
            throw RuntimeError(*navigationFails);
        const int number = ++mNumber;
        mLoading = true;
        mArrival = Arrival::Pending;
        mPump.after(pages.value(address).loadTime, [self = QPointer<FakeBrowser>(this), number, address] {
            if (self && self->mNumber == number)
                self->arrive(address);
        });
    }
    void Stop() override
    {
        requireAlive();
        ++stops;
        ++mNumber;
        endLoading();
    }
    [[nodiscard]] bool isLoading() const override { return mLoading; }
    [[nodiscard]] Arrival arrival() const override { return mArrival; }

    void setTop(int pixels) override { geometry.append(QStringLiteral("top %1").arg(pixels)); }
    void setLeft(int pixels) override { geometry.append(QStringLiteral("left %1").arg(pixels)); }
    void setWidth(int pixels) override { geometry.append(QStringLiteral("width %1").arg(pixels)); }
    void setHeight(int pixels) override { geometry.append(QStringLiteral("height %1").arg(pixels)); }

    [[nodiscard]] QString LocationURL() override
    {
        requireAlive();
        return mAddress;
    }
    [[nodiscard]] QString LocationName() override { return current().title; }
    [[nodiscard]] QString documentPart(Part part) override
    {
        ++reads;
        return part == Part::Html ? current().html : current().text;
    }
    [[nodiscard]] PageContent content() override
    {
        ++reads;
        const FakePage &page = current();
        return {page.html, page.title, mAddress};
    }
    [[nodiscard]] QStringList links() override
    {
        ++reads;
        return current().links;
    }
    [[nodiscard]] int frameCount() override { return static_cast<int>(current().frames.size()); }
    [[nodiscard]] QString framePart(int index, Part part) override
    {
        const FakeFrame &frame = frameAt(index);
        return part == Part::Html ? frame.html : frame.text;
    }
    [[nodiscard]] QStringList frameLinks(int index) override { return frameAt(index).links; }
    void setScriptLimit(std::chrono::milliseconds limit) override { scriptLimit = limit; }
    void copySelection() override { ++copies; }
    void saveAs() override { ++saves; }
    [[nodiscard]] QString userAgent() override { return agent; }
    [[nodiscard]] QString cookiesFor(const QString &url) override { return cookies.value(url); }

    /// The page is there at once, without a navigation.
    void show(const QString &address)
    {
        mAddress = address;
        mPage = pages.value(address);
    }
    /// The user closes the window: nothing answers from then on.
    void close()
    {
        leave();
        Q_EMIT WindowClosing();
    }
    /// The browser ends by itself: nothing answers from then on.
    void die()
    {
        leave();
        Q_EMIT Died();
    }
    /// The page's process ends; the browser lives, and the next page arrives.
    void loseProcess()
    {
        mPage.readingFails = RuntimeError(462, QStringLiteral("The page's process has ended."));
        mArrival = Arrival::Failed;
        endLoading();
    }
    [[nodiscard]] bool popUpIsRefused()
    {
        bool cancel = false;
        Q_EMIT NewWindow2(&cancel);
        return cancel;
    }

    QHash<QString, FakePage> pages;
    QHash<QString, QString> cookies;
    std::chrono::milliseconds scriptLimit = usualScriptLimit;
    QString agent = QStringLiteral("Fake/1.0");
    QStringList navigated;
    QStringList geometry;
    std::optional<RuntimeError> navigationFails;
    int stops = 0, reads = 0, copies = 0, saves = 0;

  private:
    void requireAlive() const
    {
        if (mGone)
            throw RuntimeError(462, QStringLiteral("The remote server machine does not exist or is unavailable"));
    }
    [[nodiscard]] const FakePage &current() const
    {
        requireAlive();
        if (mArrival == Arrival::Pending)
            throw RuntimeError(71, QStringLiteral("The page has not arrived yet."));
        if (mPage.readingFails)
            throw RuntimeError(*mPage.readingFails);
        return mPage;
    }
    [[nodiscard]] const FakeFrame &frameAt(int index) const
    {
        const FakeFrame &frame = current().frames.at(index);
        if (frame.refused)
            throw RuntimeError(70, QStringLiteral("Permission denied"));
        return frame;
    }
    void leave()
    {
        mGone = true;
        mLoading = false;
        mArrival = Arrival::Failed;
    }
    void arrive(const QString &address)
    {
        const FakePage page = pages.value(address);
        mArrival = page.fails || page.nothing ? Arrival::Failed : Arrival::Arrived;
        if (page.nothing) {
            endLoading();
            return;
        }
        show(address);
        if (!mPage.landsOn.isEmpty())
            mAddress = mPage.landsOn;
        Q_EMIT DocumentComplete(mAddress, true);
        endLoading();
    }
    void endLoading()
    {
        const bool ended = std::exchange(mLoading, false);
        if (mArrival == Arrival::Pending)
            mArrival = Arrival::Failed;
        if (ended)
            Q_EMIT loadingEnded();
    }

    FakePump &mPump;
    FakePage mPage;
    QString mAddress;
    int mNumber = 0;
    bool mLoading = false;
    Arrival mArrival = Arrival::Arrived;
    bool mGone = false;
};

/// Hands out fake browsers.
class FakeFactory : public BrowserFactory
{
  public:
    explicit FakeFactory(FakePump &pump) : mPump(pump) {}

    [[nodiscard]] std::shared_ptr<BrowserEngine> internalBrowser() override { return internal; }
    [[nodiscard]] std::shared_ptr<BrowserEngine> runningBrowser() override { return running; }
    void start(const QString &programPath) override
    {
        started.append(programPath);
        if (startFails)
            throw RuntimeError(*startFails);
        if (startsAfter >= 0)
            mPump.after(startsAfter, [this] { running = std::make_shared<FakeBrowser>(mPump); });
    }
    [[nodiscard]] QString defaultProgram() const override { return program; }
    [[nodiscard]] bool isDrivable(const QString &fileName) const override { return fileName == u"chromium"; }

    std::shared_ptr<FakeBrowser> internal, running;
    QString program;
    QStringList started;
    std::optional<RuntimeError> startFails;
    qint64 startsAfter = -1; ///< milliseconds from start() to a window; never with -1

  private:
    FakePump &mPump;
};
