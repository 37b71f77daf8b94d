// The place of what a search site may one day answer by itself; so far it has nothing. Knows nobody.
#pragma once

#include <QStringList>

class cSSites
{
  public:
    /// One empty element, whatever is asked for.
    [[nodiscard]] static QStringList GetUrls(const QString & /*site*/) { return {QString()}; }
};
