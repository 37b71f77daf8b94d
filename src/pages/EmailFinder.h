// E-mail addresses in the text of a page, and the test of what a piece of text is. Works on text alone.
#pragma once

#include "util/Errors.h"

#include <QStringList>

namespace cIEText {
/// False for "@", "-", ".", "_", the digits and a to z, True for every other character; upper-case letters too, so
/// callers lower-case first. Of `character` the first unit counts. An empty one is error 5: it goes to `log` (which may
/// be null) and the answer is False.
[[nodiscard]] bool CheckForInvalidEmailChar(QStringView character, ErrorReceiver *log);

/// Every run of address characters around a `searchText` (found exactly as it stands, as a rule "@") that ends in a
/// server type, in order of appearance and in the text's own case, repeats included; one empty element when there is
/// none. At most 1000 places are examined. Reads `text` once. With a `log`, each look behind the end of the text is
/// recorded as the error that it is; without one such looks are free.
[[nodiscard]] QStringList CollectEmail(QStringView text, QStringView searchText, ErrorReceiver *log);

/// What a piece of text is taken for; the values are those that callers store.
enum class TextKind { Neither = 0, Email = 1, Link = 2 };

/// What `text` is: it needs a server type at its end or before a "/", or four numbers of up to three digits. With
/// `acceptWithoutPrefix` False a link by name must begin with "http://" or hold "www.".
[[nodiscard]] TextKind IsThisEmailOrLink(QStringView text, bool acceptWithoutPrefix);
} // namespace cIEText
