// Waits of tests in which the event loop runs: the servers and the browsers of these tests live in it.
#pragma once

#include <functional>

/// Runs the event loop until `done` or the limit; gives `done()`.
bool waitFor(const std::function<bool()> &done, int milliseconds = 10000);
/// Runs the event loop for a while in which nothing is expected to happen.
void idle(int milliseconds);
