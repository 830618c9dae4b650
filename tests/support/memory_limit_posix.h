#pragma once

#include <sys/resource.h>
#include <unistd.h>

#include <cstddef>
#include <fstream>

namespace SMBIOS::Tests {

inline constexpr std::size_t kMebibyte = 1'048'576;

/// Whether a sanitizer ends the process when memory runs out.
inline constexpr bool kMemoryIsWatched =
#if defined(__SANITIZE_ADDRESS__)
    true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
    true;
#else
    false;
#endif
#else
    false;
#endif

/// Leaves the process 32 MiB of memory beyond what it has, for good.
inline void LimitMemory() {
    std::size_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    const rlim_t size = pages * static_cast<rlim_t>(::sysconf(_SC_PAGESIZE)) + 32 * kMebibyte;
    const rlimit limit{size, size};
    ::setrlimit(RLIMIT_AS, &limit);
}

}  // namespace SMBIOS::Tests
