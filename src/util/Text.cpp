#include "util/Text.h"

#include <QStringList>
#include <algorithm>

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
} // namespace

QString cUtility::lowered(QStringView text)
{
    QString result(text.size(), Qt::Uninitialized);
    std::transform(text.begin(), text.end(), result.begin(),
                   [](QChar unit) { return QChar(lowerUnit(unit.unicode())); });
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
    const auto found = std::search(text.begin() + from, text.end(), find.begin(), find.end(), sameLowered);
    return found == text.end() ? -1 : found - text.begin();
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
