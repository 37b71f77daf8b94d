#include "web/PhoneFinder.h"

#include "util/AddressList.h"
#include "util/Incr.h"
#include "util/Text.h"
#include "web/AreaCodes.h"

#include <QHash>
#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace {
constexpr qsizetype candidateSize = 15;
constexpr qsizetype faxReach = 27;
constexpr qsizetype faxContext = 20;
constexpr qsizetype numberSize = 10;

// Only the first two decide whether a place is read; the walk over all of them asks whether the page is read at all.
constexpr std::array<QStringView, 8> phoneWords{u"-", u")", u"(", u"phone", u"tele", u"cell", u"mobile", u"fax"};

QList<QStringView> codesOf(QStringView areaCodes)
{
    if (!areaCodes.isEmpty())
        return areaCodes.split(u',');
    QList<QStringView> codes;
    for (const AreaCodeRow &row : areaCodeRows)
        codes += row.codes.split(u',');
    return codes;
}

bool mayHoldNumbers(QStringView text)
{
    return text.contains(phoneWords.front()) &&
           std::any_of(phoneWords.begin(), phoneWords.end(),
                       [&](QStringView word) { return cUtility::holdsIgnoringCase(text, word); });
}

/// The ten digits that are read from the beginning of a candidate, nothing when there are more or fewer.
std::optional<QString> numberIn(QStringView candidate)
{
    constexpr int separatorLimit = 2;
    if (!candidate.contains(phoneWords[0]) && !candidate.contains(phoneWords[1]))
        return std::nullopt;
    QString number;
    int separators = 0;
    for (const QChar unit : candidate) {
        if (unit == u' ')
            continue;
        if (cUtility::isDigit(unit.unicode())) {
            number += unit;
            separators = 0;
        } else if ((unit != u'-' && unit != u')') || ++separators == separatorLimit) {
            break;
        }
    }
    return number.size() == numberSize ? std::optional(number) : std::nullopt;
}

bool isFax(QStringView text, qsizetype at)
{
    const QStringView context = at >= faxReach ? text.sliced(at - faxContext, faxContext) : text.sliced(at, faxReach);
    return cUtility::holdsIgnoringCase(context, u"fax");
}

/// A number and the index at which its reading begins.
struct Reading
{
    qsizetype at;
    QString number;
};

/// All places of `text` from which a number can be read, in order.
QList<Reading> readingsOf(QStringView text, bool faxOnly)
{
    const qsizetype reach = faxOnly ? faxReach : candidateSize;
    QList<Reading> readings;
    for (qsizetype at = 0; at + reach < text.size(); ++at) {
        const std::optional<QString> number = numberIn(text.sliced(at, candidateSize));
        if (number && (!faxOnly || isFax(text, at)))
            readings += {at, *number};
    }
    return readings;
}
} // namespace

qint64 cAreaCode::AreaCode_Count()
{
    return qint64(areaCodeRows.size()) - 1;
}

QString cAreaCode::AreaCode_ListItem(QStringView state, qint64 index)
{
    if (index >= 0 && index <= AreaCode_Count())
        return areaCodeRows[size_t(index)].state.toString();
    const QStringView name = cUtility::Trim(state);
    const auto row = std::find_if(areaCodeRows.begin(), areaCodeRows.end(), [&](const AreaCodeRow &candidate) {
        return cUtility::equalIgnoringCase(candidate.state, name);
    });
    return row == areaCodeRows.end() ? QString() : row->codes.toString();
}

QStringList cAreaCode::FindPhoneNumbers(QStringView text, QStringView areaCodes, bool faxOnly)
{
    if (!mayHoldNumbers(text))
        return emptyList();
    const QList<Reading> readings = readingsOf(text, faxOnly);
    QStringList numbers;
    if (readings.isEmpty())
        return emptyList();
    for (const QStringView code : codesOf(areaCodes))
        for (const Reading &reading : readings)
            if (text.sliced(reading.at).startsWith(code))
                numbers += reading.number;
    return orEmptyList(numbers);
}

QString cAreaCode::normalizedAreaCodes(const QString &typed)
{
    constexpr int lastTextMode = 1;
    QString codes = cUtility::Trim(typed).toString();
    if (cUtility::GetNumberInString(true, codes).isEmpty())
        return typed;
    if (cUtility::countNumbers(codes) > 1)
        codes.replace(cUtility::Incr(codes, lastTextMode, false, 1, {}, u"1", {}, true), u","_s);
    if (codes.startsWith(u','))
        codes.remove(0, 1);
    if (codes.endsWith(u','))
        codes.chop(1);
    return codes;
}
