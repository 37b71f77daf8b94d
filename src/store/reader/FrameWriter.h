// Writes frames to standard output.
#pragma once

#include "store/reader/Frames.h"

#include <string_view>

/// Comes before all else: from now on nothing but frames goes to standard output.
void beginFrames();

/// Writes one frame. Ends the process where nobody reads any more. A length above Frames::maxLength is an exception of
/// type std::length_error.
void writeFrame(Frames::Kind kind, std::string_view bytes = {});

/// Writes what is held back.
void flushFrames();
