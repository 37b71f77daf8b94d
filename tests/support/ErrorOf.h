// Which error something raises.
#pragma once

#include "util/Errors.h"

/// The number of the error that `body` raises; 0 if it raises none.
template <class Body> qint64 errorOf(Body &&body)
{
    try {
        body();
    } catch (const RuntimeError &error) {
        return error.number();
    }
    return 0;
}
