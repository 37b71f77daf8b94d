#include "util/Text.h"

#include "util/search/CaseVariants.h"

#include <QStringList>
#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {
bool isLetterOrNumber(char16_t unit)
{
    return cUtility::isDigit(unit) || (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z');
}

bool sameLowered(QChar left, QChar right)
{
    return left == right || cUtility::lowerUnit(left.unicode()) == cUtility::lowerUnit(right.unicode());
}

// Texts are read in blocks of this many units, in loops without branches that compilers turn into vector instructions.
constexpr qsizetype blockSize = 32;

bool isAsciiBlock(const char16_t *units)
{
    char16_t all = 0;
    for (qsizetype at = 0; at < blockSize; ++at)
        all |= units[at];
    return all < 0x80;
}

void lowerAsciiBlock(const char16_t *units, char16_t *result)
{
    constexpr char16_t letterCount = 26;
    for (qsizetype at = 0; at < blockSize; ++at)
        result[at] = char16_t(units[at] + (char16_t(units[at] - u'A') < letterCount ? 0x20 : 0));
}

/// All units that stand for one unit when case is ignored, repeated where there are fewer.
using Variants = std::array<char16_t, 3>;

Variants variantsOf(QChar unit)
{
    const cUtility::CaseVariants all = cUtility::caseVariants(unit.unicode());
    Variants variants;
    Q_ASSERT(size_t(all.size()) <= variants.size());
    variants.fill(all.front());
    std::copy(all.begin(), all.end(), variants.begin());
    return variants;
}

/// 1 or 0, without a branch.
quint16 isOneOf(char16_t unit, const Variants &variants)
{
    return quint16(quint16(unit == variants[0]) | quint16(unit == variants[1]) | quint16(unit == variants[2]));
}

/// True when some unit of a block may begin a text whose last unit stands at the same place of the block at `ends`.
bool holdsBothEnds(const char16_t *begins, const char16_t *ends, const Variants &first, const Variants &last)
{
    quint16 any = 0;
    for (qsizetype at = 0; at < blockSize; ++at)
        any = quint16(any | (isOneOf(begins[at], first) & isOneOf(ends[at], last)));
    return any != 0;
}

/// The first `find` (not empty) at or behind `from`, case ignored: blocks that hold no unit with both ends are passed
/// over.
qsizetype indexFolded(QStringView text, QStringView find, qsizetype from)
{
    const Variants first = variantsOf(find.front());
    const Variants last = variantsOf(find.back());
    const qsizetype reach = find.size() - 1;
    const auto search = [&](qsizetype begin, qsizetype end) -> qsizetype {
        const auto stop = text.begin() + end;
        const auto found = std::search(text.begin() + begin, stop, find.begin(), find.end(), sameLowered);
        return found == stop ? -1 : found - text.begin();
    };
    qsizetype at = from;
    for (; at + blockSize + reach <= text.size(); at += blockSize)
        if (holdsBothEnds(text.utf16() + at, text.utf16() + at + reach, first, last))
            if (const qsizetype found = search(at, at + blockSize + reach); found >= 0)
                return found;
    return search(at, text.size());
}
} // namespace

QString cUtility::shown(QString text)
{
    const auto sign = [](QChar c) {
        constexpr char16_t firstPicture = 0x2400, deletePicture = 0x2421, unknown = 0xFFFD;
        const char16_t unit = c.unicode();
        if (unit < 0x20)
            return QChar(char16_t(firstPicture + unit));
        if (unit == 0x7F)
            return QChar(deletePicture);
        const bool turns = (unit >= 0x202A && unit <= 0x202E) || (unit >= 0x2066 && unit <= 0x2069);
        const bool isLineEnd = unit == 0x2028 || unit == 0x2029;
        return turns || isLineEnd || c.category() == QChar::Other_Control ? QChar(unknown) : c;
    };
    std::transform(text.cbegin(), text.cend(), text.begin(), sign);
    return text;
}

QString cUtility::lowered(QStringView text)
{
    QString result(text.size(), Qt::Uninitialized);
    const char16_t *from = text.utf16();
    auto *to = reinterpret_cast<char16_t *>(result.data());
    for (qsizetype at = 0; at < text.size(); at += blockSize) {
        const qsizetype units = std::min(blockSize, text.size() - at);
        if (units == blockSize && isAsciiBlock(from + at))
            lowerAsciiBlock(from + at, to + at);
        else
            std::transform(from + at, from + at + units, to + at, lowerUnit);
    }
    return result;
}

QStringView cUtility::Trim(QStringView text)
{
    while (text.startsWith(u' '))
        text = text.sliced(1);
    while (text.endsWith(u' '))
        text.chop(1);
    return text;
}

qsizetype cUtility::indexIn(QStringView text, QStringView find, qsizetype from, Qt::CaseSensitivity sensitivity)
{
    from = std::max<qsizetype>(from, 0);
    if (from >= text.size())
        return -1;
    if (find.isEmpty())
        return from;
    if (sensitivity == Qt::CaseSensitive)
        return text.indexOf(find, from);
    return indexFolded(text, find, from);
}

bool cUtility::equalIgnoringCase(QStringView left, QStringView right)
{
    return left.size() == right.size() && std::equal(left.begin(), left.end(), right.begin(), sameLowered);
}

bool cUtility::startsWithIgnoringCase(QStringView text, QStringView start)
{
    return text.size() >= start.size() && equalIgnoringCase(text.first(start.size()), start);
}

qsizetype cUtility::CountChar(QStringView text, QStringView find, Qt::CaseSensitivity sensitivity)
{
    if (find.isEmpty())
        return 0;
    qsizetype count = 0;
    for (qsizetype at = indexIn(text, find, 0, sensitivity); at >= 0; at = indexIn(text, find, at + 1, sensitivity))
        ++count;
    return count;
}

QString cUtility::MultipleLinesToSingle(QStringView text)
{
    QString line;
    line.reserve(text.size());
    for (qsizetype at = 0; at < text.size(); ++at) {
        const bool isPair = text[at] == u'\r' && at + 1 < text.size() && text[at + 1] == u'\n';
        line += text[at] == u'\r' || text[at] == u'\n' ? QChar(u' ') : text[at];
        at += isPair ? 1 : 0;
    }
    return line;
}

QString cUtility::StripToLettersAndNumbers(QStringView text)
{
    QString kept;
    kept.reserve(text.size());
    std::copy_if(text.begin(), text.end(), std::back_inserter(kept),
                 [](QChar unit) { return isLetterOrNumber(unit.unicode()); });
    return kept;
}

QString cUtility::InStrRevGetBeginning(QStringView text, QStringView find)
{
    const qsizetype at = find.isEmpty() ? -1 : text.lastIndexOf(find);
    return at < 0 ? QString() : text.first(at).toString();
}

QString cUtility::InStrRevGetEnding(QStringView text, QStringView find)
{
    const qsizetype at = find.isEmpty() ? -1 : text.lastIndexOf(find);
    return at < 0 ? QString() : text.sliced(at + find.size()).toString();
}

QString cUtility::DelimiterLocationsInString(QStringView text, QStringView delimiter)
{
    QStringList positions;
    if (!delimiter.isEmpty())
        for (qsizetype at = indexIn(text, delimiter); at >= 0; at = indexIn(text, delimiter, at + 1))
            positions += QString::number(at + 1);
    return positions.join(u',');
}

quint32 cUtility::ConvertHex(QStringView text)
{
    constexpr qsizetype mostDigits = 8;
    QStringView digits = Trim(text);
    if (startsWithIgnoringCase(digits, u"&H"))
        digits = digits.sliced(2);
    const auto isHex = [](QChar unit) {
        return isDigit(unit.unicode()) || QStringView(u"abcdefABCDEF").contains(unit);
    };
    if (!std::all_of(digits.begin(), digits.end(), isHex))
        return 0;
    return digits.last(std::min(digits.size(), mostDigits)).toUInt(nullptr, 16);
}
