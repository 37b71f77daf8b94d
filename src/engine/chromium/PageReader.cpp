#include "engine/chromium/PageReader.h"
#include "engine/BrowserErrors.h"
#include "engine/ReaderAnswer.h"
#include "util/Errors.h"

#include <QJsonArray>
#include <QPointer>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

// Between two attempts to get a world while the browser is changing documents.
constexpr std::chrono::milliseconds askAgainAfter{10};
constexpr std::chrono::seconds lossLimit{2};

// The document, and with it the world, went away between our knowing it and the browser's getting to our command.
bool isLostWorld(const QString &error)
{
    static constexpr std::array texts{"Cannot find context"_L1,
                                      "Cannot find default execution context"_L1,
                                      "navigated or closed"_L1,
                                      "context was destroyed"_L1,
                                      "No frame"_L1,
                                      "Frame with the given"_L1,
                                      "Could not create isolated world"_L1};
    return std::any_of(texts.begin(), texts.end(), [&](QLatin1StringView text) { return error.contains(text); });
}

bool isBrokenOff(const QString &error, const QJsonObject &exception)
{
    return error.contains("terminated"_L1) || exception[u"text"].toString().contains("terminated"_L1);
}

QString textOf(const QJsonObject &exception)
{
    const QString description = exception[u"exception"][u"description"].toString();
    return description.isEmpty() ? exception[u"text"].toString() : description;
}

} // namespace

void PageReader::setPage(const QString &session, const QString &frame)
{
    mSession = session;
    mFrame = frame;
    mLost = false;
    mWorld = {};
    ++mDocument;
}

void PageReader::documentChanged(const QString &frame)
{
    mFrame = frame;
    mLost = false;
    askForWorld();
}

void PageReader::processLost()
{
    mLost = true;
    mWorld = {};
    ++mDocument;
}

void PageReader::askForWorld()
{
    mWorld = {.asked = true, .error = {}};
    const int document = ++mDocument;
    const QPointer<PageReader> self(this);
    mConnection.send(mSession, "Page.createIsolatedWorld"_L1, {{u"frameId"_s, mFrame}, {u"worldName"_s, u"trawlex"_s}},
                     [self, document](const DevToolsConnection::Answer &answer) {
                         if (!self || self->mDocument != document)
                             return;
                         self->mWorld = {.context = answer.result[u"executionContextId"].toInt(),
                                         .asked = !answer.failed(),
                                         .error = answer.error};
                     });
}

int PageReader::world(QDeadlineTimer deadline)
{
    if (!mWorld.asked)
        askForWorld();
    const bool known =
        waitPatiently([this] { return mLost || mWorld.context != 0 || !mWorld.error.isEmpty(); }, deadline, true);
    if (!known)
        giveUpPage();
    if (mWorld.context == 0 && !mLost && !isLostWorld(mWorld.error))
        throw RuntimeError(EngineError::CannotRead, mWorld.error);
    return mWorld.context;
}

QStringList PageReader::read(QLatin1StringView what, int index, QDeadlineTimer deadline)
{
    for (;;) {
        ReaderAnswer answer(evaluate(ReaderAnswer::readCall(what, index), deadline).toObject().toVariantMap());
        if (fetch(answer, deadline))
            return answer.texts();
        if (deadline.hasExpired())
            giveUpPage();
    }
}

// A document that takes the place of the one under a read does not know its ticket, or has one of its own by that
// number.
bool PageReader::fetch(ReaderAnswer &answer, QDeadlineTimer deadline)
{
    const int document = mDocument;
    while (!answer.isWhole()) {
        const QJsonValue piece = evaluate(answer.nextCall(), deadline);
        if (mDocument != document || !answer.add(piece.toString()))
            return false;
    }
    return true;
}

QJsonValue PageReader::evaluate(const QString &expression, QDeadlineTimer deadline)
{
    bool mayBreakOff = true;
    QJsonValue value;
    for (;;) {
        switch (tryEvaluate(expression, deadline, mayBreakOff, value)) {
        case Outcome::Value:
            return value;
        case Outcome::BrokenOff:
            mayBreakOff = false; // it was our own read that took long
            break;
        case Outcome::Lost:
            break;
        }
        if (deadline.hasExpired())
            giveUpPage();
    }
}

PageReader::Outcome PageReader::tryEvaluate(const QString &expression, QDeadlineTimer deadline, bool mayBreakOff,
                                            QJsonValue &value)
{
    const int context = world(deadline);
    if (mLost)
        throw RuntimeError(EngineError::BrowserGone, u"The page's process has ended."_s);
    if (context == 0) {
        mConnection.waitUntil([] { return false; }, QDeadlineTimer(askAgainAfter));
        mWorld = {};
        return Outcome::Lost;
    }
    const int document = mDocument;
    const auto answer = std::make_shared<std::optional<DevToolsConnection::Answer>>();
    mConnection.send(
        mSession, "Runtime.evaluate"_L1,
        {{u"expression"_s, expression}, {u"contextId"_s, context}, {u"returnByValue"_s, true}, {u"silent"_s, true}},
        [answer](const DevToolsConnection::Answer &given) { *answer = given; });
    if (!waitPatiently([&] { return answer->has_value() || mLost || mDocument != document; }, deadline, mayBreakOff))
        giveUpPage();
    if (mLost)
        throw RuntimeError(EngineError::BrowserGone, u"The page's process has ended."_s);
    if (!answer->has_value())
        return Outcome::Lost;

    const QJsonObject exception = (*answer)->result[u"exceptionDetails"].toObject();
    if (isBrokenOff((*answer)->error, exception))
        return Outcome::BrokenOff;
    if ((*answer)->failed() && isLostWorld((*answer)->error)) {
        if (document == mDocument)
            mWorld = {};
        return Outcome::Lost;
    }
    if ((*answer)->failed())
        throw RuntimeError(EngineError::CannotRead, (*answer)->error);
    if (!exception.isEmpty())
        throw RuntimeError(EngineError::CannotRead, textOf(exception));
    value = (*answer)->result[u"result"][u"value"];
    return Outcome::Value;
}

// Breaking off hits whatever script runs, or the next one: only a page that leaves us waiting deserves it. Where it
// does not help the page hangs in something else: a drawing, a request that it waits for.
bool PageReader::waitPatiently(const std::function<bool()> &done, QDeadlineTimer deadline, bool mayBreakOff)
{
    if (!mayBreakOff)
        return mConnection.waitUntil(done, deadline);
    for (int breakOffs = 0; breakOffs <= breakOffsAtMost; ++breakOffs) {
        if (breakOffs > 0)
            mConnection.send(mSession, "Runtime.terminateExecution"_L1);
        const QDeadlineTimer step(breakOffs == 0 ? mPatience : patienceAgain);
        if (mConnection.waitUntil(done, std::min(step, deadline)))
            return true;
    }
    return false;
}

// The loss is awaited: told later, it would be taken for that of the next page.
void PageReader::giveUpPage()
{
    if (!mConnection.isOpen())
        throw RuntimeError(EngineError::BrowserGone, u"The browser is no longer there."_s);
    mConnection.send(mSession, "Page.crash"_L1);
    mConnection.waitUntil([this] { return mLost; }, QDeadlineTimer(lossLimit));
    throw RuntimeError(EngineError::NoAnswer, u"The page did not answer in time."_s);
}
