// How the program's memory is handled.
#pragma once

/// Keeps freed blocks of up to 16 MB for the next use instead of giving each back to the system. Every page makes and
/// drops texts of some hundred kilobytes, and fetching the memory anew takes a good part of the time in which they are
/// stored (docs/performance.md). To be called once, at the start of a program. Does nothing where the allocator has no
/// such setting.
void keepFreedMemory();
