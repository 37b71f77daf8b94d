// What the reader process writes to its standard output: frames of a kind, a length and that many bytes. The program
// reads them on the other end. Knows neither Qt nor the library that reads the files.
#pragma once

#include <cstdint>

namespace Frames {
/// The first byte of a frame; the length follows as four bytes, the lowest first.
enum Kind : char {
    /// A table: 's' for one of the engine's own or 'u' for a user's, then the name in UTF-8.
    Table = 'T',
    /// A column of the table before it: its kind as decimal digits, a blank, its name in UTF-8.
    Column = 'C',
    /// A row begins; one frame of the following kinds follows for each column.
    Row = 'R',
    Null = 'N',
    /// A text in UTF-8; also dates in ISO 8601 and exact decimals.
    Text = 'V',
    /// A whole number, or 0 and 1 for No and Yes, as decimal digits.
    Integer = 'I',
    /// A number as decimal text.
    Number = 'D',
    Bytes = 'B',
    /// The last frame of a complete answer.
    End = 'E',
    /// The last frame of one that failed: a message in UTF-8.
    Failure = 'X'
};

/// No value is longer; a reader that would send one fails.
constexpr std::uint32_t maxLength = 64U * 1024U * 1024U;
} // namespace Frames
