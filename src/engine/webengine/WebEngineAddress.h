// Addresses on their way into the built-in browser and back. Knows no page.
#pragma once

#include <QString>

class QUrl;

namespace WebEngineAddress {
/// `address` as the browser takes it; raises a RuntimeError for what is no address. It means the same in a spelling of
/// its own: "|" and a few others are encoded in queries too, and "%3f" becomes "%3F".
[[nodiscard]] QUrl parsed(const QString &address);
/// The address as text, with everything encoded that has to be.
[[nodiscard]] QString text(const QUrl &url);
/// True when `address`, as a page spells it, is `url`.
[[nodiscard]] bool isSame(const QString &address, const QUrl &url);
/// True when going from `current` to `next` only moves within the page.
[[nodiscard]] bool isMoveWithin(const QUrl &current, const QUrl &next);
/// True for the address that error pages bear themselves.
[[nodiscard]] bool isErrorPage(const QString &address);
} // namespace WebEngineAddress
