// One page window of a Chromium-family browser, driven over its DevTools protocol: everything of the free-standing
// browser but its signals. What has happened is kept as notices, for the owner to tell when it may.
//
// Held by a shared_ptr: a call that waits keeps the page alive to its end, also when its owner goes in the meantime.
#pragma once

#include "browser/BrowserEngine.h"
#include "engine/PageLoading.h"
#include "engine/chromium/NavigationWatch.h"
#include "engine/chromium/PageReader.h"
#include "engine/chromium/TargetWatch.h"

#include <QHash>
#include <deque>
#include <optional>

/// Something that the owner is to be told.
struct PageNotice
{
    enum class Kind { FrameComplete, PageComplete, LoadingEnded, Closed, Died };
    Kind kind;
    QString url = {}; ///< of the document that is complete
};

class ChromiumPage : public QObject
{
    Q_OBJECT

  public:
    /// Attaches to the window. Raises a RuntimeError.
    explicit ChromiumPage(std::shared_ptr<DevToolsConnection> connection);
    ~ChromiumPage() override;

    void navigate(const QString &address);
    void stop();
    [[nodiscard]] bool isLoading() const { return mLoading.isLoading(); }
    [[nodiscard]] BrowserEngine::Arrival arrival() const { return mLoading.arrival(); }
    /// The address of the top document, as the browser has last told it.
    [[nodiscard]] QString address() const;
    /// As PageReader::read. A page that has lost its process by it is loaded once more without scripts, and read so.
    [[nodiscard]] QStringList read(QLatin1StringView what, int frame = -1);
    /// The address of an error page is that of the page which could not be shown.
    [[nodiscard]] PageContent content();
    void setScriptLimit(std::chrono::milliseconds limit) { mReader.setPatience(limit); }
    /// Sets one edge or extent ("left", "top", "width", "height") of the window.
    void setBound(const QString &name, int pixels);
    /// As BrowserEngine has them.
    [[nodiscard]] QString userAgent();
    [[nodiscard]] QString cookiesFor(const QString &url);

    /// The next notice, unless a wait is under way or there is none.
    [[nodiscard]] std::optional<PageNotice> takeNotice();
    /// Lets go of the browser, which runs on; every wait ends with an error.
    void abandon();

  Q_SIGNALS:
    /// There may be a notice to take.
    void noticed();
    void windowWanted(bool *cancel);

  private:
    struct Document
    {
        QString loader;
        QString url;
        bool complete = false;
    };
    using Handler = void (ChromiumPage::*)(const QString &session, const QJsonObject &params);
    struct EventRow;
    static const EventRow eventRows[];
    static const QString emptyPage;

    void handleEvent(const QString &session, const QString &method, const QJsonObject &params);
    void onAttached(const QString &session, const QJsonObject &params);
    void onDetached(const QString &session, const QJsonObject &params);
    void onDestroyed(const QString &session, const QJsonObject &params);
    void onCrashed(const QString &session, const QJsonObject &params);
    void onDialog(const QString &session, const QJsonObject &params);
    void onFrameNavigated(const QString &session, const QJsonObject &params);
    void onFrameMoved(const QString &session, const QJsonObject &params);
    void onFrameRemoved(const QString &session, const QJsonObject &params);
    void onLifecycle(const QString &session, const QJsonObject &params);
    void onStartedNavigating(const QString &session, const QJsonObject &params);
    void onStoppedLoading(const QString &session, const QJsonObject &params);

    [[nodiscard]] QJsonObject askBrowser(const QString &session, QLatin1StringView method, const QJsonObject &params);
    void request();
    void requestAsUsual();
    [[nodiscard]] bool leave();
    [[nodiscard]] bool isMoveWithin() const;
    void requestWithScripts();
    void letScriptsRun(bool run);
    void loadPlain(QDeadlineTimer deadline);
    void load(const QString &address, QDeadlineTimer deadline);
    void requireDocument() const;
    void answered(int number, const DevToolsConnection::Answer &answer);
    void settle(int number);
    void settleMove();
    void breakOff();
    void requestAfterLoss();
    void onPageStuck();
    void onWindowReplaced();
    void onProcessLost();
    void onClosed();
    void onDied();
    void end(PageNotice::Kind how);
    void loadingEnded();
    void notice(PageNotice notice);
    void requireWindow() const;
    DevToolsConnection::Then whileAlive(std::function<void(const DevToolsConnection::Answer &)> then);

    std::shared_ptr<DevToolsConnection> mConnection;
    TargetWatch mTargets;
    PageReader mReader;
    NavigationWatch mWatch;
    PageLoading mLoading;
    QHash<QString, Document> mDocuments; // by frame
    QString mTopFrame;
    QString mAddress;
    QString mUnreachable;      // what the error page in place stands for
    QString mRequested;        // the latest Navigate
    QString mUserAgent;        // once it has been asked for
    bool mLostProcess = false; // since the latest request
    int mRepetitions = 0;      // of the latest Navigate
    int mStuck = 0;            // how often the old page has held up the latest Navigate
    int mNavigations = 0;      // counts Navigate, and the windows that have taken the place of one
    bool mPlain = false;       // the page was loaded without scripts
    bool mLoadsPlain = false;  // it is being loaded so
    QDeadlineTimer mRestless;  // until then the page counts as one that goes on by itself
    bool mLeft = false;        // the latest Navigate has cost the old page its process
    bool mLeaving = false;     // it is about to
    bool mClosed = false;
    std::deque<PageNotice> mNotices;
};
