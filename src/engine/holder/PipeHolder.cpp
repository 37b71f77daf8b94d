#include "engine/holder/PipeHolder.h"

#include <QFile>
#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace {

// Our own commands have numbers that no client's reach.
constexpr qint64 firstId = 1'000'000'000;
// The answer that gives a session is short; what is longer need not be looked at.
constexpr qsizetype answerAtMost = 512;

bool isAnswer(const QJsonObject &message)
{
    return message.contains("id"_L1) && !message.contains("sessionId"_L1);
}

} // namespace

PipeHolder::PipeHolder(std::unique_ptr<QLocalSocket> browser) : mBrowser(std::move(browser)), mLastId(firstId)
{
    mBrowser->setParent(nullptr);
    connect(mBrowser.get(), &QLocalSocket::readyRead, this, &PipeHolder::readBrowser);
    connect(mBrowser.get(), &QLocalSocket::disconnected, this, &PipeHolder::ended);
    connect(&mServer, &QLocalServer::newConnection, this, &PipeHolder::takeClient);
}

bool PipeHolder::listen(const QString &path)
{
    QLocalServer::removeServer(path); // of a holder that was killed
    mServer.setSocketOptions(QLocalServer::UserAccessOption);
    return mServer.listen(path) && QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
}

void PipeHolder::takeClient()
{
    while (QLocalSocket *client = mServer.nextPendingConnection()) {
        if (mClient != nullptr) {
            client->abort();
            client->deleteLater();
            continue;
        }
        mClient = client;
        connect(client, &QLocalSocket::readyRead, this, &PipeHolder::readClient);
        connect(client, &QLocalSocket::disconnected, this, &PipeHolder::loseClient);
        readClient();
    }
}

void PipeHolder::loseClient()
{
    mClient->disconnect(this);
    mClient->deleteLater();
    mClient = nullptr;
    mUnsent.clear();
    leave();
}

// The browser answers in order: with the answer to a harmless question the sessions have ended, and one that was still
// on its way has been told.
void PipeHolder::leave()
{
    for (const QString &session : std::exchange(mSessions, {}))
        tell(u"Target.detachFromTarget"_s, {{u"sessionId"_s, session}});
    tell(u"Browser.getVersion"_s);
    mLeaving = mLastId;
}

void PipeHolder::tell(const QString &method, const QJsonObject &params)
{
    const QJsonObject command{{u"id"_s, ++mLastId}, {u"method"_s, method}, {u"params"_s, params}};
    mBrowser->write(QJsonDocument(command).toJson(QJsonDocument::Compact) + '\0');
}

// Until the old client's sessions have ended the new one is not heard, so that it hears nothing of them either. A
// command that a client has not written to its end goes with the client.
void PipeHolder::readClient()
{
    if (mClient == nullptr || mLeaving != 0)
        return;
    mUnsent += mClient->readAll();
    const qsizetype whole = mUnsent.lastIndexOf('\0') + 1;
    mBrowser->write(mUnsent.left(whole));
    mUnsent.remove(0, whole);
}

void PipeHolder::readBrowser()
{
    mUnread += mBrowser->readAll();
    qsizetype from = 0;
    for (qsizetype end = mUnread.indexOf('\0'); end >= 0; end = mUnread.indexOf('\0', from)) {
        handle(mUnread.mid(from, end + 1 - from));
        from = end + 1;
    }
    mUnread.remove(0, from);
}

void PipeHolder::handle(const QByteArray &message)
{
    QJsonObject answer;
    if (message.size() <= answerAtMost)
        answer = QJsonDocument::fromJson(message.chopped(1)).object();
    const QString session = isAnswer(answer) ? answer["result"_L1]["sessionId"_L1].toString() : QString();
    if (!session.isEmpty())
        mSessions.append(session);
    if (mLeaving == 0) {
        if (mClient != nullptr)
            mClient->write(message);
        return;
    }
    if (answer["id"_L1].toInteger() != mLeaving)
        return;
    mLeaving = 0;
    if (!mSessions.isEmpty())
        leave();
    readClient();
}
