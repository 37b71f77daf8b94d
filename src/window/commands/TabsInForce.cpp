#include "window/commands/TabsInForce.h"

namespace {
QString caption(const TabControl &tabs)
{
    return tabs.captions().value(tabs.tab());
}
} // namespace

QStringList TabsInForce::path(const WindowFrame &frame)
{
    return frame.sstSearch.tab() == Tab::Settings ? settingsPath(frame) : QStringList{caption(frame.sstSearch)};
}

QStringList TabsInForce::settingsPath(const WindowFrame &frame)
{
    QStringList path{frame.sstSearch.captions().value(Tab::Settings), caption(frame.sstSettings)};
    if (frame.sstSettings.tab() == Tab::Files)
        path.append(caption(frame.sstFiles));
    else if (frame.sstSettings.tab() == Tab::Misc)
        path.append(caption(frame.sstMiscOptions));
    return path;
}
