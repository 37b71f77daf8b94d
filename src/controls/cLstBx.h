// What is done with the items of a list box, whichever list it is. Each operation is one pass over the items and one
// changed() of the list, so that a list of a million items is worked on in one go. Ignoring case is unit by unit.
//
// The clipboard is not known here: what goes to it or comes from it is a text that the caller carries.
#pragma once

#include "controls/ListControls.h"

#include <QStringList>

namespace cLstBx {
enum class Which { All, Selected };

/// The items in order, or the selected ones; items of blanks only are skipped. The empty list if nothing is left.
[[nodiscard]] QStringList GetItems(const ListBox &list, Which which);
/// Selects every item; deselects every item; takes the selected items out.
void SelectAllLst(ListBox &list);
void UnSelect(ListBox &list);
void ClearSelected(ListBox &list);

/// Adds the pieces of `text` between the delimiters, without the empty ones, or the whole of a text that holds no
/// delimiter; each is cut to what a column holds. Nothing with "".
void PasteToListBox(ListBox &list, const QString &text, const QString &delimiter);
/// The selected items, each followed by the delimiter; of a single selected one the item at the index instead, without
/// delimiter; with none selected all items that are not "".
[[nodiscard]] QString CopySelected(const ListBox &list, const QString &delimiter);
/// The lines of CopySelected(); the selected items go.
[[nodiscard]] QString CutLst(ListBox &list);

/// Deselects all and selects, from `start` on, the first item equal to `text`, else the first that holds the longest
/// beginning of it, of two characters or more; the list's index goes along. Its index, and 0 where nothing was found:
/// a hit on the first item reads like none, and callers take it as none.
int FindText(ListBox &list, const QString &text, int start);
/// True if an item equals `item`, ignoring case.
[[nodiscard]] bool DoesItemExist(const ListBox &list, const QString &item);

/// Adds `values` in order. Cleared first, or without the values that already stand in the list (ignoring case);
/// `noBlanks` leaves out values of blanks only.
void PopulateListBox(ListBox &list, const QStringList &values, bool noBlanks, bool clearPrevious);
/// Cuts each item at `text` (ignoring case), which goes with the cut side; items without it stay. Items that are, or
/// become, blank vanish, and nothing stays selected.
enum class Cut { LeftSide, RightSide };
[[nodiscard]] QString truncated(const QString &item, const QString &text, Cut cut);
void TruncateList(ListBox &list, const QString &text, Cut cut);
/// Takes out the items that hold `text` (ignoring case), or those that do not. Nothing with "".
enum class Remove { Containing, NotContaining };
[[nodiscard]] bool isToGo(const QString &item, const QString &text, Remove which);
void ClearItemsCorNC(ListBox &list, const QString &text, Remove which);
} // namespace cLstBx
