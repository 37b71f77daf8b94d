#include "engine/chromium/DevToolsPipe.h"
#include "engine/Platform.h"

#include <QJsonDocument>
#include <QPointer>

using namespace Qt::Literals::StringLiterals;

namespace {
/// A message as the line carries it.
QByteArray framed(const QJsonObject &message)
{
    return QJsonDocument(message).toJson(QJsonDocument::Compact) + '\0';
}
} // namespace

DevToolsPipe::DevToolsPipe(std::unique_ptr<QLocalSocket> socket) : mSocket(std::move(socket))
{
    if (!mSocket)
        return;
    connect(mSocket.get(), &QLocalSocket::readyRead, this, &DevToolsPipe::read);
    connect(mSocket.get(), &QLocalSocket::disconnected, this, &DevToolsPipe::ended);
    // Its answer is the sign of life.
    mSocket->write(framed({{u"id"_s, DevToolsPipe::nextId()}, {u"method"_s, u"Browser.getVersion"_s}}));
}

DevToolsPipe::~DevToolsPipe()
{
    if (mSocket)
        mSocket->disconnect(this);
}

qint64 DevToolsPipe::holder() const
{
    return isOpen() ? Platform::peer(mSocket->socketDescriptor()) : 0;
}

void DevToolsPipe::send(const QJsonObject &message)
{
    if (isOpen())
        mSocket->write(framed(message));
}

void DevToolsPipe::read()
{
    mUnread += mSocket->readAll();
    const QPointer<DevToolsPipe> self(this);
    qsizetype from = 0;
    for (qsizetype end = mUnread.indexOf('\0', mSearched); end >= 0; end = mUnread.indexOf('\0', from)) {
        const QByteArray message = mUnread.mid(from, end - from);
        from = end + 1;
        mAwake = true;
        Q_EMIT received(QJsonDocument::fromJson(message).object());
        if (!self)
            return;
    }
    mUnread.remove(0, from);
    mSearched = mUnread.size();
}
