// The chain of a search-site record in its plain form, step by step as it is told: what it takes out of a page's links.
#pragma once

#include "pages/PlainFinders.h"

namespace plain {
/// A record's families with their filled slots in order, and what else the chain asks for.
struct ChainRules
{
    QStringList begin, end, mustContain, mustNotContain, firstLink, lastLink;
    QString length;
    bool convertHex = false, uniqueServers = false;
    QStringList blocked;
};

inline QString part(int number, const QString &value)
{
    const QStringList parts = value.split(QStringLiteral("<~Dorv~>"));
    return parts.size() == 1 ? value : parts[0].isEmpty() ? QString() : parts.value(number);
}

inline bool holdsOneOf(const QString &link, const QStringList &values)
{
    for (const QString &value : values) {
        if (InStr(1, link, value, Textual) > 0)
            return true;
    }
    return false;
}

inline QStringList startStop(const QStringList &links, const ChainRules &rules)
{
    if (rules.firstLink.isEmpty() && rules.lastLink.isEmpty())
        return links;
    QStringList taken;
    bool started = false;
    for (const QString &link : links) {
        if (rules.firstLink.isEmpty()) {
            if (holdsOneOf(link, rules.lastLink))
                break;
            taken += link;
        } else if (!started) {
            if (holdsOneOf(link, rules.firstLink))
                started = true;
        } else {
            taken += link;
            if (!rules.lastLink.isEmpty() && holdsOneOf(link, rules.lastLink))
                break;
        }
    }
    return taken;
}

inline QStringList convertHex(const QStringList &given, const ChainRules &rules)
{
    QStringList links = given;
    for (QString &link : links) {
        if (rules.convertHex && InStr(1, link, QStringLiteral("%"), Textual) > 0)
            link = HexToDec(link);
    }
    return links;
}

inline QStringList minMax(const QStringList &links, const ChainRules &rules)
{
    if (rules.length.isEmpty() || part(1, rules.length).toInt() <= 0)
        return links;
    const int comparison = part(0, rules.length).toInt();
    const qsizetype wanted = part(1, rules.length).toInt();
    QStringList kept;
    for (const QString &link : links) {
        const bool fits[] = {Len(link) == wanted, Len(link) > wanted, Len(link) < wanted, Len(link) >= wanted,
                             Len(link) <= wanted};
        if (comparison < 5 && fits[comparison])
            kept += link;
    }
    return kept;
}

inline bool hitsOneOf(const QString &link, const QStringList &values)
{
    for (const QString &value : values) {
        const int count = part(1, value).toInt();
        const qsizetype found = CountChar(link, part(0, value), true);
        if ((count > 0 && found == count) || (count <= 0 && found > 0))
            return true;
    }
    return false;
}

inline QStringList mustContain(const QStringList &links, const ChainRules &rules)
{
    QStringList kept;
    for (const QString &link : links) {
        if (rules.mustContain.isEmpty() || hitsOneOf(link, rules.mustContain))
            kept += link;
    }
    return kept;
}

inline QStringList mustNotContain(const QStringList &links, const ChainRules &rules)
{
    QStringList kept;
    for (const QString &link : links) {
        if (rules.mustNotContain.isEmpty() || !hitsOneOf(link, rules.mustNotContain))
            kept += link;
    }
    return kept;
}

inline QStringList beginEnd(const QStringList &given, const ChainRules &rules)
{
    QStringList links = given;
    for (QString &link : links) {
        for (const QString &value : rules.begin) {
            if (const qsizetype at = InStr(1, link, value, Textual); at > 0)
                link = Mid(link, at + Len(value));
        }
        for (const QString &value : rules.end) {
            if (const qsizetype at = InStr(1, link, value, Textual); at > 0)
                link = Left(link, at - 1);
        }
    }
    return links;
}

inline QStringList GetLinks(const QStringList &pageLinks, const ChainRules &rules)
{
    QStringList links = pageLinks;
    if (links.isEmpty() || links[0].isEmpty())
        return {QString()};
    for (const auto stage : {startStop, convertHex, minMax, mustContain, mustNotContain, beginEnd}) {
        const QStringList result = stage(links, rules);
        if (!result.isEmpty() && !result[0].isEmpty())
            links = result;
    }
    if (rules.uniqueServers)
        links = GetUniqueServers(links);
    links = RemoveRepeatsFromArray(links);
    return rules.blocked.isEmpty() ? links : FilterArray(links, rules.blocked);
}
} // namespace plain
