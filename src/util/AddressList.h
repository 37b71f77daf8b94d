// The form that lists of texts have everywhere: "empty" is one element holding "", so that element 0 can be read
// without a test. A list without any element stands for an array that was never dimensioned: reading it is an error.
#pragma once

#include "util/Errors.h"

#include <QStringList>

/// The empty list: one empty element.
[[nodiscard]] inline QStringList emptyList()
{
    return {QString()};
}

/// Element 0. Error 9 for a list that was never dimensioned.
[[nodiscard]] inline const QString &firstOf(const QStringList &list)
{
    if (list.isEmpty())
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange, QStringLiteral("Subscript out of range"));
    return list.constFirst();
}

/// `list`, or the empty list where nothing is in it.
[[nodiscard]] inline QStringList orEmptyList(QStringList list)
{
    if (list.isEmpty())
        list.append(QString());
    return list;
}

/// The highest index. Error 9 for a list that was never dimensioned.
[[nodiscard]] inline int upperBound(const QStringList &list)
{
    static_cast<void>(firstOf(list));
    return static_cast<int>(list.size()) - 1;
}
