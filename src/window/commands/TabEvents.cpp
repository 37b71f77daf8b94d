#include "window/commands/TabEvents.h"

#include "window/commands/TabsInForce.h"

using namespace Qt::StringLiterals;

namespace {
/// The outermost tabs tell one step into the Settings, the inner ones all the way.
constexpr int outerSteps = 2;
} // namespace

TabEvents::TabEvents(const Context &context, const WindowFrame &frame) : mContext(context)
{
    connect(&frame.sstSearch, &TabControl::Click, this,
            [this, &frame] { tell(TabsInForce::path(frame).mid(0, outerSteps)); });
    for (const TabControl *tabs : {&frame.sstSettings, &frame.sstFiles, &frame.sstMiscOptions})
        connect(tabs, &TabControl::Click, this, [this, &frame] { tell(TabsInForce::settingsPath(frame)); });
}

void TabEvents::tell(const QStringList &path)
{
    // What is set back for the new tab reports too; the last word is where the user is.
    mContext.states.SetStateOfControls();
    mContext.status.UpDateStatus(path.join(" - "_L1));
}
