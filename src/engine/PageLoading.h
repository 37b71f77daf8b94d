// When a page counts as loading, and whether it has arrived: a small machine that is told what a browser reports of the
// top frame. Serves both engines and knows neither, so every order of events can be tried without a browser.
//
// A load begins with begin() and ends with the load event of a document that was put in place since then. Which
// document that is does not matter: a server's redirection, a script that moves on before its page is complete, a
// scheme that the browser has changed by itself all put another one in place than was asked for. Documents that belong
// to an earlier begin() do not count.
#pragma once

#include "browser/BrowserEngine.h"

#include <QSet>
#include <QString>

class PageLoading
{
  public:
    using Arrival = BrowserEngine::Arrival;

    /// What follows from what the browser tells.
    enum class Verdict {
        Wait,    ///< a document is coming, or word of a move within the page, or of a document's end of loading
        Ended,   ///< loading has ended; after an answer: nothing is coming, the request is no address
        Moved,   ///< it was a move within the page, and loading has ended
        Aborted, ///< a download, no content, or replaced: settle(), once the browser has told all it knows
        Outdated ///< what was told belongs to an earlier begin()
    };

    /// What a document is: one that was asked for, or the browser's own page about an error.
    enum class Document { Page, ErrorPage };

    /// How a browser says that a load has ended when it does not say which one.
    enum class End { Stopped, Loaded };

    [[nodiscard]] bool isLoading() const { return mStep != Step::Idle; }
    /// True from begin() until a document is put in place or loading ends.
    [[nodiscard]] bool isWaitingForDocument() const { return mStep > Step::Idle && mStep < Step::Committed; }
    /// Failed once, a page that goes on by itself does not arrive any more.
    [[nodiscard]] Arrival arrival() const { return mArrival; }

    /// True when the browser has the document and is about to put it in place; a loss of the process takes it along.
    [[nodiscard]] bool isDocumentComing() const { return isWaitingForDocument() && !mRequested.isEmpty(); }

    /// True when the answer was a move within the page, of which there is no word yet.
    [[nodiscard]] bool isMoving() const { return mStep == Step::Moving; }

    /// A page has been asked for; what comes of earlier requests does not count. Gives the number that its answer is
    /// known by.
    int begin();
    /// The browser is being given the address, at first or once more. `busy`: it still works on an earlier load, the
    /// end of which it may tell of without saying which one it is.
    void issued(bool busy);
    /// `loader` names the coming document, "" when there is none; `error` is the browser's text, "" for success.
    Verdict answered(int number, const QString &loader, const QString &error);
    /// For a browser that tells of an end without saying whose it is; `sameAddress`: it names the address asked for.
    /// Wait: only the document in place knows, see documentFound().
    Verdict endTold(End end, bool sameAddress);

    // Each of these gives True when it ends the load.
    bool settle(int number);
    bool movedWithinPage();
    bool documentLoaded(const QString &loader);
    /// The document in place has said that it is complete.
    bool documentFound();
    bool stopped();
    bool processLost();
    bool cancel();

    /// The page has begun to load another one by itself; its end is told as if it had been asked for.
    void resumed();
    /// A request for a document of the top frame has left the browser.
    void started(const QString &loader) { mStarted = loader; }
    [[nodiscard]] bool hasStarted() const { return !mStarted.isEmpty(); }
    /// Another request of the top frame has left the browser behind the one that is awaited: either may come.
    [[nodiscard]] bool isOvertaken() const { return isDocumentComing() && hasStarted() && mStarted != mRequested; }
    /// The document has told of its own load event, where loading ends with more than that.
    void documentComplete(const QString &loader) { mComplete = loader; }
    /// A document has been put in place in the top frame.
    void committed(const QString &loader, Document document = Document::Page);

  private:
    // In the order in which a load goes through them.
    enum class Step {
        Idle,
        Asked,
        Refused,   // the request has been answered with an error
        Moving,    // the answer says that it is a move within the page
        Committed, // a document that counts is in place
        Resumed    // the page loads another one by itself
    };
    bool end();

    Step mStep = Step::Idle;
    Arrival mArrival = Arrival::Arrived;
    Arrival mStanding = Arrival::Arrived; // what the document in place is
    bool mMoved = false;                  // the page has moved within itself
    bool mBusy = false;                   // see issued()
    int mNumber = 0;
    QString mCurrent;        // the document in place
    QString mComplete;       // the document that has told of its load event
    QString mStarted;        // the latest request of the top frame
    QString mRequested;      // the document that the answer named
    QSet<QString> mOutdated; // documents that do not count
};
