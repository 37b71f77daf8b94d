#include "pages/LinkStages.h"

#include "pages/Addresses.h"
#include "util/AddressList.h"
#include "util/ColumnText.h"
#include "util/Text.h"

#include <QRegularExpression>
#include <cmath>
#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {
constexpr auto valueMarker = "<~Dorv~>"_L1;

bool isEmptyField(const QStringList &values)
{
    return firstOf(values).isEmpty();
}

bool holdsOneOf(const QString &link, const QStringList &values)
{
    return std::any_of(values.begin(), values.end(), [&](const QString &value) {
        return !value.isEmpty() && cUtility::holdsIgnoringCase(link, value);
    });
}

/// The whole number that a text spells, as the language converts one; error 13 for anything else.
qint64 wholeNumber(const QString &text)
{
    bool isNumber = false;
    const double number = text.trimmed().toDouble(&isNumber);
    if (!isNumber || !(number > -1e9 && number < 1e9))
        throw RuntimeError(ErrorNumber::TypeMismatch, u"Type mismatch"_s);
    return static_cast<qint64>(std::nearbyint(number));
}

/// The number that a text begins with; 0 if it begins with none.
qint64 leadingNumber(const QString &text)
{
    static const QRegularExpression pattern(u"^ *([+-]?[0-9]{1,9})"_s);
    return pattern.match(text).captured(1).toLongLong();
}

/// A text with its count, taken apart once for all links. A count that is no number fails where it is first asked for.
class CountedText
{
  public:
    explicit CountedText(const QString &value) : mText(SeparateSD(0, value)), mCount(SeparateSD(1, value)) {}

    [[nodiscard]] bool hits(const QString &link)
    {
        if (!mNumber)
            mNumber = wholeNumber(mCount);
        const qint64 occurrences = cUtility::CountChar(link, mText);
        return *mNumber > 0 ? occurrences == *mNumber : occurrences > 0;
    }

  private:
    QString mText;
    QString mCount;
    std::optional<qint64> mNumber;
};

bool fits(qint64 length, qint64 comparison, qint64 wanted)
{
    switch (comparison) {
    case 0:
        return length == wanted;
    case 1:
        return length > wanted;
    case 2:
        return length < wanted;
    case 3:
        return length >= wanted;
    case 4:
        return length <= wanted;
    default:
        return false;
    }
}
} // namespace

QString SeparateSD(int part, const QString &value)
{
    if (!value.contains(valueMarker))
        return value;
    const QStringList parts = value.split(valueMarker);
    return part > 1 || part < 0 || parts[0].isEmpty() ? QString() : parts[part];
}

QString JoinSD(const QString &text, qint64 number)
{
    const QString behind = valueMarker + QString::number(number);
    QString front = text.left(cUtility::columnLength - behind.size());
    if (front.size() < text.size() && front.back().isHighSurrogate())
        front.chop(1);
    return front + behind;
}

QStringList LinkStages::startStop(const QStringList &links, const QStringList &begin, const QStringList &end)
{
    if (isEmptyField(begin) && isEmptyField(end))
        return links;
    const bool hasBegin = !isEmptyField(begin);
    bool started = !hasBegin;
    QStringList taken;
    for (const QString &link : links) {
        if (!started) {
            started = holdsOneOf(link, begin);
            continue;
        }
        const bool last = holdsOneOf(link, end);
        if (!last || hasBegin)
            taken.append(link);
        if (last)
            break;
    }
    return orEmptyList(std::move(taken));
}

QStringList LinkStages::cnvHex(const QStringList &links)
{
    QStringList converted;
    for (const QString &link : links)
        converted.append(link.contains(u'%') ? cIEText::HexToDec(link) : link);
    return converted;
}

QStringList LinkStages::minMax(const QStringList &links, const QString &rule)
{
    const qint64 wanted = leadingNumber(SeparateSD(1, rule));
    if (rule.isEmpty() || wanted <= 0)
        return links;
    const qint64 comparison = leadingNumber(SeparateSD(0, rule));
    QStringList kept;
    for (const QString &link : links) {
        if (fits(link.size(), comparison, wanted))
            kept.append(link);
    }
    return orEmptyList(std::move(kept));
}

void LinkStages::countedTexts(const QStringList &links, const QStringList &values, Keeping keeping, QStringList &result)
{
    if (isEmptyField(values)) {
        result = links;
        return;
    }
    std::vector<CountedText> texts;
    for (const QString &value : values) {
        if (!value.isEmpty())
            texts.emplace_back(value);
    }
    result = emptyList();
    bool first = true;
    for (const QString &link : links) {
        const bool hit = std::any_of(texts.begin(), texts.end(), [&](CountedText &text) { return text.hits(link); });
        if (hit != (keeping == Keeping::Containing))
            continue;
        if (first)
            result.clear();
        first = false;
        result.append(link);
    }
}

QStringList LinkStages::beginEndUrl(const QStringList &links, const QStringList &begin, const QStringList &end)
{
    if (isEmptyField(begin) && isEmptyField(end))
        return links;
    QStringList cut;
    for (QString link : links) {
        for (const QString &value : begin) {
            if (const auto at = cUtility::indexIgnoringCase(link, value); !value.isEmpty() && at >= 0)
                link = link.mid(at + value.size());
        }
        for (const QString &value : end) {
            if (const auto at = cUtility::indexIgnoringCase(link, value); !value.isEmpty() && at >= 0)
                link = link.left(at);
        }
        cut.append(link);
    }
    return orEmptyList(std::move(cut));
}
