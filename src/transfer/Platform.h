// What transfers need of the operating system itself.
#pragma once

#include <QtGlobal>

namespace Platform {
/// Closes a network socket; 0 when that went well.
int closeSocket(qintptr socket);
} // namespace Platform
