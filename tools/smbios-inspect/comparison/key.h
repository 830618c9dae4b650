#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

// Keys by which structures find each other: what has different keys is different. They are the same on every
// system.
namespace SMBIOS::Inspect::Comparing {

using Key = std::uint64_t;

/// A key of two things, in this order.
[[nodiscard]] constexpr Key Mixed(Key key, std::uint64_t value) noexcept {
    key = (std::rotl(key, 23) + value) * 0x9E3779B97F4A7C15U;
    return key ^ key >> 29;
}

[[nodiscard]] constexpr Key Mixed(Key key, std::span<const std::uint8_t> bytes) noexcept {
    for (const std::uint8_t byte : bytes) {
        key = Mixed(key, byte);
    }
    return Mixed(key, std::uint64_t{bytes.size()});
}

[[nodiscard]] constexpr Key Mixed(Key key, std::string_view text) noexcept {
    for (const char character : text) {
        key = Mixed(key, static_cast<std::uint8_t>(character));
    }
    return Mixed(key, std::uint64_t{text.size()});
}

}  // namespace SMBIOS::Inspect::Comparing
