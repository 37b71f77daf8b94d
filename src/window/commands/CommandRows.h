// The commands of a handler as a table: which item of a menu runs what, and under which name its errors go to the log.
#pragma once

#include "app/LongWork.h"
#include "controls/Menu.h"
#include "util/Errors.h"

template <class Handler> struct CommandRow
{
    QLatin1StringView item;
    QLatin1StringView location;
    void (Handler::*run)();
};

/// Connects the rows' items. None runs while a long command is under way: what it works on is its own until then.
template <class Handler, std::size_t count>
void connectCommands(Handler &handler, const CommandRow<Handler> (&rows)[count], const Menu &menu, ErrorReceiver &log,
                     const LongWork &work)
{
    for (const CommandRow<Handler> &row : rows) {
        QObject::connect(&menu.item(row.item), &MenuItem::Click, &handler, [&handler, &log, &work, row] {
            if (!work.isUnderWay())
                guarded(log, {QLatin1StringView("frmSearch"), row.location}, [&] { (handler.*row.run)(); });
        });
    }
}
