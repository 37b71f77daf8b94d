#include "store/StoreFault.h"
#include "store/sqlite/PlatformFiles.h"

#include <QFileInfo>
#include <array>

using namespace Qt::StringLiterals;

namespace {
struct FaultRow
{
    StoreFault fault;
    QLatin1StringView text;
    bool mayPass;
};

constexpr std::array faultRows{
    FaultRow{StoreFault::Locked, "Database is locked"_L1, true},
    FaultRow{StoreFault::Full, "Disk is full"_L1, true},
    FaultRow{StoreFault::ReadOnly, "Database is read-only"_L1, true},
    FaultRow{StoreFault::Unreadable, "Database cannot be read"_L1, false},
    FaultRow{StoreFault::Damaged, "Database is damaged"_L1, false},
    FaultRow{StoreFault::Gone, "Database has been moved or deleted"_L1, false},
    FaultRow{StoreFault::Failed, "Disk does not answer"_L1, true},
};

const FaultRow *rowOf(StoreFault fault)
{
    const auto *const found =
        std::find_if(faultRows.begin(), faultRows.end(), [fault](const FaultRow &row) { return row.fault == fault; });
    return found == faultRows.end() ? nullptr : found;
}
} // namespace

StoreFault StoreFaults::of(const std::exception &error)
{
    const auto *const known = dynamic_cast<const StoreError *>(&error);
    return known == nullptr ? StoreFault::None : known->fault();
}

QString StoreFaults::text(StoreFault fault)
{
    const FaultRow *const row = rowOf(fault);
    return row == nullptr ? QString() : QString(row->text);
}

bool StoreFaults::mayPass(StoreFault fault)
{
    const FaultRow *const row = rowOf(fault);
    return row != nullptr && row->mayPass;
}

StoreFault StoreFaults::ofFolder(const QString &folder)
{
    if (!QFileInfo(folder).isDir())
        return StoreFault::Gone;
    if (!PlatformFiles::mayWrite(folder))
        return StoreFault::ReadOnly;
    return PlatformFiles::isFull(folder) ? StoreFault::Full : StoreFault::None;
}
