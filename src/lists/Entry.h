// What a user types, pastes or drops, in the form in which it becomes an item of a list: one line, as long as a column
// holds, so that an item and its row are equal.
#pragma once

#include "util/ColumnText.h"
#include "util/Text.h"

#include <QStringList>

namespace Entry {
[[nodiscard]] inline QString asItem(const QString &text)
{
    return cUtility::asColumnText(cUtility::MultipleLinesToSingle(text));
}

/// The text has no line end, so that it is dropped as it is.
[[nodiscard]] inline bool isSingle(const QString &text)
{
    return !text.contains(u'\n') && !text.contains(u'\r');
}

/// The lines of a dropped text that are not "", as items. A line ends with CR LF, CR or LF.
[[nodiscard]] inline QStringList lines(QString text)
{
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    QStringList items;
    for (const QString &line : text.split(u'\n', Qt::SkipEmptyParts))
        items.append(cUtility::asColumnText(line));
    return items;
}
} // namespace Entry
