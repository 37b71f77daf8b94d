#include "pages/Addresses.h"

#include "pages/ServerTypes.h"
#include "util/AddressList.h"
#include "util/Ansi.h"
#include "util/Incr.h"
#include "util/Text.h"

#include <QSet>
#include <algorithm>
#include <span>

using namespace Qt::StringLiterals;
using cUtility::lowered;

namespace {
constexpr qsizetype lastProtocol = qsizetype(protocolTypes.size()) - 1;

QVariant listItem(std::span<const QStringView> table, qint64 index, QStringView name)
{
    if (name.isEmpty())
        return index < 0 || index >= qint64(table.size()) ? QVariant() : QVariant(table[size_t(index)].toString());
    const auto equal = [&](QStringView entry) { return cUtility::equalIgnoringCase(entry, name); };
    const auto last = std::find_if(table.rbegin(), table.rend(), equal);
    return last == table.rend() ? QVariant() : QVariant(qint64(table.rend() - last - 1));
}

/// The protocol, by its index, that a lower-cased address is taken to have.
qsizetype protocolOf(QStringView lowerAddress)
{
    if (!lowerAddress.contains(u':'))
        return lastProtocol;
    const auto found = std::find_if(protocolTypes.begin(), protocolTypes.end(), [&](QStringView protocol) {
        return lowerAddress.startsWith(protocol) || lowerAddress.contains(protocol);
    });
    return found == protocolTypes.end() ? lastProtocol : found - protocolTypes.begin();
}

QStringView withoutLeft(QStringView text, qsizetype count)
{
    return count > text.size() ? QStringView() : text.sliced(count);
}

/// Whether the first ".ph" of a text counts as this server type: not where a "p" and at least one more character
/// follow, so
/// ".php?" does not count, while ".php" at the very end and ".phtml" do.
bool holdsPhilippineType(QStringView lowerAddress)
{
    const QStringView type = serverTypes[philippineType];
    const qsizetype at = lowerAddress.indexOf(type);
    if (at < 0)
        return false;
    const QStringView behind = lowerAddress.sliced(at + type.size());
    return behind.size() < 2 || behind.front() != u'p';
}

bool holdsServerType(QStringView lowerAddress)
{
    for (qsizetype dot = lowerAddress.indexOf(u'.'); dot >= 0; dot = lowerAddress.indexOf(u'.', dot + 1)) {
        const TypesAtDot types = typesAtDot(lowerAddress.sliced(dot));
        const bool isOther = types.twoLetters >= 0 && types.twoLetters != philippineType;
        if (isOther || types.threeLetters >= 0)
            return true;
    }
    return holdsPhilippineType(lowerAddress);
}

/// The server within `rest`, what stands behind the protocol of the address; `lowerAddress` is all of it.
QStringView serverWithin(QStringView lowerAddress, QStringView rest)
{
    constexpr qsizetype numbersOfDottedAddress = 4;
    const qsizetype slash = rest.indexOf(u'/');
    const QStringView host = slash < 0 ? rest : rest.first(slash);
    if (!holdsServerType(lowerAddress))
        return cUtility::countNumbers(host) == numbersOfDottedAddress ? host : QStringView();
    const qsizetype at = lowerAddress.indexOf(u'@');
    return at < 0 ? host : withoutLeft(rest, at + 1);
}

/// The value of an escape's two upper-case hexadecimal digits, -1 for anything else and for the code 0.
int codeOf(QStringView digits)
{
    const auto valueOf = [](QChar digit) {
        const char16_t unit = digit.unicode();
        return cUtility::isDigit(unit) ? unit - u'0' : unit >= u'A' && unit <= u'F' ? unit - u'A' + 10 : -1;
    };
    const int high = digits.size() == 2 ? valueOf(digits[0].toUpper()) : -1;
    const int low = digits.size() == 2 ? valueOf(digits[1].toUpper()) : -1;
    return high < 0 || low < 0 || high + low == 0 ? -1 : high * 16 + low;
}
} // namespace

qint64 cIEText::ServerTypes_Count()
{
    return qint64(serverTypes.size()) - 1;
}

qint64 cIEText::ProtocolTypes_Count()
{
    return qint64(protocolTypes.size()) - 1;
}

QVariant cIEText::ServerTypes_ListItem(qint64 index, QStringView name)
{
    return listItem(serverTypes, index, name);
}

QVariant cIEText::ProtocolTypes_ListItem(qint64 index, QStringView name)
{
    return listItem(protocolTypes, index, name);
}

QString cIEText::GetProtocol(QStringView address, int mode)
{
    const QStringView protocol = protocolTypes[size_t(protocolOf(lowered(address)))];
    if (mode == 0)
        return protocol.toString();
    return mode == 1 ? withoutLeft(address, protocol.size()).toString() : QString();
}

QString cIEText::GetServerFromUrl(QStringView address, ServerParts keep)
{
    constexpr QStringView www = u"www.";
    if (address.isEmpty())
        return {};
    const QString lowerAddress = lowered(address);
    const QStringView protocol = protocolTypes[size_t(protocolOf(lowerAddress))];
    QString server;
    if (keep.protocol)
        server += protocol;
    if (!lowerAddress.contains(u'\\'))
        server += serverWithin(lowerAddress, withoutLeft(address, protocol.size()));
    if (!keep.www)
        if (const qsizetype at = cUtility::indexIgnoringCase(server, www); at >= 0)
            server.remove(0, at + www.size());
    return keep.type ? server : cUtility::InStrRevGetBeginning(server, u".");
}

QStringList cIEText::GetBaseUrls(const QStringList &addresses)
{
    QStringList servers;
    for (const QString &address : addresses)
        if (const QString server = GetServerFromUrl(address, keepAll); !server.isEmpty())
            servers += server;
    return orEmptyList(servers);
}

bool cIEText::UniqueServers::isFirst(QStringView address)
{
    const QString server = lowered(GetServerFromUrl(address, hostOnly));
    if ((mKnown.isEmpty() && server.isEmpty()) || mKnown.contains(server))
        return false;
    mKnown.insert(server);
    return true;
}

QStringList cIEText::GetUniqueServers(const QStringList &addresses)
{
    UniqueServers servers;
    QStringList kept;
    std::copy_if(addresses.begin(), addresses.end(), std::back_inserter(kept),
                 [&](const QString &address) { return servers.isFirst(address); });
    return orEmptyList(kept);
}

bool cIEText::DoesThisEndInAUrl(QStringView text)
{
    text = cUtility::Trim(text);
    const auto endsInType = [&](qsizetype size) {
        if (text.size() < size)
            return false;
        const TypesAtDot types = typesAtDot(lowered(text.last(size)));
        return (size == 3 ? types.twoLetters : types.threeLetters) >= 0;
    };
    return endsInType(3) || endsInType(4);
}

bool cIEText::IsUrlNumeric(QStringView text)
{
    text = cUtility::Trim(text);
    const auto protocol = std::find_if(protocolTypes.begin(), protocolTypes.end(),
                                       [&](QStringView candidate) { return text.startsWith(candidate); });
    if (protocol == protocolTypes.end())
        return true;
    const QStringView rest = text.sliced(protocol->size());
    return std::all_of(rest.begin(), rest.end(),
                       [](QChar unit) { return unit == u'/' || unit == u'.' || cUtility::isDigit(unit.unicode()); });
}

bool cIEText::CheckForInvalidUrlChar(QStringView text)
{
    if (cUtility::Trim(text).isEmpty())
        return false;
    return std::any_of(text.begin(), text.end(), [](QChar unit) {
        const quint8 code = Ansi::Asc(unit.unicode());
        return std::find(refusedUrlCodes.begin(), refusedUrlCodes.end(), code) != refusedUrlCodes.end();
    });
}

QString cIEText::DecToHex(qint64 number)
{
    if (number <= 0)
        return {};
    return QString::number(number % 256, 16).toUpper().rightJustified(2, u'0');
}

QString cIEText::HexToDec(QStringView text)
{
    constexpr QStringView escapedPercent = u"%25";
    constexpr qsizetype escapeSize = 3;
    constexpr qsizetype layer = 2; // "%25" in the place of "%"
    QString result;
    result.reserve(text.size());
    qsizetype done = 0;
    for (qsizetype at = text.indexOf(u'%'); at >= 0; at = text.indexOf(u'%', done)) {
        const QStringView escape = text.sliced(at);
        const bool isDouble = escape.startsWith(escapedPercent) && escape.size() > escapeSize + 1;
        const qsizetype more = isDouble ? layer : 0;
        const int code = codeOf(escape.mid(1 + more, 2));
        result += text.sliced(done, at - done);
        if (code < 0) {
            result += escape.first(1 + more);
            done = at + 1 + more;
            continue;
        }
        const qsizetype behind = at + escapeSize + more;
        const qsizetype passedOver = std::min(more, text.size() - behind);
        result += QChar(Ansi::Chr(quint8(code)));
        result += text.sliced(behind, passedOver);
        done = behind + passedOver;
    }
    result += text.sliced(done);
    return result;
}
