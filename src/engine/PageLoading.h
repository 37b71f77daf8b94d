// When a page counts as loading: a small machine that is told what the browser reports of the top frame. Knows neither
// the protocol nor a connection, so every order of events can be tried without a browser.
//
// A load begins with begin() and ends with the load event of a document that was put in place since then. Which
// document that is does not matter: a server's redirection, a script that moves on before its page is complete, a
// scheme that the browser has changed by itself all put another one in place than was asked for. Documents that belong
// to an earlier begin() do not count.
#pragma once

#include <QSet>
#include <QString>

class PageLoading
{
  public:
    /// What follows from the browser's answer to the request for a page.
    enum class Verdict {
        Wait,    ///< a document is coming, or word of a move within the page
        Ended,   ///< nothing is coming: the request is no address
        Moved,   ///< it was a move within the page, and loading has ended
        Aborted, ///< a download, no content, or replaced: settle(), once the browser has told all it knows
        Outdated ///< the answer belongs to an earlier begin()
    };

    [[nodiscard]] bool isLoading() const { return mLoading; }
    /// True from begin() until a document is put in place or loading ends.
    [[nodiscard]] bool isWaitingForDocument() const { return mLoading && !mCommitted; }

    /// True when the browser has the document and is about to put it in place; a loss of the process takes it along.
    [[nodiscard]] bool isDocumentComing() const { return isWaitingForDocument() && !mRequested.isEmpty(); }

    /// True when the answer was a move within the page, of which there is no word yet.
    [[nodiscard]] bool isMoving() const { return mLoading && mMoving; }

    /// A page has been asked for; what comes of earlier requests does not count. Gives the number that its answer is
    /// known by.
    int begin();
    /// `loader` names the coming document, "" when there is none; `error` is the browser's text, "" for success.
    Verdict answered(int number, const QString &loader, const QString &error);

    // Each of these gives True when it ends the load.
    bool settle(int number);
    bool movedWithinPage();
    bool documentLoaded(const QString &loader);
    bool stopped();
    bool processLost();
    bool cancel();

    /// A request for a document of the top frame has left the browser.
    void started(const QString &loader) { mStarted = loader; }
    /// A document has been put in place in the top frame. False when it will not stay: the old page has set out for
    /// another one while ours was on its way, and that will take its place.
    [[nodiscard]] bool committed(const QString &loader);

  private:
    bool end();

    bool mLoading = false;
    bool mAnswered = false;  // the request has been answered with an error
    bool mCommitted = false; // a document that counts is in place
    bool mMoving = false;    // the answer says that it is a move within the page
    bool mMoved = false;     // the page has moved within itself
    int mNumber = 0;
    QString mCurrent;        // the document in place
    QString mStarted;        // the latest request of the top frame
    QString mRequested;      // the document that the answer named
    QSet<QString> mOutdated; // documents that do not count
};
