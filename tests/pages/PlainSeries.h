// Numbered series and names of downloads in their plain form, step by step as they are told.
#pragma once

#include "PlainFinders.h"
#include "util/PlainUtility.h"

namespace plain {
inline QString IncrOf(const QString &url, int mode, qsizetype position, const QString &newText, const QString &step)
{
    return Incr({url, mode, false, position, newText, step, {}, true});
}

/// The addresses of a run of `turns` turns, as the loop of the run makes them.
inline QStringList seriesOfRun(const QString &address, qsizetype position, const QString &step, int turns)
{
    QStringList urls;
    QString autoUrl = Trim(address);
    for (int turn = 0; turn < turns; ++turn) {
        if (turn > 0)
            autoUrl = IncrOf(autoUrl, 4, position, {}, step);
        urls += autoUrl;
    }
    return urls;
}

/// How many turns the loop of the run makes from `first` on, counted by making them.
inline qint64 turnsOfRun(qint64 first, const QString &numberText)
{
    qint64 limit = 0;
    for (qsizetype digit = 1; digit <= Len(numberText) && digit <= 18; ++digit)
        limit = limit * 10 + 9;
    qint64 n = 5000;
    while (!(n < limit))
        --n;
    qint64 turns = 0;
    for (qint64 item = first; item <= first + n; ++item)
        ++turns;
    return turns;
}

/// What the address box holds when the number box has changed to `value`.
inline QString withBoxValue(const QString &url, qsizetype position, const QString &value)
{
    bool hasNumber = false;
    for (const QChar unit : url)
        hasNumber = hasNumber || IsNumeric(unit);
    if (url.isEmpty() || !hasNumber)
        return url;
    const QString old = IncrOf(url, 0, position, {}, QStringLiteral("1"));
    QString padded = value;
    while (Len(padded) < Len(old))
        padded = u'0' + padded;
    return IncrOf(url, 3, position, padded, QStringLiteral("1"));
}

struct SplitUrl
{
    QString left;
    QString number;
    QString right;
};

/// The text left and right of number `position`, by walking over the units.
inline SplitUrl splitAtNumber(const QString &url, qsizetype position)
{
    SplitUrl parts;
    qsizetype count = 0;
    for (qsizetype at = 1; at <= Len(url); ++at) {
        const QString unit = Mid(url, at, 1);
        const bool isDigit = IsNumeric(unit[0]);
        if (isDigit && (at == 1 || !IsNumeric(Mid(url, at - 1, 1)[0])))
            ++count;
        if (isDigit && count == position)
            parts.number += unit;
        else if (parts.number.isEmpty())
            parts.left += unit;
        else
            parts.right += unit;
    }
    return parts;
}

inline QString withoutHttp(const QString &url)
{
    return LCase(Left(url, 7)) == QStringLiteral("http://") ? Mid(url, 8) : url;
}

inline bool isSameSeries(const QString &url, const QString &item, qsizetype position)
{
    const SplitUrl one = splitAtNumber(withoutHttp(url), position);
    const SplitUrl other = splitAtNumber(withoutHttp(item), position);
    if (one.number.isEmpty() || other.number.isEmpty())
        return false;
    return GetServerFromUrl(withoutHttp(url), true, true, true) ==
               GetServerFromUrl(withoutHttp(item), true, true, true) &&
           one.left == other.left && one.right == other.right;
}

inline QString strippedToLettersAndDigits(const QString &text)
{
    QString kept;
    for (const QChar unit : text)
        if ((unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z') || IsNumeric(unit))
            kept += unit;
    return kept;
}

/// The name of a download; `isNumericName` says whether a whole name is a number.
template <class IsNumericName> QString fileNameOf(const QString &url, IsNumericName isNumericName)
{
    if (Len(url) < 5)
        return {};
    const QString four = Mid(url, Len(url) - 4, 1);
    const QString three = Mid(url, Len(url) - 3, 1);
    const NameParts parts = splitFile(Trim(url));
    if (four == u".") {
        QString extension = parts.extension;
        if (LCase(extension) == u".jpeg")
            extension = QStringLiteral(".jpg");
        if (LCase(extension) == u".html")
            extension = QStringLiteral(".htm");
        return parts.name + extension;
    }
    if (three == u".") {
        const QString server = isNumericName(parts.name) ? GetServerFromUrl(url, true, false, false) : QString();
        return strippedToLettersAndDigits(server) + parts.name + parts.extension;
    }
    return {};
}
} // namespace plain
