// All that a whole program meets at its edges, made up: for tests of the wiring and for benchmarks.
#pragma once

#include "support/FakeBrowser.h"
#include "support/Fakes.h"
#include "window/Program.h"

#include <QTemporaryDir>

struct Outside
{
    /// With another store or another pump than the made-up ones, if wanted.
    [[nodiscard]] Program::Ports ports(SettingsStore &store, EventPump &events)
    {
        return {{events, dialogs, desktop, clipboard, store}, {place, menus, side, pictures}, browsers, folder.path()};
    }
    [[nodiscard]] Program::Ports ports() { return ports(settings, pump); }

    QTemporaryDir folder;
    FakePump pump;
    FakeDialogs dialogs;
    FakeDesktop desktop;
    FakeClipboard clipboard;
    MemorySettings settings;
    FakePlace place;
    FakeMenus menus;
    FakeSideWindows side;
    FakePictures pictures;
    FakeFactory browsers{pump};
};
