#include "transfer/Transfers.h"

#include "transfer/Body.h"
#include "transfer/CurlMulti.h"
#include "transfer/Exchange.h"
#include "transfer/RequestRules.h"

using namespace Qt::StringLiterals;

namespace {
constexpr int MostRedirects = 20;

void tellAll(Exchange &exchange, const Transfers::StateTeller &tell)
{
    for (const InetState state : exchange.takeStates())
        if (tell)
            tell(state);
}
} // namespace

Transfers::Transfers(WaitForEvents wait, qint64 limit)
    : mMulti(std::make_unique<CurlMulti>(std::move(wait))), mLimit(limit)
{
}

Transfers::~Transfers() = default;

Transfers::End Transfers::perform(Exchange &exchange, const StateTeller &tell)
{
    const int cancelsBefore = mCancels;
    const CURLcode code = mMulti->perform(exchange, [&] {
        tellAll(exchange, tell);
        return mCancels == cancelsBefore;
    });
    if (mCancels != cancelsBefore)
        return End::Cancelled;
    const bool isCutOff = code == CURLE_OK && exchange.isHeadOpen();
    if ((code == CURLE_OK && !isCutOff) || exchange.isRefusedByBody())
        return End::Complete;
    throw TransferError(ErrorNumber::DeviceIoError, exchange.fault(isCutOff ? CURLE_GOT_NOTHING : code));
}

Transfers::End Transfers::fetch(const TransferRequest &request, Body &body, const StateTeller &tell)
{
    Exchange exchange(mLimit);
    try {
        return follow(exchange, request, body, tell);
    } catch (...) {
        exchange.note(InetState::Error);
        tellAll(exchange, tell);
        throw;
    }
}

Transfers::End Transfers::follow(Exchange &exchange, const TransferRequest &request, Body &body,
                                 const StateTeller &tell)
{
    TransferRequest current = request;
    for (int redirects = 0;; ++redirects) {
        exchange.aimAt(current, body);
        if (perform(exchange, tell) == End::Cancelled)
            return End::Cancelled;
        body.demandRoom();
        const QString target = exchange.redirectTarget();
        if (target.isEmpty())
            break;
        if (redirects == MostRedirects)
            throw TransferError(ErrorNumber::DeviceIoError, u"Too many redirects: "_s + request.address);
        body.startAnew();
        current = RequestRules::redirected(current, target);
    }
    exchange.note(InetState::ResponseCompleted);
    tellAll(exchange, tell);
    return End::Complete;
}

Transfers::End Transfers::send(const UploadRequest &request, QIODevice &content)
{
    Exchange exchange(mLimit);
    exchange.aimAt(request, content);
    return perform(exchange, {});
}
