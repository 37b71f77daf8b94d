// The parts of tests that need a second process: one that writes pages until it is killed, one that holds a lock.
#pragma once

#include <QProcess>
#include <QStringList>
#include <memory>
#include <optional>

/// Plays a part where the arguments name one, and gives the exit status.
[[nodiscard]] std::optional<int> runAsOtherProcess(const QStringList &arguments);

/// Starts this program again in a part: "write-pages" FILE (prints the number of each page once it is committed),
/// "hold-lock" FILE (prints "held", and keeps a write lock), "hold-file" FILE (the same, and keeps readers out too).
/// Both keep the lock until their input is closed. "hold-two-seconds" FILE is the first for so long.
[[nodiscard]] std::unique_ptr<QProcess> startOtherProcess(const QString &part, const QString &file);
