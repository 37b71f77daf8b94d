// The user's own filter of a page's links. Works on text alone.
#pragma once

#include <QStringList>

/// Which links are wanted: by a text that must stand in them, or must not.
struct LinkFilter
{
    enum Mode { All = 0, Containing = 1, NotContaining = 2 };
    int mode = All;      ///< any other number wants no link
    QString text;        ///< "" wants every link, whatever the mode; case does not count
    bool cnvHex = false; ///< percent escapes are resolved first

    /// The wanted links in order; the empty list when there is none.
    [[nodiscard]] QStringList wanted(const QStringList &links) const;
};
