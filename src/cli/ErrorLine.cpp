#include "cli/ErrorLine.h"

#include "util/Text.h"

#include <cstdio>

void printError(const QString &line)
{
    std::fprintf(stderr, "%s\n", cUtility::shown(line).toLocal8Bit().constData());
    std::fflush(stderr);
}
