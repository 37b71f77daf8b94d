// Lists of addresses in text files, one a line. Knows util.
#pragma once

#include <QStringList>

namespace ListFile {
/// Longer files are no lists of a person's; reading one would take the memory of the whole machine.
inline constexpr qint64 longest = qint64(256) * 1024 * 1024;

struct Content
{
    QStringList lines;
    QString fault; ///< why there are none; "" where the file was read
};
/// The lines that are not empty, each cut to what a column holds. They end in CR LF or LF; the last one needs no end.
/// With or without byte order mark; what is no UTF-8 is Windows-1252.
[[nodiscard]] Content read(const QString &path);

/// A name that no file of `directory` (which ends in the separator) has: `base`, without its dots and what no name can
/// hold, and a number.
[[nodiscard]] QString proposal(const QString &directory, const QString &base);

/// Puts the items behind what the file holds, one a line. What stood in the way, and then nothing is added; "" where
/// all was written.
[[nodiscard]] QString append(const QString &path, const QStringList &items);
} // namespace ListFile
