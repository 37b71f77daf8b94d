// The text utilities in their plain form, step by step as they are told, without regard to cost. The random comparisons
// hold the program's own versions against these.
#pragma once

#include "PlainLanguage.h"

#include <optional>

namespace plain {
struct NameParts
{
    QString directory;
    QString name;
    QString extension;
};

inline NameParts splitFile(const QString &spec)
{
    NameParts parts;
    const qsizetype separator = InStrRev(spec, QStringLiteral("/"));
    parts.directory = Left(spec, separator);
    parts.name = Mid(spec, separator + 1);
    const qsizetype dot = InStrRev(parts.name, QStringLiteral("."));
    const bool counts = Len(spec) >= 5 && (Mid(spec, Len(spec) - 3, 1) == u'.' || Mid(spec, Len(spec) - 4, 1) == u'.');
    if (counts && dot > 0) {
        parts.extension = Mid(parts.name, dot);
        parts.name = Left(parts.name, dot - 1);
    }
    return parts;
}

/// The runs of a name in two arrays, and which kind comes first.
struct Runs
{
    QStringList numbers;
    QStringList texts;
    bool numberFirst = false;
};

inline Runs runsOf(const QString &name)
{
    Runs runs;
    bool previous = false;
    for (qsizetype at = 1; at <= Len(name); ++at) {
        const QChar unit = name[at - 1];
        QStringList &list = IsNumeric(unit) ? runs.numbers : runs.texts;
        if (at == 1)
            runs.numberFirst = IsNumeric(unit);
        if (at == 1 || previous != IsNumeric(unit))
            list += QString();
        list.last() += unit;
        previous = IsNumeric(unit);
    }
    return runs;
}

__extension__ typedef __int128 Wide;

inline Wide toWide(const QString &digits)
{
    Wide value = 0;
    for (const QChar digit : digits)
        value = value * 10 + Val(digit);
    return value;
}

inline QString fromWide(Wide value)
{
    if (value < 0)
        return u'-' + fromWide(-value);
    QString digits;
    do {
        digits.prepend(QChar(u'0' + int(value % 10)));
        value /= 10;
    } while (value > 0);
    return digits;
}

/// The step as a number; nothing when it is none. At most 30 digits.
inline std::optional<Wide> stepOf(const QString &text)
{
    QString digits = Trim(text);
    const bool isNegative = Left(digits, 1) == u'-';
    if (isNegative || Left(digits, 1) == u'+')
        digits = Mid(digits, 2);
    if (digits.isEmpty())
        return std::nullopt;
    for (const QChar digit : digits)
        if (!IsNumeric(digit))
            return std::nullopt;
    return isNegative ? -toWide(digits) : toWide(digits);
}

struct IncrCall
{
    QString text;
    int mode = 0;
    bool isFile = false;
    qsizetype position = 1;
    QString newText;
    QString step;
    QString separator;
    bool pad = false;
};

inline QString changedRun(const IncrCall &call, const QString &run, bool digitsAlone)
{
    if (call.mode == 3)
        return call.newText;
    const Wide step = *stepOf(call.step);
    const Wide value = call.mode == 4 ? toWide(run) + step : toWide(run) - step;
    if (call.mode == 5 && value <= 0)
        return QString(Len(run), u'9');
    QString result = fromWide(value < 0 ? -value : value);
    if (call.pad || (call.mode == 4 && digitsAlone))
        while (Len(result) < Len(run))
            result.prepend(u'0');
    return value < 0 ? u'-' + result : result;
}

inline QString Incr(const IncrCall &call)
{
    const QString text = Trim(call.text);
    if (text.isEmpty() || call.mode < 0 || call.mode > 5)
        return {};
    NameParts file{{}, text, {}};
    if (call.isFile)
        file = splitFile(text);
    const Runs runs = runsOf(file.name);
    const qsizetype count = runs.numbers.size();
    const bool exists = call.position >= 1 && call.position <= count;
    if (call.mode == 0)
        return exists ? runs.numbers[call.position - 1] : QString();
    if (call.mode == 1)
        return runs.texts.isEmpty() ? QString() : runs.texts.last();
    if (call.mode == 2)
        return QString::number(count);
    if (count == 0)
        return file.directory + file.name + call.separator + u'0' + file.extension;
    if (!exists || (call.mode != 3 && !stepOf(call.step)))
        return {};
    const bool digitsAlone = count == 1 && runs.texts.isEmpty();
    QString result;
    const qsizetype texts = runs.texts.size();
    // Text run n stands before number run n, or behind it when a number comes first.
    for (qsizetype at = 0; at < count + texts; ++at) {
        const bool isNumber = (at % 2 == 0) == runs.numberFirst;
        const qsizetype index = at / 2;
        if (!isNumber) {
            result += runs.texts[index];
            continue;
        }
        if (index != call.position - 1) {
            result += runs.numbers[index];
            continue;
        }
        const qsizetype left = runs.numberFirst ? index - 1 : index;
        const qsizetype right = left + 1;
        const bool wants = call.isFile && !call.separator.isEmpty();
        if (wants && left >= 0 && Right(runs.texts[left], Len(call.separator)) != call.separator)
            result += call.separator;
        result += changedRun(call, runs.numbers[index], digitsAlone);
        if (wants && right < texts && Left(runs.texts[right], Len(call.separator)) != call.separator)
            result += call.separator;
    }
    return file.directory + result + file.extension;
}

inline qsizetype CountChar(const QString &text, const QString &find, bool caseSensitive)
{
    qsizetype count = 0;
    if (find.isEmpty())
        return 0;
    for (qsizetype hit = InStr(1, text, find, caseSensitive ? Binary : Textual); hit > 0;
         hit = InStr(hit + 1, text, find, caseSensitive ? Binary : Textual))
        ++count;
    return count;
}

inline QString InStrRevGetBeginning(const QString &text, const QString &find)
{
    const qsizetype hit = InStrRev(text, find);
    return hit == 0 ? QString() : Left(text, hit - 1);
}

inline QStringList FilterArray(const QStringList &items, const QStringList &filters)
{
    if (filters[0].isEmpty())
        return items;
    if (items[0].isEmpty())
        return {QString()};
    QStringList kept;
    for (const QString &item : items) {
        bool isHit = item.isEmpty();
        for (const QString &filter : filters)
            isHit = isHit || InStr(1, item, filter, Textual) > 0;
        if (!isHit)
            kept += item;
    }
    return kept.isEmpty() ? QStringList{QString()} : kept;
}

inline QStringList RemoveRepeatsFromArray(const QStringList &items)
{
    QStringList kept;
    for (const QString &item : items) {
        bool isRepeat = false;
        for (const QString &other : kept)
            isRepeat = isRepeat || other == item;
        if (!isRepeat)
            kept += item;
    }
    return kept;
}

/// What a screening test of a page comes to, and the item that decided (from 0, -1 for none).
struct Decision
{
    bool mayGo;
    qsizetype item;
};

inline Decision decide(const QString &html, const QStringList &items, bool caseSensitive, bool stopAtFound,
                       bool goOnStop)
{
    const QString page = caseSensitive ? html : LCase(html);
    for (qsizetype index = 0; index < items.size(); ++index) {
        const QString item = caseSensitive ? items[index] : LCase(items[index]);
        if ((InStr(1, page, item) > 0) == stopAtFound)
            return {goOnStop, index};
    }
    return {!goOnStop, -1};
}

/// Modes 0 "All", 1 "Any", 2 "Select" (with the selected items).
inline Decision IsMCGo(const QString &html, const QStringList &items, int mode, bool caseSensitive)
{
    if (items.isEmpty())
        return {true, -1};
    return mode == 1 ? decide(html, items, caseSensitive, true, true)
                     : decide(html, items, caseSensitive, false, false);
}

inline Decision IsMNCGo(const QString &html, const QStringList &items, bool caseSensitive)
{
    return decide(html, items, caseSensitive, true, false);
}

/// Colours: 0 unchanged, 1 neutral, 2 green, 3 red.
struct Segment
{
    QString text;
    int start = 0;
    int stop = 0;
};

inline Segment GetStringSegment(const QString &text, const QString &start, const QString &stop)
{
    if (start.isEmpty() && stop.isEmpty())
        return {text, 0, 0};
    if (stop.isEmpty()) {
        if (InStr(1, text, start, Textual) == 0)
            return {text, 3, 1};
        return {Right(text, Len(text) - (Len(start) - 1)), 2, 1};
    }
    if (start.isEmpty()) {
        const qsizetype p = InStr(1, text, stop, Textual);
        return p == 0 ? Segment{text, 1, 3} : Segment{Left(text, p - 1), 1, 2};
    }
    const qsizetype p1 = InStr(1, text, start, Textual);
    if (p1 == 0) {
        const qsizetype p = InStr(1, text, stop, Textual);
        return p == 0 ? Segment{text, 3, 3} : Segment{Left(text, p - 1), 3, 2};
    }
    const qsizetype from = p1 + Len(start);
    const qsizetype p2 = InStr(from, text, stop, Textual);
    return p2 == 0 ? Segment{Mid(text, from), 2, 3} : Segment{Mid(text, from, p2 - from), 2, 2};
}
} // namespace plain
