// What the text of a page decides: whether it holds the wanted and unwanted texts, and which part of it is kept.
// Pure decisions over values; who reads the page and shows the outcome stands elsewhere. Knows nobody.
#pragma once

#include "util/search/KeptTextSet.h"

/// How a list of wanted texts is applied: every one, at least one, or every one of those given because they are
/// selected.
enum class Demand { All, Any, Select };

/// The outcome of a test of a page.
struct Screening
{
    bool mayGo = true;
    /// The index of the item that decided, -1 when no single one did.
    qsizetype decidedBy = -1;

    [[nodiscard]] bool operator==(const Screening &) const = default;
};

/// `IsMCGo`. `items` are the list's items in order, or for `Demand::Select` the selected ones (the caller leaves their
/// selection as it is). All and Select: the first item that is missing refuses the page. Any: the first item found lets
/// it go; none found refuses it and no item decided. Without items every page may go. An empty item stands in every
/// page but the empty one.
[[nodiscard]] Screening mustContain(QStringView page, const QStringList &items, Demand demand,
                                    Qt::CaseSensitivity sensitivity);
/// The same for page after page.
[[nodiscard]] Screening mustContain(QStringView page, const TextSet &items, Demand demand);

/// `IsMNCGo`: the first item found refuses the page, whatever the demand. `items` as for `mustContain`.
[[nodiscard]] Screening mustNotContain(QStringView page, const QStringList &items, Qt::CaseSensitivity sensitivity);
/// The same for page after page.
[[nodiscard]] Screening mustNotContain(QStringView page, const TextSet &items);

/// `NotQB`: True if `url` may be opened, as it is when the first of the texts is "" or none of them stands in it, case
/// ignored.
[[nodiscard]] bool NotQB(QStringView url, const QStringList &blocked);
/// The same with what was made of the texts the last time.
[[nodiscard]] bool NotQB(QStringView url, const QStringList &blocked, KeptTextSet &kept);

/// What a tag's box tells about the last page.
enum class TagReport { Unchanged, NotInUse, Found, Missing };

struct StringSegment
{
    QString text;
    TagReport start = TagReport::Unchanged;
    TagReport stop = TagReport::Unchanged;

    [[nodiscard]] bool operator==(const StringSegment &) const = default;
};

/// The part of `text` between the tags, case ignored, and what the boxes of the tags show.
/// Both empty: all of it. `stop` alone: what stands before it. Both, and `start` found: what stands between `start` and
/// the next `stop`, to the end if there is none; `start` missing: what stands before `stop`. A tag alone that is
/// missing: all. `start` alone, found anywhere: `text` without as many characters at its left as `start` has, less one;
/// the place of the hit plays no part, and callers rely on that.
[[nodiscard]] StringSegment GetStringSegment(const QString &text, QStringView start, QStringView stop);
