// Where the tests find files of the source tree.
#pragma once

#include <QString>

/// The path of `name` below the root of the source tree.
[[nodiscard]] QString inSourceTree(const QString &name);
