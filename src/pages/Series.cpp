#include "pages/Series.h"

#include "pages/Addresses.h"
#include "pages/EmailFinder.h"
#include "util/Incr.h"
#include "util/Text.h"

#include <algorithm>
#include <array>
#include <utility>

using cUtility::Incr;

namespace {
enum Mode { ReadNumber = 0, ReplaceNumber = 3, AddStep = 4 };

bool hasNumber(QStringView text)
{
    return std::any_of(text.begin(), text.end(), [](QChar unit) { return cUtility::isDigit(unit.unicode()); });
}

/// What stands before and behind number `position` of `address`, which has one.
std::pair<QStringView, QStringView> around(QStringView address, qsizetype position)
{
    const auto isDigit = [](QChar unit) { return cUtility::isDigit(unit.unicode()); };
    auto begin = address.begin();
    auto end = address.begin();
    for (; position > 0; --position) {
        begin = std::find_if(end, address.end(), isDigit);
        end = std::find_if_not(begin, address.end(), isDigit);
    }
    return {QStringView(address.begin(), begin), QStringView(end, address.end())};
}

qint64 wholeNumber(QStringView digits)
{
    const bool isNumber =
        std::all_of(digits.begin(), digits.end(), [](QChar unit) { return unit <= u'9' && unit >= u'0'; });
    return isNumber ? digits.toLongLong() : 0;
}
} // namespace

QString Series::number() const
{
    return Incr(mAddress, ReadNumber, false, mPosition, {}, u"1", {}, true);
}

qint64 Series::lengthOfRun() const
{
    static constexpr std::array<qint64, 4> byDigits{0, 9, 99, 999};
    const auto digits = size_t(number().size());
    return digits < byDigits.size() ? byDigits[digits] : LongestRun;
}

Series Series::next(QStringView step) const
{
    return {Incr(mAddress, AddStep, false, mPosition, {}, step, {}, true), mPosition};
}

Series Series::withNumber(QStringView number) const
{
    if (!hasNumber(mAddress))
        return *this;
    const QString digits = cUtility::PaddDigits(number, this->number().size());
    return {Incr(mAddress, ReplaceNumber, false, mPosition, digits, u"1", {}, true), mPosition};
}

bool Series::isSameAs(const Series &other) const
{
    const QString mine = SeriesRules::storedUrl(mAddress);
    const QString theirs = SeriesRules::storedUrl(other.mAddress);
    const bool bothCount = !number().isEmpty() && !other.number().isEmpty();
    return bothCount && mPosition == other.mPosition &&
           cIEText::GetServerFromUrl(mine, cIEText::keepAll) == cIEText::GetServerFromUrl(theirs, cIEText::keepAll) &&
           around(mine, mPosition) == around(theirs, mPosition);
}

QString SeriesRules::storedUrl(const QString &address)
{
    constexpr QStringView protocol = u"http://";
    return cUtility::startsWithIgnoringCase(address, protocol) ? address.sliced(protocol.size()) : address;
}

qsizetype SeriesRules::countNumbers(const QString &address)
{
    const bool isLink = cIEText::IsThisEmailOrLink(address, true) == cIEText::TextKind::Link;
    return isLink ? cUtility::countNumbers(address) : 0;
}

SeriesRules::Row SeriesRules::row(QStringView start, QStringView position, QStringView step)
{
    return {wholeNumber(start), wholeNumber(position), std::max<qint64>(wholeNumber(step), 1)};
}

SeriesRules::Start SeriesRules::startIn(const QString &address, qsizetype position, qsizetype mostDigits)
{
    if (cIEText::IsThisEmailOrLink(address, true) != cIEText::TextKind::Link)
        return Start::NoLink;
    if (!hasNumber(address))
        return Start::NoNumber;
    if (position < 1)
        return Start::NoPosition;
    const qsizetype digits = Series(address, position).number().size();
    if (digits == 0)
        return Start::TooFewNumbers;
    return digits > mostDigits ? Start::TooLarge : Start::Found;
}
