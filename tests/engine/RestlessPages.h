// Pages that never come to rest, and what both browsers owe to whoever meets one.
#pragma once

#include "TestServer.h"
#include "browser/BrowserEngine.h"

#include <array>

/// Leaves pages of the first host that go on by themselves without end, each in its own way, for an ordinary one of
/// either host, sooner or later, on fast lines and slow ones: that arrives, and stays.
void expectToLeaveRestlessPages(BrowserEngine &browser, TestServer &server, const std::array<QString, 2> &hosts);

/// Opens a page of `host` whose frames reload for ever, with a slow handler of what they tell: whatever else waits for
/// its turn of the event loop gets it.
void expectTurnsBesideRestlessFrames(BrowserEngine &browser, TestServer &server, const QString &host);
