#include "util/Memory.h"

#include <malloc.h>

void keepFreedMemory()
{
    constexpr int largestKept = 16 * 1024 * 1024;
    mallopt(M_MMAP_THRESHOLD, largestKept);
    mallopt(M_TRIM_THRESHOLD, largestKept);
}
