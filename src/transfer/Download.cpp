#include "transfer/Download.h"

#include "transfer/Body.h"

#include <QElapsedTimer>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace {
void carryOut(Transfers &transfers, const DownloadOrder &order, const Transfers::StateTeller &tell, Download &result)
{
    Body body(order.target);
    const auto counting = qScopeGuard([&] { result.size = body.size(); });
    if (transfers.fetch(order.request, body, tell) == Transfers::End::Cancelled) {
        result.refusal = u"Cancelled"_s;
        return;
    }
    if (body.size() == 0 && !order.mayBeEmpty)
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange, u"Subscript out of range"_s);
    if (body.size() < order.atLeast) {
        result.refusal = u"Size < %1"_s.arg(order.atLeast);
        return;
    }
    result.file = body.keep();
    result.content = body.text();
}
} // namespace

void download(Transfers &transfers, const DownloadOrder &order, const Transfers::StateTeller &tell, Download &result)
{
    QElapsedTimer clock;
    clock.start();
    const auto timing = qScopeGuard([&] { result.seconds = double(clock.nsecsElapsed()) / 1e9; });
    try {
        carryOut(transfers, order, tell, result);
    } catch (...) {
        result.refusal = currentError().description();
        throw;
    }
}
