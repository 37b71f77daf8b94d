// North American telephone numbers in the text of a page, by their area codes, and the table of those. Text alone.
#pragma once

#include <QStringList>

namespace cAreaCode {
/// The highest row index (51), not the number of rows.
[[nodiscard]] qint64 AreaCode_Count();

/// The state of row `index`; for an index outside the table the area codes of `state` (trimmed, case ignored), joined
/// by
/// ",", of the first row with that name; "" for an empty or unknown state.
[[nodiscard]] QString AreaCode_ListItem(QStringView state, qint64 index);

/// The numbers of `text` as ten digits, in order of area code and then of place, repeats included; one empty element
/// when there is none. `areaCodes` is one text or several divided by "," (taken as they stand, blanks and empty ones
/// too; an empty one stands everywhere); "" means all codes of the table. Reads `text` once, whatever the number of
/// codes. Only a text with a "-" in it has numbers. A number needs 15 characters behind its first; with `faxOnly` 27,
/// and "fax", case ignored, in the 20 characters before it (for the first 27 places in the 27 characters from it).
[[nodiscard]] QStringList FindPhoneNumbers(QStringView text, QStringView areaCodes, bool faxOnly);

/// What the box of selected area codes holds when it is left: a list typed with one separator throughout gets ","
/// instead, and loses one "," at either end. A text without a digit stays as it is, all others are trimmed.
[[nodiscard]] QString normalizedAreaCodes(const QString &typed);
} // namespace cAreaCode
