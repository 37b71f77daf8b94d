// Recordsets as files. The compact form is a database file with one table, marked by a number of its own in its head;
// it is opened in place, however large. The other form is XML. Inside store/ only.
#pragma once

#include "store/rows/RecordsetState.h"

#include <QString>
#include <functional>

namespace SavedRecordset {
/// Asked before each row, by its number from 0.
using GoOn = std::function<bool(qint64)>;

/// Write all rows of the set. The file is replaced once it is complete. False when they may not go on: then it is as it
/// was. Error 75 for a place that cannot be written.
[[nodiscard]] bool saveBinary(const std::shared_ptr<KeySet> &rows, const QString &filePath, const GoOn &goOn);
[[nodiscard]] bool saveXml(const std::shared_ptr<KeySet> &rows, const QString &filePath, const GoOn &goOn);

/// The rows of a file in either form. Errors: 53 for a missing file, AdoError::Engine for one in neither form.
[[nodiscard]] std::shared_ptr<KeySet> open(const QString &filePath);
} // namespace SavedRecordset
