// What the command line of the window program asks for.
#pragma once

#include <QString>
#include <QStringList>

struct StartMode
{
    enum class Kind { Harvester, PictureBrowser } kind = Kind::Harvester;
    QString picture; ///< the file whose folder the picture browser shows
};

/// An existing file opens the picture browser; anything else, a missing file too, the harvester. Quotes around a path
/// are dropped.
[[nodiscard]] StartMode startMode(const QStringList &words);
