#include "window/StartMode.h"

#include <QFileInfo>

StartMode startMode(const QStringList &words)
{
    const QString commandLine = words.join(u' ').remove(u'"');
    if (!commandLine.isEmpty() && QFileInfo(commandLine).isFile())
        return {StartMode::Kind::PictureBrowser, commandLine};
    return {};
}
