// How Google Test shows texts and lists of texts: escaped, so that odd units can be told apart.
#pragma once

#include <QString>
#include <QStringList>
#include <gtest/gtest.h>
#include <ostream>

inline std::string shown(const QString &text)
{
    QString escaped;
    for (const QChar unit : text)
        escaped += unit >= u' ' && unit < u'\x7f'
                       ? QString(unit)
                       : QStringLiteral("\\u%1").arg(int(unit.unicode()), 4, 16, QChar(u'0'));
    return '"' + escaped.toStdString() + '"';
}

inline std::string shown(const QStringList &list)
{
    std::string all = "{";
    for (const QString &text : list)
        all += (all.size() > 1 ? ", " : "") + shown(text);
    return all + "}";
}

QT_BEGIN_NAMESPACE
inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << shown(text);
}

inline void PrintTo(const QStringList &list, std::ostream *out)
{
    *out << shown(list);
}
QT_END_NAMESPACE
