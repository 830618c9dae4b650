#pragma once

#include <cstdio>
#include <cstdlib>

namespace SMBIOS::Fuzz {

/// Ends the program when `holds` is false, so that the fuzzer keeps the input, and says what it broke.
inline void Require(bool holds, const char* promise) {
    if (!holds) {
        std::fprintf(stderr, "broken: %s\n", promise);
        std::abort();
    }
}

}  // namespace SMBIOS::Fuzz
