#include "util/Incr.h"

#include "util/FileNames.h"
#include "util/Text.h"

#include <QList>
#include <QStringBuilder>
#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace {
enum Mode { ReadNumber, LastText, CountNumbers, ReplaceNumber, AddStep, SubtractStep };

/// The runs of digits and of other characters of a name, in order.
struct Run
{
    QStringView text;
    bool isNumber;
};

QList<Run> runsOf(QStringView text)
{
    QList<Run> runs;
    for (qsizetype begin = 0, end = 0; begin < text.size(); begin = end) {
        const bool isNumber = cUtility::isDigit(text[begin].unicode());
        while (end < text.size() && cUtility::isDigit(text[end].unicode()) == isNumber)
            ++end;
        runs += {text.sliced(begin, end - begin), isNumber};
    }
    return runs;
}

/// The index among `runs` of number `position` (from 1), -1 when there are not so many.
qsizetype indexOfNumber(const QList<Run> &runs, qsizetype position)
{
    for (qsizetype index = 0; index < runs.size() && position > 0; ++index)
        if (runs[index].isNumber && --position == 0)
            return index;
    return -1;
}

/// A whole number of any length: decimal digits without leading zeros, "0" for zero.
struct WholeNumber
{
    bool isNegative = false;
    QString digits;
};

QString withoutLeadingZeros(QStringView digits)
{
    while (digits.size() > 1 && digits.startsWith(u'0'))
        digits = digits.sliced(1);
    return digits.toString();
}

std::optional<WholeNumber> wholeNumber(QStringView text)
{
    text = cUtility::Trim(text);
    const bool isNegative = text.startsWith(u'-');
    if (isNegative || text.startsWith(u'+'))
        text = text.sliced(1);
    const bool isNumber = !text.isEmpty() &&
                          std::all_of(text.begin(), text.end(), [](QChar c) { return cUtility::isDigit(c.unicode()); });
    if (!isNumber)
        return std::nullopt;
    return WholeNumber{isNegative, withoutLeadingZeros(text)};
}

bool isLess(const QString &left, const QString &right)
{
    return left.size() != right.size() ? left.size() < right.size() : left < right;
}

/// `left` + `sign` * `right` digit by digit from the right; with sign -1 `left` is not the smaller one.
QString combined(const QString &left, const QString &right, int sign)
{
    const qsizetype width = std::max(left.size(), right.size()) + 1;
    QString result(width, u'0');
    int carry = 0;
    const auto digit = [](const QString &digits, qsizetype place) {
        return place < digits.size() ? digits[digits.size() - 1 - place].unicode() - u'0' : 0;
    };
    for (qsizetype place = 0; place < width; ++place) {
        const int sum = digit(left, place) + sign * digit(right, place) + carry;
        carry = sum < 0 ? -1 : sum / 10;
        result[width - 1 - place] = QChar(u'0' + (sum + 10) % 10);
    }
    return withoutLeadingZeros(result);
}

WholeNumber sum(const WholeNumber &left, const WholeNumber &right)
{
    if (left.isNegative == right.isNegative)
        return {left.isNegative, combined(left.digits, right.digits, 1)};
    const bool rightWins = isLess(left.digits, right.digits);
    const WholeNumber &larger = rightWins ? right : left;
    const WholeNumber &smaller = rightWins ? left : right;
    return {larger.isNegative, combined(larger.digits, smaller.digits, -1)};
}

/// The digits that stand for `number` plus or minus `step`; nothing when the step is no number.
std::optional<QString> stepped(QStringView number, int mode, QStringView strStep, bool isPadded)
{
    std::optional<WholeNumber> step = wholeNumber(strStep);
    if (!step)
        return std::nullopt;
    if (mode == SubtractStep)
        step->isNegative = !step->isNegative;
    const WholeNumber result = sum({false, withoutLeadingZeros(number)}, *step);
    if (mode == SubtractStep && (result.isNegative || result.digits == u"0"_s))
        return QString(number.size(), u'9');
    const QString digits = isPadded ? cUtility::PaddDigits(result.digits, number.size()) : result.digits;
    return result.isNegative ? u'-' + digits : digits;
}

/// The runs joined again, with `changed` in the place of run `index` and `separator` at its touching ends.
QString joined(const QList<Run> &runs, qsizetype index, const QString &changed, QStringView separator)
{
    QString text;
    for (qsizetype at = 0; at < runs.size(); ++at) {
        if (at != index) {
            text += runs[at].text;
            continue;
        }
        if (at > 0 && !runs[at - 1].text.endsWith(separator))
            text += separator;
        text += changed;
        if (at + 1 < runs.size() && !runs[at + 1].text.startsWith(separator))
            text += separator;
    }
    return text;
}

QString lastText(const QList<Run> &runs)
{
    const auto found = std::find_if(runs.rbegin(), runs.rend(), [](const Run &run) { return !run.isNumber; });
    return found == runs.rend() ? QString() : found->text.toString();
}

struct Change
{
    int mode;
    qsizetype position;
    QStringView newText;
    QStringView step;
    bool isPadded;
};

/// The changed number of `runs`, nothing where it cannot be changed.
std::optional<QString> changedNumber(const QList<Run> &runs, qsizetype index, const Change &change)
{
    if (index < 0)
        return std::nullopt;
    if (change.mode == ReplaceNumber)
        return change.newText.toString();
    const bool isPadded = change.isPadded || (change.mode == AddStep && runs.size() == 1);
    return stepped(runs[index].text, change.mode, change.step, isPadded);
}
} // namespace

QString cUtility::Incr(QStringView text, int intMode, bool bIsFile, qsizetype lngPos, QStringView strNew,
                       QStringView strStep, QStringView strSep, bool bPad)
{
    text = Trim(text);
    if (text.isEmpty() || intMode < ReadNumber || intMode > SubtractStep)
        return {};
    const auto part = [&](FilePart wanted) {
        return bIsFile ? filePart(wanted, text, FolderSeparator) : QStringView();
    };
    const QStringView folder = part(FilePart::Folder);
    const QStringView extension = part(FilePart::DotExtension);
    const QStringView name = bIsFile ? part(FilePart::Name) : text;

    const QList<Run> runs = runsOf(name);
    const qsizetype count = std::count_if(runs.begin(), runs.end(), [](const Run &run) { return run.isNumber; });
    const qsizetype index = indexOfNumber(runs, lngPos);
    switch (intMode) {
    case ReadNumber:
        return index < 0 ? QString() : runs[index].text.toString();
    case LastText:
        return lastText(runs);
    case CountNumbers:
        return QString::number(count);
    default:
        break;
    }
    if (count == 0)
        return folder % name % strSep % QChar(u'0') % extension;
    const std::optional<QString> changed = changedNumber(runs, index, {intMode, lngPos, strNew, strStep, bPad});
    if (!changed)
        return {};
    return folder % joined(runs, index, *changed, bIsFile ? strSep : QStringView()) % extension;
}

QString cUtility::nextFileName(QStringView path, QStringView separator)
{
    return Incr(path, AddStep, true, 1, {}, u"1", separator, true);
}

qsizetype cUtility::countNumbers(QStringView text)
{
    qsizetype count = 0;
    bool wasDigit = false;
    for (const QChar unit : text) {
        const bool nowDigit = isDigit(unit.unicode());
        count += nowDigit && !wasDigit ? 1 : 0;
        wasDigit = nowDigit;
    }
    return count;
}

QString cUtility::GetNumberInString(bool bFromLeft, QStringView text)
{
    const auto digit = [](QChar unit) { return isDigit(unit.unicode()); };
    if (bFromLeft) {
        const auto begin = std::find_if(text.begin(), text.end(), digit);
        return QStringView(begin, std::find_if_not(begin, text.end(), digit)).toString();
    }
    const auto end = std::find_if(text.rbegin(), text.rend(), digit);
    const auto begin = std::find_if_not(end, text.rend(), digit);
    return QStringView(begin.base(), end.base()).toString();
}

QString cUtility::CollectNumbers(QStringView text)
{
    QString digits;
    std::copy_if(text.begin(), text.end(), std::back_inserter(digits), [](QChar c) { return isDigit(c.unicode()); });
    return digits;
}

QString cUtility::PaddDigits(QStringView number, qsizetype width)
{
    return QString(std::max<qsizetype>(width - number.size(), 0), u'0') % number;
}
