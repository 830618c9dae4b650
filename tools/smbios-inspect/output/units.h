#pragma once

#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

// How values are written for people; an absent value is an empty text.
namespace SMBIOS::Inspect {

/// "16 GiB": in the largest unit that takes no fraction.
[[nodiscard]] std::string ByteSizeText(std::uint64_t bytes);

/// The bytes in lower-case hexadecimal, two digits a byte.
[[nodiscard]] std::string HexadecimalText(std::span<const std::uint8_t> bytes,
                                          std::string_view separator = {});

/// The number with its unit behind it.
template <class Number>
requires(std::is_unsigned_v<Number>) [[nodiscard]] std::string
    NumberText(Number number, const char* unit = "") {
    return number == std::numeric_limits<Number>::max() ? std::string() : std::to_string(number) + unit;
}

[[nodiscard]] inline std::string TextOrNothing(const char* text) {
    return text == nullptr ? std::string() : std::string(text);
}

}  // namespace SMBIOS::Inspect
