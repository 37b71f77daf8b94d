// What may be sent where: the form in which an address goes out, and how much of the browser goes with it. Functions
// over values.
#pragma once

#include "transfer/Transfers.h"

namespace RequestRules {
/// The address as it is requested: with a protocol, without fragment, and everything that no address may hold (blanks,
/// quotes, other scripts) percent-encoded. What is encoded already stays as it is. "" for what cannot be an address.
[[nodiscard]] QByteArray encodedAddress(const QString &address);

/// The request that follows when `request` is answered with a redirect to `target`. Referer and cookies stay only where
/// it leads to the same server by no less safe a way, and do not come back later.
[[nodiscard]] TransferRequest redirected(const TransferRequest &request, const QString &target);

/// The browser's values as they may be sent with `request`.
[[nodiscard]] BrowserTraits sentTraits(const TransferRequest &request);

/// The system's proxy for `address` as curl takes it; "" for none.
[[nodiscard]] QString systemProxy(const QByteArray &address);
} // namespace RequestRules
