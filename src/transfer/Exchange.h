// One request and its answer: a curl handle with the options that every transfer has, and what the handle calls while
// it runs. Inside curl nothing is told to anybody; states are noted and told between two waits.
#pragma once

#include "transfer/Transfers.h"

#include <QList>
#include <curl/curl.h>
#include <optional>

class Exchange
{
  public:
    /// May take `limit` milliseconds from now, however many requests it comes to.
    explicit Exchange(qint64 limit);
    ~Exchange();
    Q_DISABLE_COPY_MOVE(Exchange)

    /// The next request: `request.address` into `body`, which outlives the exchange.
    void aimAt(const TransferRequest &request, Body &body);
    /// The next request: `content` to where `request` says.
    void aimAt(const UploadRequest &request, QIODevice &content);

    [[nodiscard]] CURL *handle() const { return mHandle; }
    /// Where the answer points to; "" when it is no redirect.
    [[nodiscard]] QString redirectTarget() const;
    /// The failed request in words.
    [[nodiscard]] QString fault(CURLcode code) const;
    /// True when an answer ended in the middle of its headers, which curl takes for an empty one.
    [[nodiscard]] bool isHeadOpen() const { return mIsHeadOpen; }
    [[nodiscard]] bool isRefusedByBody() const { return mIsRefusedByBody; }

    void note(InetState state) { mStates += state; }
    [[nodiscard]] QList<InetState> takeStates() { return std::exchange(mStates, {}); }

    std::optional<CURLcode> result; ///< of the request under way, once it has one

  private:
    static size_t takeHeader(char *bytes, size_t, size_t count, void *self);
    static size_t takeBody(char *bytes, size_t, size_t count, void *self);
    static size_t giveContent(char *bytes, size_t, size_t count, void *self);
    static int beforeConnecting(void *self, curl_socket_t, curlsocktype);
    static int beforeRequest(void *self, char *, char *, int, int);

    template <class Value> void set(CURLoption option, Value value);
    void setText(CURLoption option, const QString &text);
    void setTimeLeft();
    void noteAnswer();

    CURL *mHandle;
    qint64 mEnd;
    curl_slist *mHeaders = nullptr;
    Body *mBody = nullptr;
    QIODevice *mContent = nullptr;
    QList<InetState> mStates;
    bool mIsAnswerNoted = false;
    bool mIsHeadOpen = false;
    bool mIsRefusedByBody = false;
    char mFault[CURL_ERROR_SIZE] = {};
};
