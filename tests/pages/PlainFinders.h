// The address routines and the finders in their plain form, step by step as they are told, without regard to cost. The
// random comparisons hold the program's own versions against these.
#pragma once

#include "PlainTables.h"
#include "util/PlainUtility.h"

namespace plain {
inline QString countOfNumbers(const QString &text)
{
    return Incr({text, 2, false, 1, {}, QStringLiteral("1"), {}, true});
}

inline QString GetProtocol(const QString &address, int mode)
{
    QString protocol;
    for (const QString &candidate : protocolTypes()) {
        protocol = candidate;
        if (InStr(1, address, protocol, Textual) > 0)
            break;
    }
    if (mode == 0)
        return protocol;
    try {
        return Right(address, Len(address) - Len(protocol));
    } catch (const RuntimeError &) {
        return {};
    }
}

inline bool walkFindsServerType(const QString &copy)
{
    for (const QString &type : serverTypes()) {
        const qsizetype hit = InStr(1, copy, type);
        if (hit == 0)
            continue;
        const QString behind = Mid(copy, hit + Len(type));
        if (type == QStringLiteral(".ph") && Len(behind) >= 2 && Left(behind, 1) == u'p')
            continue;
        return true;
    }
    return false;
}

inline QString cutBeforeSlashes(QString rest)
{
    while (InStr(1, rest, QStringLiteral("/")) > 0)
        rest = InStrRevGetBeginning(rest, QStringLiteral("/"));
    return rest;
}

inline QString serverOf(const QString &copy, const QString &given)
{
    const QString slash = QStringLiteral("/");
    QString rest = given;
    if (InStr(1, copy, QStringLiteral("\\"), Textual) > 0)
        return {};
    if (walkFindsServerType(copy)) {
        const qsizetype p = InStr(1, copy, QStringLiteral("@"));
        if (p > 0)
            return Len(rest) > p ? Right(rest, Len(rest) - p) : QString();
        return cutBeforeSlashes(rest);
    }
    if (CountChar(rest, slash, true) >= 1)
        rest = cutBeforeSlashes(rest);
    return countOfNumbers(rest) == QStringLiteral("4") ? rest : QString();
}

inline QString GetServerFromUrl(const QString &address, bool keepType, bool keepWww, bool keepProtocol)
{
    const QString copy = LCase(address);
    QString server;
    QString protocol;
    if (!copy.isEmpty()) {
        protocol = GetProtocol(copy, 0);
        server = serverOf(copy, GetProtocol(address, 1));
    }
    if (keepProtocol)
        server = protocol + server;
    if (const qsizetype www = InStr(1, server, QStringLiteral("www."), Textual); !keepWww && www > 0)
        server = Mid(server, www + 4);
    return keepType ? server : InStrRevGetBeginning(server, QStringLiteral("."));
}

inline QStringList GetUniqueServers(const QStringList &addresses)
{
    QStringList kept{QString()};
    for (const QString &address : addresses) {
        const QString server = LCase(GetServerFromUrl(address, true, true, false));
        bool isRepeat = false;
        for (const QString &other : kept)
            isRepeat = isRepeat || LCase(GetServerFromUrl(other, true, true, false)) == server;
        if (isRepeat)
            continue;
        if (kept.size() == 1 && kept[0].isEmpty())
            kept[0] = address;
        else
            kept += address;
    }
    return kept;
}

inline bool DoesThisEndInAUrl(const QString &text)
{
    const QString copy = Trim(LCase(text));
    for (const QString &type : serverTypes())
        if (Right(copy, Len(type)) == type)
            return true;
    return false;
}

inline bool IsUrlNumeric(const QString &text)
{
    QString rest = Trim(text);
    for (const QString &protocol : protocolTypes()) {
        if (Left(rest, Len(protocol)) != protocol)
            continue;
        rest = Replace(Replace(Mid(rest, Len(protocol) + 1), QStringLiteral("/"), {}), QStringLiteral("."), {});
        for (const QChar unit : rest)
            if (!IsNumeric(unit))
                return false;
        return true;
    }
    return true;
}

inline bool CheckForInvalidUrlChar(const QString &text)
{
    if (Trim(text).isEmpty())
        return false;
    for (const QChar unit : text) {
        const int code = Asc(QString(unit));
        if (code <= 32)
            return true;
        for (const int refused : {36, 60, 62, 64, 91, 92, 93, 94, 96, 123, 124, 125, 127, 128})
            if (code == refused)
                return true;
    }
    return false;
}

inline QString DecToHex(int number)
{
    const QString digits = QStringLiteral("0123456789ABCDEF");
    int low = 0;
    int high = 0;
    for (int count = 1; count <= number; ++count) {
        low = (low + 1) % 16;
        if (low == 0)
            high = (high + 1) % 16;
    }
    return number < 1 ? QString() : QString(digits[high]) + digits[low];
}

inline QString HexToDec(QString text)
{
    qsizetype p = InStr(1, text, QStringLiteral("%"));
    while (p > 0) {
        QString code = UCase(Mid(text, p + 1, 2));
        const QString left = Left(text, p - 1);
        QString right = Mid(text, p + 3);
        if (code == QStringLiteral("25") && Len(text) > p + 3) {
            code = UCase(Mid(text, p + 3, 2));
            right = Mid(text, p + 5);
            p += 2;
        }
        const qsizetype letter = InStr(1, QStringLiteral("ABCDEF"), Left(code, 1));
        const int from = !code.isEmpty() && letter > 0 ? 144 + 16 * int(letter) : Val(Left(code, 1)) * 16;
        for (int value = from; value < from + 16; ++value) {
            if (!code.isEmpty() && DecToHex(value) == code) { // a "%" at the very end has no code
                text = left + Chr(value) + right;
                break;
            }
        }
        p = InStr(p + 1, text, QStringLiteral("%"));
    }
    return text;
}

/// Takes a lower-cased character; counts what would be logged. Its code is its ANSI code; above 127 none is allowed.
inline bool CheckForInvalidEmailChar(const QString &character, int &errors)
{
    if (character.isEmpty()) {
        ++errors;
        return false;
    }
    const int code = character[0].unicode() < 128 ? int(character[0].unicode()) : Asc(character);
    const bool isAllowed = code == '@' || code == '-' || code == '.' || code == '_' || (code >= '0' && code <= '9') ||
                           (code >= 'a' && code <= 'z');
    return !isAllowed;
}

struct Emails
{
    QStringList list;
    int errors = 0;
};

inline Emails CollectEmail(const QString &text, const QString &searchText)
{
    QStringList found;
    int errors = 0;
    bool startFound = false;
    bool endFound = false;
    qsizetype start = 0;
    qsizetype end = 0;
    qsizetype resume = 1;
    int passes = 0;
    qsizetype hit = 0;
    const bool wholeEndsInUrl = DoesThisEndInAUrl(text);
    do {
        hit = InStr(resume, text, searchText);
        if (hit == resume) {
            resume += 5;
            hit += 15;
        }
        ++passes;
        if (passes == 1000 || hit == 0)
            break;
        for (qsizetype i = hit; i >= 1; --i) {
            const bool isRefused = CheckForInvalidEmailChar(LCase(Mid(text, i, 1)), errors);
            if (isRefused || (i == 1 && hit < 35)) {
                startFound = true;
                start = i == 1 ? i : i + 1;
                break;
            }
        }
        for (qsizetype j = hit; j <= Len(text); ++j) {
            if (CheckForInvalidEmailChar(LCase(Mid(text, j, 1)), errors)) {
                endFound = true;
                end = j - 1;
                break;
            }
            if (j == Len(text) && wholeEndsInUrl) {
                endFound = true;
                end = j;
                break;
            }
        }
        if (startFound && endFound && start < end) {
            const QString candidate = Mid(text, start, end - start + 1);
            if (DoesThisEndInAUrl(candidate)) {
                found += candidate;
                resume = end;
            }
        }
        if (end > 0)
            resume = end;
    } while (hit != 0);
    return {found.isEmpty() ? QStringList{QString()} : found, errors};
}

inline int numericKind(const QString &text)
{
    if (countOfNumbers(text) != QStringLiteral("4"))
        return 0;
    for (int group = 1; group <= 4; ++group)
        if (Len(Incr({text, 0, false, group, {}, QStringLiteral("1"), {}, true})) > 3)
            return 0;
    return 2;
}

inline int IsThisEmailOrLink(const QString &given, bool acceptWithoutPrefix)
{
    const QString http = QStringLiteral("http://");
    const QString slash = QStringLiteral("/");
    QString text = LCase(given);
    if (text.isEmpty() || InStr(1, text, QStringLiteral("."), Textual) == 0 || InStr(1, text, QStringLiteral("\\")) > 0)
        return 0;
    for (const QString &type : serverTypes()) {
        const qsizetype hit = InStrRev(text, type, Textual);
        if (hit == 0 || (hit + Len(type) - 1 != Len(text) && Mid(text, hit + Len(type), 1) != slash))
            continue;
        if (InStr(1, text, QStringLiteral("@")) > 0)
            return 1;
        if (acceptWithoutPrefix)
            return 2;
        return Left(text, 7) == http || InStr(1, text, QStringLiteral("www.")) > 0 ? 2 : 0;
    }
    if (CountChar(text, slash, true) == 0)
        return numericKind(text);
    const qsizetype from = Left(text, 7) == http ? 8 : 1;
    while (InStr(from, text, slash) > 0)
        text = InStrRevGetBeginning(text, slash);
    return numericKind(text);
}

inline QStringList areaCodeList(const QString &areaCodes)
{
    if (!areaCodes.isEmpty())
        return InStr(1, areaCodes, QStringLiteral(",")) == 0 ? QStringList{areaCodes}
                                                             : Split(areaCodes, QStringLiteral(","));
    QStringList codes;
    for (const auto &[state, codesOfState] : plain::areaCodes())
        codes += Split(codesOfState, QStringLiteral(","));
    return codes;
}

inline QString readNumber(const QString &candidate)
{
    QString number;
    int separators = 0;
    for (qsizetype at = 1; at <= 15; ++at) {
        const QString unit = Mid(candidate, at, 1);
        if (!unit.isEmpty() && IsNumeric(unit[0])) {
            number += unit;
            separators = 0;
        } else if (unit == QStringLiteral("-") || unit == QStringLiteral(")")) {
            if (++separators == 2)
                break;
        } else {
            break;
        }
    }
    return number;
}

inline QStringList FindPhoneNumbers(const QString &text, const QString &areaCodes, bool faxOnly)
{
    const QStringList codes = areaCodeList(areaCodes);
    QStringList result{QString()};
    if (InStr(1, text, QStringLiteral("-")) == 0)
        return result;
    const qsizetype reach = faxOnly ? 27 : 15;
    for (const QString &code : codes) {
        for (qsizetype position = InStr(1, text, code); position > 0; position = InStr(position + 1, text, code)) {
            if (position + reach > Len(text))
                continue;
            QString candidate = Mid(text, position, 15);
            bool isFax = false;
            if (faxOnly) {
                const QString context = position > 27 ? Mid(text, position - 20, 20) : Mid(text, position, 27);
                isFax = InStr(1, context, QStringLiteral("fax"), Textual) > 0;
            }
            if (InStr(1, candidate, QStringLiteral("-")) == 0 && InStr(1, candidate, QStringLiteral(")")) == 0)
                continue;
            if (faxOnly && !isFax)
                continue;
            candidate = Replace(candidate, QStringLiteral(" "), {});
            const QString number = readNumber(candidate);
            if (Len(number) != 10)
                continue;
            if (result.size() == 1 && result[0].isEmpty())
                result[0] = number;
            else
                result += number;
        }
    }
    return result;
}

struct Contents
{
    QStringList list;
    int errors = 0;
};

inline Contents Get_HtmlTag_Content(QString tag, QString endTag, const QString &markup)
{
    Contents contents{{QString()}, 0};
    if (tag.isEmpty() || endTag.isEmpty())
        return contents;
    if (Right(tag, 1) == u'>')
        tag = Left(tag, Len(tag) - 1);
    tag = LCase(tag);
    endTag = LCase(endTag);
    const QString copy = LCase(markup);
    qsizetype position = 0;
    qsizetype elements = 0;
    try {
        for (int passes = 0; passes < 10000 && elements < 10000; ++passes) {
            const qsizetype hit = InStr(position + 1, copy, tag);
            if (hit == 0)
                break;
            const qsizetype next = InStr(hit + Len(tag), copy, tag);
            qsizetype end = InStr(hit + Len(tag), copy, endTag);
            if (next > 0 && end > 0 && next < end)
                end = next;
            if (end > 0) {
                const qsizetype begin = hit + Len(tag) + 1;
                const QString content = Mid(markup, begin, end - begin);
                if (elements == 0)
                    contents.list[0] = content;
                else
                    contents.list += content;
                ++elements;
            }
            position = end;
        }
    } catch (const RuntimeError &) {
        ++contents.errors;
    }
    return contents;
}
} // namespace plain
