#include "transfer/Exchange.h"

#include "transfer/Body.h"
#include "transfer/RequestRules.h"

#include <QDeadlineTimer>
#include <QIODevice>
#include <QUrl>
#include <algorithm>
#include <new>

using namespace Qt::StringLiterals;

namespace {
constexpr long BufferSize = 256L * 1024;
constexpr char Protocols[] = "http,https,ftp,ftps";

Exchange &exchangeOf(void *self)
{
    return *static_cast<Exchange *>(self);
}
} // namespace

Exchange::Exchange(qint64 limit) : mHandle(curl_easy_init()), mEnd(QDeadlineTimer(limit).deadline())
{
    if (mHandle == nullptr)
        throw std::bad_alloc();
    set(CURLOPT_NOSIGNAL, 1L);
    set(CURLOPT_PROTOCOLS_STR, Protocols);
    set(CURLOPT_ERRORBUFFER, mFault);
    set(CURLOPT_BUFFERSIZE, BufferSize);
    // Content is wanted as it is; from a server that packs it without being asked it is unpacked.
    set(CURLOPT_ACCEPT_ENCODING, "identity");
    set(CURLOPT_SUPPRESS_CONNECT_HEADERS, 1L);
    set(CURLOPT_HEADERFUNCTION, takeHeader);
    set(CURLOPT_HEADERDATA, this);
    set(CURLOPT_WRITEFUNCTION, takeBody);
    set(CURLOPT_WRITEDATA, this);
    set(CURLOPT_SOCKOPTFUNCTION, beforeConnecting);
    set(CURLOPT_SOCKOPTDATA, this);
    set(CURLOPT_PREREQFUNCTION, beforeRequest);
    set(CURLOPT_PREREQDATA, this);
}

Exchange::~Exchange()
{
    curl_easy_cleanup(mHandle);
    curl_slist_free_all(mHeaders);
}

void Exchange::aimAt(const TransferRequest &request, Body &body)
{
    const QByteArray address = RequestRules::encodedAddress(request.address);
    if (address.isEmpty())
        throw TransferError(ErrorNumber::InvalidProcedureCall, u"No address: "_s + request.address);
    const BrowserTraits traits = RequestRules::sentTraits(request);
    mBody = &body;
    mIsAnswerNoted = false;
    mIsHeadOpen = false;
    set(CURLOPT_URL, address.constData());
    // An empty proxy is none, whatever the environment says.
    setText(CURLOPT_PROXY, request.proxy == Proxy::System ? RequestRules::systemProxy(address) : u""_s);
    setText(CURLOPT_USERAGENT, traits.userAgent);
    setText(CURLOPT_REFERER, traits.referer);
    setText(CURLOPT_COOKIE, traits.cookies);
    if (request.asksForFreshCopy && mHeaders == nullptr) {
        mHeaders = curl_slist_append(mHeaders, "Cache-Control: no-cache");
        mHeaders = curl_slist_append(mHeaders, "Pragma: no-cache");
        set(CURLOPT_HTTPHEADER, mHeaders);
    }
    setTimeLeft();
}

void Exchange::aimAt(const UploadRequest &request, QIODevice &content)
{
    mContent = &content;
    const QByteArray path = QUrl::toPercentEncoding(request.remoteFile);
    set(CURLOPT_URL, QByteArray("ftp://" + request.server.toUtf8() + '/' + path).constData());
    set(CURLOPT_PROXY, "");
    setText(CURLOPT_USERNAME, request.user);
    setText(CURLOPT_PASSWORD, request.password);
    set(CURLOPT_TRANSFERTEXT, 1L);
    set(CURLOPT_UPLOAD, 1L);
    set(CURLOPT_READFUNCTION, giveContent);
    set(CURLOPT_READDATA, this);
    setTimeLeft();
}

QString Exchange::redirectTarget() const
{
    const char *target = nullptr;
    curl_easy_getinfo(mHandle, CURLINFO_REDIRECT_URL, &target);
    return QString::fromUtf8(target);
}

QString Exchange::fault(CURLcode code) const
{
    return QString::fromUtf8(mFault[0] != '\0' ? mFault : curl_easy_strerror(code));
}

template <class Value> void Exchange::set(CURLoption option, Value value)
{
    if (const CURLcode code = curl_easy_setopt(mHandle, option, value); code != CURLE_OK)
        throw TransferError(ErrorNumber::DeviceIoError, QString::fromUtf8(curl_easy_strerror(code)));
}

void Exchange::setText(CURLoption option, const QString &text)
{
    const bool isUnset = text.isEmpty() && option != CURLOPT_PROXY;
    set(option, isUnset ? nullptr : text.toUtf8().constData());
}

void Exchange::setTimeLeft()
{
    const qint64 left = mEnd - QDeadlineTimer::current().deadline();
    set(CURLOPT_TIMEOUT_MS, long(std::max<qint64>(left, 1)));
}

void Exchange::noteAnswer()
{
    if (!std::exchange(mIsAnswerNoted, true))
        note(InetState::ReceivingResponse);
}

size_t Exchange::takeHeader(char *bytes, size_t, size_t count, void *self)
{
    Exchange &exchange = exchangeOf(self);
    const QByteArrayView line(bytes, qsizetype(count));
    // An FTP server's lines of control come here too.
    if (line.startsWith("HTTP/")) {
        exchange.noteAnswer();
        exchange.mIsHeadOpen = true;
    } else if (line == "\r\n" || line == "\n") {
        exchange.mIsHeadOpen = false;
    }
    return count;
}

size_t Exchange::takeBody(char *bytes, size_t, size_t count, void *self)
{
    Exchange &exchange = exchangeOf(self);
    exchange.noteAnswer();
    if (exchange.mBody == nullptr || exchange.mBody->take(QByteArrayView(bytes, qsizetype(count))))
        return count;
    exchange.mIsRefusedByBody = true;
    return CURL_WRITEFUNC_ERROR;
}

size_t Exchange::giveContent(char *bytes, size_t, size_t count, void *self)
{
    const qint64 read = exchangeOf(self).mContent->read(bytes, qint64(count));
    return read < 0 ? CURL_READFUNC_ABORT : size_t(read);
}

int Exchange::beforeConnecting(void *self, curl_socket_t, curlsocktype)
{
    exchangeOf(self).note(InetState::Connecting);
    return CURL_SOCKOPT_OK;
}

int Exchange::beforeRequest(void *self, char *, char *, int, int)
{
    exchangeOf(self).note(InetState::Connected);
    exchangeOf(self).note(InetState::Requesting);
    return CURL_PREREQFUNC_OK;
}
