// Reads a page by questions to its process, each answered later, and waits for the answers: synchronous for the caller.
// Knows nothing of loading.
//
// While a question waits, the event loop runs without user input. Deleting the reader meanwhile is safe: the read ends
// with an error. A document that is replaced under a question takes the answer with it; the question is then put again.
#pragma once

#include "util/Errors.h"

#include <QDeadlineTimer>
#include <QObject>
#include <QStringList>
#include <chrono>
#include <memory>
#include <vector>

class QWebEnginePage;
class ReaderAnswer;

class WebEngineReader : public QObject
{
    Q_OBJECT

  public:
    /// `page` must outlive the reader, or the next setPage().
    explicit WebEngineReader(QWebEnginePage &page) : mPage(&page) {}
    ~WebEngineReader() override;

    /// From now on `page` is read; reads under way should have been ended.
    void setPage(QWebEnginePage &page) { mPage = &page; }
    /// The answer of the page's reader (js/reader.js) to `what`, of frame `frame` or of the top document with -1.
    /// `deadline` is for all of it, `patience` for each question of which there may be several. Raises a RuntimeError:
    /// what the document refuses, no answer in time, fail().
    [[nodiscard]] QStringList read(QLatin1StringView what, int frame, QDeadlineTimer deadline,
                                   std::chrono::milliseconds patience);
    /// Ends every read that is under way with this error.
    void fail(const RuntimeError &error);
    /// Asks whether the page's process answers at all; `*answered` is set when it does.
    void probe(const std::shared_ptr<bool> &answered);

  Q_SIGNALS:
    /// A question found no answer in time. Emitted before the read raises its error.
    void unanswered();

  private:
    struct Question;

    [[nodiscard]] QVariant ask(const QString &script, QDeadlineTimer deadline);
    void wait(const std::shared_ptr<Question> &question, const QDeadlineTimer &deadline);
    void put(const std::shared_ptr<Question> &question);
    void putAgainIfLost(const std::shared_ptr<Question> &question);
    /// Fetches what is missing of a long answer; False when the document was replaced meanwhile.
    [[nodiscard]] bool fetch(ReaderAnswer &answer, QDeadlineTimer deadline, std::chrono::milliseconds patience);

    QWebEnginePage *mPage;
    std::vector<std::weak_ptr<Question>> mOpen;
};
