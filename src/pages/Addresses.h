// What a piece of text is and which server an address belongs to, by the program's own tables: a host is known by one
// of 106 name endings or by four groups of digits. No general address parser; the mistakes of judgement are relied
// upon. All functions are total: where a rule passes over an error they give the told result. Works on text alone.
#pragma once

#include <QSet>
#include <QStringList>
#include <QVariant>

namespace cIEText {
/// The highest index of the server types (105) and of the protocols (4), not their number.
[[nodiscard]] qint64 ServerTypes_Count();
[[nodiscard]] qint64 ProtocolTypes_Count();

/// With a name: the index (qint64) of the last entry equal to it, case ignored, an invalid QVariant when none is.
/// Without one: the entry at `index` (QString), an invalid QVariant outside the table.
[[nodiscard]] QVariant ServerTypes_ListItem(qint64 index, QStringView name);
[[nodiscard]] QVariant ProtocolTypes_ListItem(qint64 index, QStringView name);

/// Mode 0: the first protocol, in the order of the table, that stands anywhere in `address`; "mailto:" when none does.
/// Mode 1: `address` less as many characters at its left as that protocol has; "" when it has fewer. Other modes: "".
[[nodiscard]] QString GetProtocol(QStringView address, int mode);

/// Which parts of an address stay in a server.
struct ServerParts
{
    bool type = true;
    bool www = true;
    bool protocol = true;
};
inline constexpr ServerParts keepAll{true, true, true};
inline constexpr ServerParts hostOnly{true, true, false};

/// The server of `address` in the case in which it was given, "" when none is recognised (with `protocol` then the
/// protocol alone, but "" for ""). An address without protocol loses its first seven characters before it is looked at,
/// an address with "\" has no server, and of a mailbox the host less its first seven characters is given; callers rely
/// on all three.
[[nodiscard]] QString GetServerFromUrl(QStringView address, ServerParts keep);

/// The servers (`keepAll`) of all addresses that have one, in order, repeats included; the empty list when none has.
[[nodiscard]] QStringList GetBaseUrls(const QStringList &addresses);

/// Tells of addresses, asked one after the other, whether each is the first of its server (`hostOnly`, case ignored).
/// Those without a server are not until there has been one with a server, and are one server from then on.
class UniqueServers
{
  public:
    [[nodiscard]] bool isFirst(QStringView address);

  private:
    QSet<QString> mKnown;
};

/// The first address of each server (`hostOnly`, case ignored), whole and in order; the empty list when nothing is
/// left. Addresses without a server are dropped until the first one with a server is kept, and are one server from then
/// on.
[[nodiscard]] QStringList GetUniqueServers(const QStringList &addresses);

/// True when `text`, trimmed, ends in a server type, case ignored. Nothing else about it is examined.
[[nodiscard]] bool DoesThisEndInAUrl(QStringView text);

/// False when `text`, trimmed, begins with a protocol (exactly as in the table) and what is behind it holds anything
/// but digits, "/" and "."; True otherwise, for a text without protocol too.
[[nodiscard]] bool IsUrlNumeric(QStringView text);

/// True when `text` holds a character that no address may hold: blanks and controls, and those of a fixed list. False
/// for a text of blanks alone.
[[nodiscard]] bool CheckForInvalidUrlChar(QStringView text);

/// Two upper-case hexadecimal digits; above 255 the count wraps; "" for 0 and below.
[[nodiscard]] QString DecToHex(qint64 number);

/// `text` with its percent escapes read as Windows-1252 codes. "%25" and two more characters are one escape of those
/// two, and the two characters behind such a double escape are passed over. Code 0 and what is no code stay as they
/// are.
[[nodiscard]] QString HexToDec(QStringView text);
} // namespace cIEText
