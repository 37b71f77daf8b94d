#include "util/Disk.h"

#include <QFileDevice>

#ifdef Q_OS_WIN
#include <io.h>
bool cUtility::flushToDisk(QFileDevice &file)
{
    return file.flush() && _commit(file.handle()) == 0;
}
#else
#include <unistd.h>
bool cUtility::flushToDisk(QFileDevice &file)
{
    return file.flush() && fsync(file.handle()) == 0;
}
#endif
