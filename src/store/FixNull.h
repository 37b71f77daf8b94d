// The one way in which a field is read as text.
#pragma once

#include "store/Recordset.h"
#include "util/Errors.h"

/// The field's value as text. A Null gives "0" in a number (3, 4, 5, 131) and "" in a text (130, 200 to 203).
/// A Null of any other kind, a date or bytes, is error 94. Errors of reading the field pass on.
[[nodiscard]] QString FixNull(const Field &field);

/// The same for callers that read on: an error goes to `log` under "frmSearch" and gives "".
[[nodiscard]] QString FixNull(const Field &field, ErrorReceiver &log);
