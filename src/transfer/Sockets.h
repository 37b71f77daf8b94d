// Network sockets, as the operating system itself has them.
#pragma once

#include <QtGlobal>

namespace Sockets {
/// Closes a network socket; 0 when that went well.
int close(qintptr socket);
} // namespace Sockets
