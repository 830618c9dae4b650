#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <span>
#include <string_view>

namespace SMBIOS::Fuzz {

/// Makes the sum of `bytes` zero by the one at `offset`; nothing when that is not among them.
inline void MendSum(std::span<std::uint8_t> bytes, std::size_t offset) {
    if (offset < bytes.size()) {
        const unsigned sum = std::accumulate(bytes.begin(), bytes.end(), 0U);
        bytes[offset] = static_cast<std::uint8_t>(bytes[offset] - sum);
    }
}

/// Mends the sums of the entry point that `bytes` start with, if they do.
inline void MendSums(std::span<std::uint8_t> bytes) {
    constexpr std::size_t kIntermediate = 0x10;
    constexpr std::size_t kEnd32 = 0x1F;
    const auto startsWith = [&](std::string_view anchor) {
        return bytes.size() >= kEnd32 && std::equal(anchor.begin(), anchor.end(), bytes.begin());
    };
    const auto stated = [&](std::size_t size) { return bytes.first(std::min(bytes.size(), size)); };
    if (startsWith("_SM3_")) {
        MendSum(stated(bytes[0x06]), 0x05);
    } else if (startsWith("_SM_")) {
        MendSum(bytes.subspan(kIntermediate, kEnd32 - kIntermediate), 0x15 - kIntermediate);
        MendSum(stated(bytes[0x05] == 0x1E ? kEnd32 : bytes[0x05]), 0x04);
    }
}

}  // namespace SMBIOS::Fuzz
