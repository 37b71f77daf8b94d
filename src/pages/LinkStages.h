// The filter chain that tells result links from the rest of a page, one function a stage: links in, links out, in
// document order. No stage looks at the page. A list that has lost all its links is the empty list.
//
// Values are the filled slots of a record's field; a list whose element 0 is "" means that the field is empty, and the
// stage gives a copy.
#pragma once

#include <QStringList>

/// Takes a value of two parts apart at its marker. A value without the marker comes back whole, whichever part is asked
/// for; an empty first part gives "" for both; a part above 1 is "". Part 1 ends at a second marker.
[[nodiscard]] QString SeparateSD(int part, const QString &value);
/// The value of `text` and `number`; the text is cut so that all of it fits into a column.
[[nodiscard]] QString JoinSD(const QString &text, qint64 number);

namespace LinkStages {
/// The links between those that hold a begin text and those that hold an end text (ignoring case). Without begin texts
/// the link with the end text is left out; with them it is the last one taken.
[[nodiscard]] QStringList startStop(const QStringList &links, const QStringList &begin, const QStringList &end);
/// Percent escapes resolved.
[[nodiscard]] QStringList cnvHex(const QStringList &links);
/// Links whose length fits `rule`: comparison 0 to 4 (=, >, <, >=, <=), marker, length. Not a number counts as 0.
[[nodiscard]] QStringList minMax(const QStringList &links, const QString &rule);
enum class Keeping { Containing, NotContaining };
/// Links that hold one of the texts as often as its count says (0: at least once), or those that hold none so.
/// A count that is no number raises error 13; `result` then holds what was decided until there.
void countedTexts(const QStringList &links, const QStringList &values, Keeping keeping, QStringList &result);
/// Each link cut to what stands behind the begin texts and before the end texts, one after the other.
[[nodiscard]] QStringList beginEndUrl(const QStringList &links, const QStringList &begin, const QStringList &end);
} // namespace LinkStages
