// Reads the document of one page over its DevTools session, in a script world of its own: one round trip for each read
// while the world is known. A page that does not answer is made to.
//
// A script that never ends is broken off after a while; what the page had built by then is what is read. A page that
// does not answer even so, or not by the deadline, loses its process.
#pragma once

#include "browser/BrowserEngine.h"
#include "engine/chromium/DevToolsConnection.h"

#include <QStringList>

class ReaderAnswer;

class PageReader : public QObject
{
    Q_OBJECT

  public:
    static constexpr std::chrono::seconds patienceAgain{1};
    static constexpr int breakOffsAtMost = 2;

    /// `connection` must outlive the reader.
    explicit PageReader(DevToolsConnection &connection) : mConnection(connection) {}

    /// From now on another page is read, the top frame of which is `frame`.
    void setPage(const QString &session, const QString &frame);
    /// The document has changed: its world is asked for ahead of the next read.
    void documentChanged(const QString &frame);
    /// The page's process is gone; reads raise an error until documentChanged or setPage.
    void processLost();

    /// How long a script may keep a read waiting before it is broken off.
    void setPatience(std::chrono::milliseconds patience) { mPatience = patience; }
    [[nodiscard]] std::chrono::milliseconds patience() const { return mPatience; }

    /// Runs `what` of js/reader.js for the document of frame `index` (-1: the top document). Raises a RuntimeError,
    /// NoAnswer when the page has lost its process by it.
    [[nodiscard]] QStringList read(QLatin1StringView what, int index, QDeadlineTimer deadline);

  private:
    struct World
    {
        int context = 0; // 0 until the browser has answered
        bool asked = false;
        QString error;
    };
    enum class Outcome { Value, Lost, BrokenOff };

    void askForWorld();
    [[nodiscard]] int world(QDeadlineTimer deadline);
    [[nodiscard]] QJsonValue evaluate(const QString &expression, QDeadlineTimer deadline);
    [[nodiscard]] Outcome tryEvaluate(const QString &expression, QDeadlineTimer deadline, bool mayBreakOff,
                                      QJsonValue &value);
    [[nodiscard]] bool waitPatiently(const std::function<bool()> &done, QDeadlineTimer deadline, bool mayBreakOff);
    /// Fetches what is missing of a long answer; False when the document was replaced meanwhile.
    [[nodiscard]] bool fetch(ReaderAnswer &answer, QDeadlineTimer deadline);
    [[noreturn]] void giveUpPage();

    DevToolsConnection &mConnection;
    QString mSession;
    QString mFrame;
    World mWorld;
    int mDocument = 0; // counts documents, so that a late answer is known as one
    bool mLost = false;
    std::chrono::milliseconds mPatience = BrowserEngine::usualScriptLimit;
};
