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

using Number = std::array<QChar, size_t(numberSize)>;

/// The ten digits that are read from the beginning of a candidate, nothing when there are more or fewer.
std::optional<Number> numberIn(QStringView candidate)
{
    constexpr int separatorLimit = 2;
    if (!candidate.contains(phoneWords[0]) && !candidate.contains(phoneWords[1]))
        return std::nullopt;
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
        } else if ((unit != u'-' && unit != u')') || ++separators == separatorLimit) {
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

/// The places of a text from which numbers can be read. Ten digits must stand within 15 characters, so of a text
/// without so many digits in two neighbouring blocks no place is looked at.
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
        int digits = digitsAt(0);
        for (qsizetype at = 0; at < mBehindLast; at += blockSize) {
            const int next = digitsAt(at + blockSize);
            if (digits + next >= numberSize)
                readBlock(at);
            digits = next;
        }
        return mReadings;
    }

  private:
    static constexpr qsizetype blockSize = 32;
    static_assert(candidateSize <= blockSize);

    /// How many digits the block at `at` holds; what is left behind the last whole block counts as full of them.
    [[nodiscard]] int digitsAt(qsizetype at) const
    {
        if (at + blockSize > mText.size())
            return blockSize;
        const char16_t *units = mText.utf16() + at;
        quint16 digits = 0;
        for (qsizetype place = 0; place < blockSize; ++place) // without branches, for the vector unit
            digits = quint16(digits + (char16_t(units[place] - u'0') < 10 ? 1 : 0));
        return digits;
    }

    [[nodiscard]] bool isDigitAt(qsizetype at) const { return cUtility::isDigit(mText[at].unicode()); }

    void readBlock(qsizetype begin)
    {
        const qsizetype end = std::min(begin + blockSize, mBehindLast);
        qsizetype digits = 0;
        for (qsizetype at = begin; at < begin + candidateSize; ++at)
            digits += isDigitAt(at) ? 1 : 0;
        for (qsizetype at = begin; at < end; ++at) {
            if (digits >= numberSize)
                readAt(at);
            digits += (isDigitAt(at + candidateSize) ? 1 : 0) - (isDigitAt(at) ? 1 : 0);
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
