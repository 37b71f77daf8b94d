// What can befall the file of a database, told apart by what its user can do about it. Knows no engine.
#pragma once

#include "util/Errors.h"

enum class StoreFault {
    None,
    /// Another program holds the file.
    Locked,
    /// No room on the disk, or no more of it for this user.
    Full,
    /// The file or its folder may not be written.
    ReadOnly,
    /// The file may not be read.
    Unreadable,
    /// No database, or one whose content is broken.
    Damaged,
    /// The file is not where it was opened: moved, deleted or replaced, or its folder was.
    Gone,
    /// The disk or the system refuses for a reason of its own.
    Failed
};

/// An error that a fault of the file is the cause of.
class StoreError : public RuntimeError
{
  public:
    StoreError(StoreFault fault, qint64 number, const QString &description)
        : RuntimeError(number, description), mFault(fault)
    {
    }
    [[nodiscard]] StoreFault fault() const { return mFault; }

  private:
    StoreFault mFault;
};

namespace StoreFaults {
/// The fault behind an error; None for every other error.
[[nodiscard]] StoreFault of(const std::exception &error);

/// The fault in words for the user, without a full stop: "Database is locked", "Disk is full". "" for None.
[[nodiscard]] QString text(StoreFault fault);

/// True for a fault that can end without anybody touching the file: what was refused may be tried again.
[[nodiscard]] bool mayPass(StoreFault fault);

/// Why no file can be made in a folder: Gone for one that is missing, ReadOnly, Full; None where nothing stands in the
/// way.
[[nodiscard]] StoreFault ofFolder(const QString &folder);
} // namespace StoreFaults
