// curl's multi interface on Qt's event loop. Sockets and timer only end a wait; all work is done between two waits, on
// the stack of the transfer that waits. So a transfer may begin while another one waits, and each gets on during both.
#pragma once

#include "transfer/Transfers.h"

#include <QElapsedTimer>
#include <QHash>
#include <QSocketNotifier>
#include <curl/curl.h>
#include <optional>
#include <unordered_map>

class CurlMulti
{
  public:
    explicit CurlMulti(WaitForEvents wait);
    ~CurlMulti();
    Q_DISABLE_COPY_MOVE(CurlMulti)

    /// Runs `exchange` until it has its result or `mayGoOn`, asked before each wait, says no; its result is then
    /// "aborted". `mayGoOn` may start and end other transfers.
    CURLcode perform(Exchange &exchange, const std::function<bool()> &mayGoOn);

  private:
    /// A socket that curl wants to hear of. A notifier that has fired is silent until curl has had its turn.
    struct Watch
    {
        std::unique_ptr<QSocketNotifier> read;
        std::unique_ptr<QSocketNotifier> write;
        int wanted = CURL_POLL_NONE;
    };

    static int watchSocket(CURL *easy, curl_socket_t socket, int wanted, void *self, void *);
    static int setTimer(CURLM *multi, long milliseconds, void *self);
    static int closeSocket(void *self, curl_socket_t socket);

    [[nodiscard]] qint64 millisecondsToWait() const;
    void work();
    void takeResults();
    void listenAgain();

    WaitForEvents mWait;
    CURLM *mMulti;
    QElapsedTimer mClock;
    std::optional<qint64> mDeadline; ///< when curl wants to be called whatever the sockets do
    std::unordered_map<curl_socket_t, Watch> mWatches;
    QHash<CURL *, Exchange *> mUnderWay;
};
