// What is done with the items of a list box, whichever list it is.
#pragma once

#include "controls/ListControls.h"

#include <QStringList>

namespace cLstBx {
enum class Which { All, Selected };

/// The items in order, or the selected ones; items of blanks only are skipped. The empty list if nothing is left.
[[nodiscard]] QStringList GetItems(const ListBox &list, Which which);
/// Deselects every item.
void UnSelect(ListBox &list);
/// True if an item equals `item`, ignoring case.
[[nodiscard]] bool DoesItemExist(const ListBox &list, const QString &item);
/// Adds `values` in order. Cleared first, or without the values that already stand in the list (ignoring case);
/// `noBlanks` leaves out values of blanks only.
void PopulateListBox(ListBox &list, const QStringList &values, bool noBlanks, bool clearPrevious);
} // namespace cLstBx
