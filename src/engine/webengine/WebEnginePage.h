// A page that nobody sits in front of: whatever it asks is refused at once, so that nothing on it can stop a run. Knows
// nothing of loading and reading (WebEngineBrowser).
//
// Refused: alert, confirm, prompt, print, passwords, permissions, wrong certificates, client certificates, downloads,
// file choosers, full screen, protocol handlers, file access, addresses of other programs. Leaving a page is allowed
// whatever the page says. A new window never opens.
#pragma once

#include <QWebEnginePage>

class QWebEngineLoadingInfo;

class WebEnginePage : public QWebEnginePage
{
    Q_OBJECT

  public:
    /// `profile` must outlive the page. `token` begins each message of our own script: no page may know it.
    WebEnginePage(QWebEngineProfile *profile, const QString &token);
    [[nodiscard]] static QString newToken();

    [[nodiscard]] bool hasDocument() const { return mHasDocument; }
    /// More has been begun than documents have come of it, or is begun again and again: what is told next may be of any
    /// of that.
    [[nodiscard]] bool isUnderWay() const { return mUnderWay > 0 || !mSentOnTo.isEmpty() || mCalls > 1; }

  Q_SIGNALS:
    /// The page wants a new window and does not get it. Emitted from within the browser's own work: the page must not
    /// be deleted, and nothing read from it, before the handler has returned.
    void windowRefused();
    /// The page has begun to go to the address that it was given, or somewhere by itself.
    void navigationBegun(bool asGiven);
    /// A frame's document has come into being. `url` is as the document itself names it.
    void documentCreated(const QString &url, bool topDocument);
    /// A frame's document has been loaded.
    void documentLoaded(const QString &url, bool topDocument);

  protected:
    bool acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame) override;
    QWebEnginePage *createWindow(WebWindowType type) override;
    QStringList chooseFiles(FileSelectionMode mode, const QStringList &oldFiles,
                            const QStringList &acceptedMimeTypes) override;
    void javaScriptAlert(const QUrl &securityOrigin, const QString &message) override;
    bool javaScriptConfirm(const QUrl &securityOrigin, const QString &message) override;
    bool javaScriptPrompt(const QUrl &securityOrigin, const QString &message, const QString &defaultValue,
                          QString *result) override;
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString &message, int lineNumber,
                                  const QString &sourceId) override;

  private:
    void setUp();
    void refuseRequests();
    void listenToFrames();
    void begin(const QUrl &url, bool asGiven);
    void decide(bool byPage);
    void onTopDocument(const QString &url);
    void onLoadingChanged(const QWebEngineLoadingInfo &info);

    QString mToken;
    bool mHasDocument = false;
    bool mNameless = false; // a document on it has no origin by which its requests could be told from ours
    int mUnderWay = 0;      // navigations of the top frame of which no document has come
    int mCalls = 0;         // for other programs, which are begun unasked and come to nothing
    QUrl mLatest;           // where the latest of them goes
    QUrl mSentOnTo;         // by a server or a script of the page's own, which is not known yet
};
