// The text functions of the language in which the rules are written, in their plainest form: positions from 1, one unit
// at a time. What the plain versions of the routines are built from; the program itself does not know this file.
#pragma once

#include "util/Errors.h"

#include <QString>
#include <QStringList>

namespace plain {
[[noreturn]] inline void raise(qint64 number)
{
    throw RuntimeError(number, QStringLiteral("raised"));
}

inline qsizetype Len(const QString &text)
{
    return text.size();
}

inline QChar lowerOf(QChar unit)
{
    return unit.toLower();
}

inline QString LCase(QString text)
{
    for (QChar &unit : text)
        unit = lowerOf(unit);
    return text;
}

inline QString UCase(QString text)
{
    for (QChar &unit : text)
        unit = unit.toUpper();
    return text;
}

inline QString Mid(const QString &text, qsizetype start, qsizetype length)
{
    if (start < 1 || length < 0)
        raise(ErrorNumber::InvalidProcedureCall);
    QString part;
    for (qsizetype at = start; at <= Len(text) && at - start < length; ++at)
        part += text[at - 1];
    return part;
}

inline QString Mid(const QString &text, qsizetype start)
{
    return Mid(text, start, Len(text));
}

inline QString Left(const QString &text, qsizetype length)
{
    return Mid(text, 1, length);
}

inline QString Right(const QString &text, qsizetype length)
{
    if (length < 0)
        raise(ErrorNumber::InvalidProcedureCall);
    return length >= Len(text) ? text : Mid(text, Len(text) - length + 1);
}

inline QString Trim(const QString &text)
{
    qsizetype first = 1;
    qsizetype last = Len(text);
    while (first <= last && text[first - 1] == QChar(32))
        ++first;
    while (last >= first && text[last - 1] == QChar(32))
        --last;
    return Mid(text, first, last - first + 1);
}

enum Compare { Binary, Textual };

inline bool standsAt(const QString &text, qsizetype position, const QString &find, Compare compare)
{
    if (position - 1 + Len(find) > Len(text))
        return false;
    for (qsizetype at = 0; at < Len(find); ++at) {
        const QChar one = text[position - 1 + at];
        const QChar other = find[at];
        if (compare == Binary ? one != other : lowerOf(one) != lowerOf(other))
            return false;
    }
    return true;
}

inline qsizetype InStr(qsizetype start, const QString &text, const QString &find, Compare compare = Binary)
{
    if (text.isEmpty() || start > Len(text))
        return 0;
    if (find.isEmpty())
        return start;
    for (qsizetype position = start; position <= Len(text); ++position)
        if (standsAt(text, position, find, compare))
            return position;
    return 0;
}

inline qsizetype InStrRev(const QString &text, const QString &find, Compare compare = Binary)
{
    for (qsizetype position = Len(text); position >= 1; --position)
        if (standsAt(text, position, find, compare))
            return position;
    return 0;
}

/// `IsNumeric` of one character.
inline bool IsNumeric(QChar unit)
{
    return unit >= QChar(u'0') && unit <= QChar(u'9');
}

/// `Val` of one character.
inline int Val(const QString &character)
{
    return !character.isEmpty() && IsNumeric(character[0]) ? character[0].unicode() - u'0' : 0;
}

/// Windows-1252, code by code; "?" where it has no character.
inline QChar Chr(int code)
{
    static const QString upper =
        QStringLiteral("\u20AC?\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152?"
                       "\u017D??\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A"
                       "\u0153?\u017E\u0178");
    return code < 128 || code > 159 ? QChar(code) : upper[code - 128];
}

inline int Asc(const QString &character)
{
    if (character.isEmpty())
        raise(ErrorNumber::InvalidProcedureCall);
    for (int code = 0; code < 256; ++code)
        if (Chr(code) == character[0])
            return code;
    return '?';
}

inline QString Replace(const QString &text, const QString &find, const QString &replacement)
{
    QString result;
    for (qsizetype at = 1; at <= Len(text);) {
        if (!find.isEmpty() && standsAt(text, at, find, Binary)) {
            result += replacement;
            at += Len(find);
        } else {
            result += text[at - 1];
            ++at;
        }
    }
    return result;
}

inline QStringList Split(const QString &text, const QString &delimiter)
{
    QStringList parts;
    qsizetype begin = 1;
    for (qsizetype hit = InStr(1, text, delimiter); hit > 0; hit = InStr(begin, text, delimiter)) {
        parts += Mid(text, begin, hit - begin);
        begin = hit + Len(delimiter);
    }
    parts += begin > Len(text) ? QString() : Mid(text, begin);
    return parts;
}
} // namespace plain
