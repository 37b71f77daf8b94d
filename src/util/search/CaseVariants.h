// The way back from a lower-case unit: all units that a search without case takes for it. Knows nobody.
#pragma once

#include <QVarLengthArray>

namespace cUtility {
/// Mostly one or two; a few units have three, none has more.
using CaseVariants = QVarLengthArray<char16_t, 4>;

/// All units whose lower-case unit is that of `unit`, itself included.
[[nodiscard]] CaseVariants caseVariants(char16_t unit);
} // namespace cUtility
