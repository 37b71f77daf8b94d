#include "support/Places.h"

QString inSourceTree(const QString &name)
{
    return QStringLiteral(TRAWLEX_SOURCE_DIR "/") + name;
}
