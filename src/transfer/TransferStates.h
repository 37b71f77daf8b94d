// The states of a transfer by the numbers under which they are told, and their texts. Knows nobody.
#pragma once

#include <QString>

enum class InetState {
    Connecting = 3,
    Connected = 4,
    Requesting = 5,
    ReceivingResponse = 7,
    Disconnecting = 9,
    Disconnected = 10,
    Error = 11,
    ResponseCompleted = 12
};

/// What the status line says of state number `state`; "" for a number that has no text.
[[nodiscard]] QString inetStateText(int state);
