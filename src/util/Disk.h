// What the programs need of the disk itself. Knows nobody.
#pragma once

class QFileDevice;

namespace cUtility {
/// Has everything that was written into an open file put on the disk before it returns. False when that failed.
[[nodiscard]] bool flushToDisk(QFileDevice &file);
} // namespace cUtility
