// Pixels as other programs count them. The desktop's scale holds for all programs alike; what the user has set for Qt
// programs alone (QT_SCALE_FACTOR) makes their pixels larger than those of the browser that stands beside them.
#pragma once

#include <QRect>

namespace ScreenScale {
/// How many pixels of other programs one of ours is; 1 where nothing is set.
[[nodiscard]] double ofOurs();
[[nodiscard]] QRect toOthers(const QRect &ours);
[[nodiscard]] QRect toOurs(const QRect &others);
} // namespace ScreenScale
