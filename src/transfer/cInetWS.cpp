#include "transfer/cInetWS.h"

#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace {
constexpr auto Module = "cInetWS"_L1;
constexpr auto OwnAgent = "Mozilla/5.0 (compatible; Trawlex/" TRAWLEX_VERSION ")"_L1;
} // namespace

Download cInetWS::DownLoad(const QString &address, const QString &target, qint64 minSize, const BrowserTraits &browser)
{
    return guardedResult(mLog, {Module, "Function DownLoad"_L1}, Download(), [&](Download &result) {
        if (mIsBusy) {
            result.refusal = u"Still executing last request"_s;
            throw RuntimeError(ErrorNumber::InvalidProcedureCall, result.refusal);
        }
        const QScopedValueRollback busy(mIsBusy, true);
        // The rule compares the index of the last byte.
        DownloadOrder order{{.address = address, .browser = browser}, target, minSize + 1, false};
        if (browser.userAgent.isEmpty())
            order.request.browser.userAgent = OwnAgent;
        download(
            mTransfers, order, [this](InetState state) { Q_EMIT InetStatus(int(state)); }, result);
    });
}

void cInetWS::Cancel()
{
    guarded(mLog, {Module, "Sub Cancel"_L1}, [this] { mTransfers.cancel(); });
}
