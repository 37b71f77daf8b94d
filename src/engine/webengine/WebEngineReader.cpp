#include "engine/webengine/WebEngineReader.h"
#include "engine/BrowserErrors.h"
#include "engine/ReaderAnswer.h"

#include <QEventLoop>
#include <QPointer>
#include <QTimer>
#include <QVariant>
#include <QWebEnginePage>
#include <QWebEngineScript>

using namespace std::chrono_literals;

namespace {

constexpr auto world = QWebEngineScript::ApplicationWorld;
constexpr auto probeInterval = 250ms;

RuntimeError gone()
{
    return {EngineError::BrowserGone, QStringLiteral("The browser is gone.")};
}

} // namespace

struct WebEngineReader::Question
{
    QString script;
    QVariant answer;
    std::unique_ptr<RuntimeError> failure;
    QEventLoop *loop = nullptr; ///< the one that waits for the answer, while it does
    int round = 0;              ///< how often the question has been put

    [[nodiscard]] bool isClosed() const { return answer.isValid() || failure; }
    void close()
    {
        if (loop)
            loop->quit();
    }
};

WebEngineReader::~WebEngineReader()
{
    fail(gone());
}

QStringList WebEngineReader::read(QLatin1StringView what, int frame, QDeadlineTimer deadline,
                                  std::chrono::milliseconds patience)
{
    while (true) {
        ReaderAnswer answer(
            ask(ReaderAnswer::readCall(what, frame), std::min(deadline, QDeadlineTimer(patience))).toMap());
        if (fetch(answer, deadline, patience))
            return answer.texts();
    }
}

// In a list, since an answer that is no value is taken for none.
bool WebEngineReader::fetch(ReaderAnswer &answer, QDeadlineTimer deadline, std::chrono::milliseconds patience)
{
    while (!answer.isWhole()) {
        const QString call = u'[' + answer.nextCall() + u']';
        const QVariantList piece = ask(call, std::min(deadline, QDeadlineTimer(patience))).toList();
        if (!answer.add(piece.isEmpty() ? QString() : piece.constFirst().toString()))
            return false;
    }
    return true;
}

QVariant WebEngineReader::ask(const QString &script, QDeadlineTimer deadline)
{
    const auto question = std::make_shared<Question>();
    question->script = script;
    std::erase_if(mOpen, [](const auto &each) { return each.expired(); });
    mOpen.push_back(question);
    put(question);

    const QPointer self(this);
    wait(question, deadline);
    if (!self)
        throw gone();
    if (question->failure)
        throw *question->failure;
    if (question->answer.isValid())
        return question->answer;
    Q_EMIT unanswered();
    throw RuntimeError(EngineError::NoAnswer, QStringLiteral("The page did not answer in time."));
}

// Nothing of the reader is touched once the loop has run: it may be gone by then.
void WebEngineReader::wait(const std::shared_ptr<Question> &question, const QDeadlineTimer &deadline)
{
    QEventLoop loop;
    question->loop = &loop;
    QTimer limit;
    limit.setSingleShot(true);
    limit.setTimerType(Qt::PreciseTimer); // a coarse one may come before the limit
    connect(&limit, &QTimer::timeout, &loop, &QEventLoop::quit);
    limit.start(int(std::max<qint64>(0, deadline.remainingTime())));
    QTimer again;
    connect(&again, &QTimer::timeout, this, [this, question] { putAgainIfLost(question); });
    again.start(probeInterval);
    if (!question->isClosed())
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    question->loop = nullptr;
}

void WebEngineReader::put(const std::shared_ptr<Question> &question)
{
    ++question->round;
    mPage->runJavaScript(question->script, world, [weak = std::weak_ptr(question)](const QVariant &answer) {
        const auto asked = weak.lock();
        if (!asked || asked->isClosed() || !answer.isValid())
            return;
        asked->answer = answer;
        asked->close();
    });
}

// A document answers in the order in which it is asked. When a later question is answered and the earlier one is not,
// the earlier one went to a document that is no more.
void WebEngineReader::putAgainIfLost(const std::shared_ptr<Question> &question)
{
    const QPointer self(this);
    mPage->runJavaScript(QStringLiteral("0"), world,
                         [self, weak = std::weak_ptr(question), round = question->round](const QVariant &answer) {
                             const auto asked = weak.lock();
                             if (self && asked && !asked->isClosed() && answer.isValid() && asked->round == round)
                                 self->put(asked);
                         });
}

void WebEngineReader::fail(const RuntimeError &error)
{
    for (const auto &open : std::exchange(mOpen, {}))
        if (const auto question = open.lock(); question && !question->isClosed()) {
            question->failure = std::make_unique<RuntimeError>(error);
            question->close();
        }
}

void WebEngineReader::probe(const std::shared_ptr<bool> &answered)
{
    mPage->runJavaScript(QStringLiteral("0"), world, [answered](const QVariant &answer) {
        if (answer.isValid())
            *answered = true;
    });
}
