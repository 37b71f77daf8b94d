// LIKE as the program knows it (see LikePattern), in place of SQLite's own, which ignores the case of A to Z alone.
// Inside store/ only.
#pragma once

struct sqlite3;

/// From now on the connection's LIKE ignores the case of all letters. Null against anything is Null, bytes fit nothing,
/// numbers are compared as texts.
void installLike(sqlite3 *handle);
