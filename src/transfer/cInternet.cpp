#include "transfer/cInternet.h"

#include <QFile>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
constexpr auto Module = "cInternet"_L1;
constexpr auto Agent = "VB OpenUrl"_L1;
} // namespace

Download cInternet::APIDownLoad(const QString &address, const QString &target, qint64 minSize)
{
    return guardedResult(mLog, {Module, "Function APIDownLoad"_L1}, Download(), [&](Download &result) {
        const TransferRequest request{
            .address = address, .browser = {.userAgent = Agent}, .proxy = Proxy::System, .asksForFreshCopy = true};
        try {
            download(mTransfers, {request, target, minSize}, {}, result);
        } catch (const TransferError &) {
            // Told by the result alone.
        }
    });
}

bool cInternet::SendFileViaFTP(const QString &server, const QString &user, const QString &password,
                               const QString &localFile, const QString &remoteFile)
{
    // The log knows it by the name of the other function of this class.
    return guardedResult(mLog, {Module, "Function DownLoad"_L1}, false, [&](bool &isStored) {
        const auto given = {&server, &user, &password, &localFile, &remoteFile};
        if (std::any_of(given.begin(), given.end(), [](const QString *text) { return text->isEmpty(); }))
            return;
        QFile file(localFile);
        if (!file.open(QIODevice::ReadOnly))
            throw RuntimeError(ErrorNumber::FileNotFound, localFile + ": "_L1 + file.errorString());
        try {
            isStored = mTransfers.send({server, user, password, remoteFile}, file) == Transfers::End::Complete;
        } catch (const TransferError &) {
            // Told by the result alone.
        }
    });
}
