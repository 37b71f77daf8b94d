#include "store/reader/Limits.h"

#ifdef __unix__
#include <sys/resource.h>
#include <unistd.h>

#ifdef __SANITIZE_ADDRESS__
#define HAS_SHADOW_MEMORY
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define HAS_SHADOW_MEMORY
#endif
#endif

namespace {
void bound(__rlimit_resource resource, rlim_t most)
{
    const rlimit limit{most, most};
    setrlimit(resource, &limit);
}
} // namespace

void limitThisProcess()
{
    constexpr rlim_t processorSeconds = 300;
    bound(RLIMIT_CPU, processorSeconds);
    bound(RLIMIT_CORE, 0);
    bound(RLIMIT_FSIZE, 0);
#ifndef HAS_SHADOW_MEMORY
    constexpr rlim_t memory = 1024UL * 1024UL * 1024UL;
    bound(RLIMIT_AS, memory);
#endif
}

std::FILE *takeStandardOutput()
{
    std::FILE *const output = fdopen(dup(STDOUT_FILENO), "wb");
    return output != nullptr && dup2(STDERR_FILENO, STDOUT_FILENO) >= 0 ? output : stdout;
}
#else
void limitThisProcess() {}

std::FILE *takeStandardOutput()
{
    return stdout;
}
#endif
