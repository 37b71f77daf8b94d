#include "pages/PhoneFinder.h"

#include "pages/AreaCodes.h"
#include "util/AddressList.h"
#include "util/Incr.h"
#include "util/Text.h"
#include "util/search/UnitMasks.h"

#include <QHash>
#include <algorithm>
#include <array>
#include <bit>
#include <optional>

using namespace Qt::StringLiterals;

namespace {
constexpr qsizetype candidateSize = 15;
constexpr qsizetype faxReach = 27;
constexpr qsizetype faxContext = 20;
constexpr qsizetype numberSize = 10;

// Only the first two decide whether a place is read; the walk over all of them asks whether the page is read at all.
constexpr std::array<QStringView, 8> phoneWords{u"-", u")", u"(", u"phone", u"tele", u"cell", u"mobile", u"fax"};

QList<QStringView> codesOfTable()
{
    QList<QStringView> codes;
    for (const AreaCodeRow &row : areaCodeRows)
        codes += row.codes.split(u',');
    return codes;
}

QList<QStringView> codesOf(QStringView areaCodes)
{
    static const QList<QStringView> all = codesOfTable();
    return areaCodes.isEmpty() ? all : areaCodes.split(u',');
}

bool mayHoldNumbers(QStringView text)
{
    return text.contains(phoneWords.front()) &&
           std::any_of(phoneWords.begin(), phoneWords.end(),
                       [&](QStringView word) { return cUtility::holdsIgnoringCase(text, word); });
}

using Number = std::array<QChar, size_t(numberSize)>;

/// The two words of which a candidate must hold one.
constexpr std::array<char16_t, 2> marks{phoneWords[0].front().unicode(), phoneWords[1].front().unicode()};

constexpr bool isMark(char16_t unit)
{
    return unit == marks[0] || unit == marks[1];
}

/// The ten digits that are read from the beginning of a candidate, nothing when there are more or fewer.
std::optional<Number> numberIn(QStringView candidate)
{
    constexpr int separatorLimit = 2;
    Number number;
    size_t digits = 0;
    int separators = 0;
    for (const QChar unit : candidate) {
        if (unit == u' ')
            continue;
        if (cUtility::isDigit(unit.unicode())) {
            if (digits == number.size())
                return std::nullopt;
            number[digits++] = unit;
            separators = 0;
        } else if (!isMark(unit.unicode()) || ++separators == separatorLimit) {
            break;
        }
    }
    return digits == number.size() ? std::optional(number) : std::nullopt;
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

/// The places of a text from which numbers can be read. Ten digits and a mark must stand within 15 characters, so the
/// text is read as bits first: which of 64 units are digits, and only where these are enough, which are marks.
class Readings
{
  public:
    Readings(QStringView text, bool faxOnly)
        : mText(text), mFaxOnly(faxOnly), mBehindLast(text.size() - (faxOnly ? faxReach : candidateSize))
    {
    }

    /// All of them, in order.
    QList<Reading> all()
    {
        for (qsizetype at = 0; at < mBehindLast; at += stride)
            if (at + UnitMasks::unitCount <= mText.size())
                readBlock(at, mText.utf16() + at);
            else
                readBlock(at, restFrom(at).data());
        return mReadings;
    }

  private:
    /// So many candidates lie wholly within the 64 units of a block.
    static constexpr qsizetype stride = UnitMasks::unitCount - candidateSize + 1;
    using Block = std::array<char16_t, size_t(UnitMasks::unitCount)>;

    /// The last units of the text with zeros behind them.
    [[nodiscard]] Block restFrom(qsizetype at) const
    {
        Block rest{};
        std::copy_n(mText.utf16() + at, mText.size() - at, rest.begin());
        return rest;
    }

    void readBlock(qsizetype at, const char16_t *units)
    {
        constexpr quint64 candidateBits = (quint64(1) << candidateSize) - 1;
        const quint64 digits = UnitMasks::digits(units);
        if (std::popcount(digits) < numberSize)
            return;
        // The places with a mark in their candidate: those up to 14 before one.
        quint64 places = UnitMasks::either(units, marks[0], marks[1]);
        for (const int shift : {1, 2, 4, 7})
            places |= places >> shift;
        places &= (quint64(1) << std::min(stride, mBehindLast - at)) - 1;
        for (; places != 0; places &= places - 1) {
            const int place = std::countr_zero(places);
            if (std::popcount(digits >> place & candidateBits) >= numberSize)
                readAt(at + place);
        }
    }

    void readAt(qsizetype at)
    {
        const std::optional<Number> number = numberIn(mText.sliced(at, candidateSize));
        if (number && (!mFaxOnly || isFax(mText, at)))
            mReadings += {at, QString(number->data(), numberSize)};
    }

    QStringView mText;
    bool mFaxOnly;
    qsizetype mBehindLast;
    QList<Reading> mReadings;
};

/// The readings that begin with each text of one length.
using ReadingsByCode = QHash<QStringView, QList<qsizetype>>;

ReadingsByCode grouped(QStringView text, const QList<Reading> &readings, qsizetype codeSize)
{
    ReadingsByCode groups;
    for (qsizetype index = 0; index < readings.size(); ++index)
        if (const QStringView code = text.sliced(readings[index].at).left(codeSize); code.size() == codeSize)
            groups[code] += index;
    return groups;
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
    const QList<Reading> readings = Readings(text, faxOnly).all();
    if (readings.isEmpty())
        return emptyList();
    QStringList numbers;
    QHash<qsizetype, ReadingsByCode> bySize;
    for (const QStringView code : codesOf(areaCodes)) {
        auto groups = bySize.constFind(code.size());
        if (groups == bySize.constEnd())
            groups = bySize.insert(code.size(), grouped(text, readings, code.size()));
        for (const qsizetype index : groups->value(code))
            numbers += readings[index].number;
    }
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
