// Transfers over HTTP and FTP, one object for the whole program: it keeps connections open from one file to the next. A
// transfer looks synchronous to its caller and keeps the program live: it waits in the event loop, through a function
// that the caller brings. Knows no page, browser or control.
#pragma once

#include "transfer/TransferStates.h"
#include "util/Errors.h"

#include <functional>
#include <memory>

class Body;
class CurlMulti;
class Exchange;
class QIODevice;

/// Sleeps until an event arrives or `milliseconds` have passed, and handles what has arrived.
using WaitForEvents = std::function<void(qint64 milliseconds)>;

/// What a request says of the browser in whose place it is made. Nothing is sent for an empty value, nor for one that
/// could not stand in one line of a request.
struct BrowserTraits
{
    QString userAgent = {};
    QString referer = {}; ///< goes without user, password and fragment, and never from https to another protocol
    QString cookies = {}; ///< "name=value; name=value"
};

enum class Proxy { None, System };

struct TransferRequest
{
    QString address; ///< http, https, ftp or ftps; without a protocol http is meant, for a host "ftp.…" ftp
    BrowserTraits browser = {};
    Proxy proxy = Proxy::None;
    bool asksForFreshCopy = false; ///< caches on the way are to be passed by
};

/// A local file to be put on an FTP server; lines are sent as text.
struct UploadRequest
{
    QString server; ///< a host, with ":" and a port or without
    QString user;
    QString password;
    QString remoteFile;
};

/// A transfer that did not come to its end, for whatever reason lies outside this machine's files.
class TransferError : public RuntimeError
{
  public:
    using RuntimeError::RuntimeError;
};

class Transfers
{
  public:
    enum class End { Complete, Cancelled };
    using StateTeller = std::function<void(InetState)>;

    static constexpr qint64 StandardLimit = 180'000;

    /// Each transfer, its redirects included, may take `limit` milliseconds.
    explicit Transfers(WaitForEvents wait, qint64 limit = StandardLimit);
    ~Transfers();

    /// Fetches what the request names into `body`; whatever status a server gives, what it sends is content. Redirects
    /// are followed, to the four protocols only; Referer and cookies go to the address's own server alone. `tell` gets
    /// the states on the way and may call anything but this object's destructor. Throws TransferError, and RuntimeError
    /// where `body` has no room.
    End fetch(const TransferRequest &request, Body &body, const StateTeller &tell = {});

    /// Stores what `content` gives as a file on an FTP server. Throws TransferError.
    End send(const UploadRequest &request, QIODevice &content);

    /// Ends all transfers under way; each returns as soon as its wait does.
    void cancel() { ++mCancels; }

  private:
    End follow(Exchange &exchange, const TransferRequest &request, Body &body, const StateTeller &tell);
    End perform(Exchange &exchange, const StateTeller &tell);

    std::unique_ptr<CurlMulti> mMulti;
    qint64 mLimit;
    int mCancels = 0;
};
