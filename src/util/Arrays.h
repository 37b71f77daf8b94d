// Lists of texts. A list that has nothing to hold is one empty element (util/AddressList.h), and so is the answer for a
// list without elements. All functions are total. Knows nobody.
#pragma once

#include "util/search/KeptTextSet.h"

namespace cUtility {
/// The non-empty items that hold none of the filters, case ignored, in order; `items` as they are when the first filter
/// is "", the empty list when the first item is "" or nothing is left. An empty filter behind the first hits
/// everything.
[[nodiscard]] QStringList FilterArray(const QStringList &items, const QStringList &filters);
/// The same with what was made of the filters the last time.
[[nodiscard]] QStringList FilterArray(const QStringList &items, const QStringList &filters, KeptTextSet &kept);

/// The first of each group of exactly equal items, in order; "" is an item like any other.
[[nodiscard]] QStringList RemoveRepeatsFromArray(const QStringList &items);

/// The items that are not "".
[[nodiscard]] QStringList RemoveEmptyItemsFromArray(const QStringList &items);

/// The rows in which at least one item is not "". No rows at all when there is none.
[[nodiscard]] QList<QStringList> RemoveEmptyItemsFrom2DArray(const QList<QStringList> &rows);
} // namespace cUtility
