#include "store/StoreFault.h"
#include "store/sqlite/PlatformFiles.h"

#include <QFileInfo>
#include <array>

namespace {
struct FaultRow
{
    StoreFault fault;
    QLatin1StringView text;
    bool mayPass;
};

constexpr std::array faultRows{
    FaultRow{StoreFault::Locked, QLatin1StringView("Database is locked"), true},
    FaultRow{StoreFault::Full, QLatin1StringView("Disk is full"), true},
    FaultRow{StoreFault::ReadOnly, QLatin1StringView("Database is read-only"), true},
    FaultRow{StoreFault::Unreadable, QLatin1StringView("Database cannot be read"), false},
    FaultRow{StoreFault::Damaged, QLatin1StringView("Database is damaged"), false},
    FaultRow{StoreFault::Gone, QLatin1StringView("Database has been moved or deleted"), false},
    FaultRow{StoreFault::Failed, QLatin1StringView("Disk does not answer"), true},
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
