// The engine's errors in the form that the rules know. Inside store/ only.
#pragma once

#include "store/AdoErrors.h"

#include <SQLiteCpp/Exception.h>

/// The number under which the rules know an error of the engine, with the engine's own text.
[[nodiscard]] RuntimeError engineError(const SQLite::Exception &error);

/// Runs one step of the engine; its error comes out as RuntimeError.
template <class Step> auto engineStep(Step &&step)
{
    try {
        return step();
    } catch (const SQLite::Exception &error) {
        throw engineError(error);
    }
}
