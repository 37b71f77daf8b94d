#include "util/Memory.h"

#include <cstdlib>
#ifdef __GLIBC__
#include <malloc.h>
#endif

void keepFreedMemory()
{
#ifdef __GLIBC__
    constexpr int largestKept = 16 * 1024 * 1024;
    mallopt(M_MMAP_THRESHOLD, largestKept);
    mallopt(M_TRIM_THRESHOLD, largestKept);
#endif
}
