#include "transfer/CurlMulti.h"

#include "transfer/Exchange.h"
#include "transfer/Sockets.h"

#include <QScopeGuard>
#include <algorithm>
#include <new>

namespace {
/// A wait is never longer, so that a cancellation is seen whatever has happened to the event that brought it.
constexpr qint64 LongestWait = 1000;

void runAll(CURLM *multi)
{
    int running = 0;
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations" // the one call that runs all and tells of their sockets
    curl_multi_socket_all(multi, &running);
#pragma GCC diagnostic pop
}

/// A notifier, silent as yet, that falls silent again when it has ended a wait.
std::unique_ptr<QSocketNotifier> notifier(curl_socket_t socket, QSocketNotifier::Type type)
{
    auto made = std::make_unique<QSocketNotifier>(qintptr(socket), type);
    made->setEnabled(false);
    QObject::connect(made.get(), &QSocketNotifier::activated, made.get(),
                     [self = made.get()] { self->setEnabled(false); });
    return made;
}
} // namespace

CurlMulti::CurlMulti(WaitForEvents wait) : mWait(std::move(wait)), mMulti(curl_multi_init())
{
    if (mMulti == nullptr)
        throw std::bad_alloc();
    mClock.start();
    curl_multi_setopt(mMulti, CURLMOPT_SOCKETFUNCTION, watchSocket);
    curl_multi_setopt(mMulti, CURLMOPT_SOCKETDATA, this);
    curl_multi_setopt(mMulti, CURLMOPT_TIMERFUNCTION, setTimer);
    curl_multi_setopt(mMulti, CURLMOPT_TIMERDATA, this);
}

CurlMulti::~CurlMulti()
{
    curl_multi_cleanup(mMulti);
}

CURLcode CurlMulti::perform(Exchange &exchange, const std::function<bool()> &mayGoOn)
{
    CURL *const easy = exchange.handle();
    curl_easy_setopt(easy, CURLOPT_CLOSESOCKETFUNCTION, closeSocket);
    curl_easy_setopt(easy, CURLOPT_CLOSESOCKETDATA, this);
    exchange.result.reset();
    mUnderWay.insert(easy, &exchange);
    curl_multi_add_handle(mMulti, easy);
    const auto removing = qScopeGuard([this, easy] {
        curl_multi_remove_handle(mMulti, easy);
        mUnderWay.remove(easy);
    });

    while (mayGoOn()) {
        if (exchange.result)
            return *exchange.result;
        mWait(millisecondsToWait());
        work();
    }
    return CURLE_ABORTED_BY_CALLBACK;
}

qint64 CurlMulti::millisecondsToWait() const
{
    return mDeadline ? std::clamp<qint64>(*mDeadline - mClock.elapsed(), 0, LongestWait) : LongestWait;
}

void CurlMulti::work()
{
    // Every transfer gets its turn, not the ones with events alone: curl can end a turn without having begun what it is
    // going to wait for (the data connection of FTP), so that no event would ever come. Hence the second turn, too.
    for (int turn = 0; turn < 2; ++turn)
        runAll(mMulti);
    takeResults();
    listenAgain();
}

void CurlMulti::takeResults()
{
    int left = 0;
    while (const CURLMsg *message = curl_multi_info_read(mMulti, &left)) {
        if (message->msg != CURLMSG_DONE)
            continue;
        if (Exchange *exchange = mUnderWay.value(message->easy_handle))
            exchange->result = message->data.result;
    }
}

void CurlMulti::listenAgain()
{
    for (const auto &[socket, watch] : mWatches) {
        watch.read->setEnabled((watch.wanted & CURL_POLL_IN) != 0);
        watch.write->setEnabled((watch.wanted & CURL_POLL_OUT) != 0);
    }
}

int CurlMulti::watchSocket(CURL *, curl_socket_t socket, int wanted, void *self, void *)
{
    auto &multi = *static_cast<CurlMulti *>(self);
    if (wanted == CURL_POLL_REMOVE) {
        multi.mWatches.erase(socket);
        return 0;
    }
    Watch &watch = multi.mWatches[socket];
    if (!watch.read) {
        watch.read = notifier(socket, QSocketNotifier::Read);
        watch.write = notifier(socket, QSocketNotifier::Write);
    }
    watch.wanted = wanted;
    return 0;
}

int CurlMulti::setTimer(CURLM *, long milliseconds, void *self)
{
    auto &multi = *static_cast<CurlMulti *>(self);
    multi.mDeadline.reset();
    if (milliseconds >= 0)
        multi.mDeadline = multi.mClock.elapsed() + milliseconds;
    return 0;
}

int CurlMulti::closeSocket(void *self, curl_socket_t socket)
{
    const auto &multi = *static_cast<CurlMulti *>(self);
    const auto tellAll = [&multi](InetState state) {
        for (Exchange *exchange : multi.mUnderWay)
            exchange->note(state);
    };
    tellAll(InetState::Disconnecting);
    const int status = Sockets::close(socket);
    tellAll(InetState::Disconnected);
    return status;
}
