#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace SMBIOS::Structures {

/// The text without the white space around it.
[[nodiscard]] std::string_view Trimmed(std::string_view text) noexcept;

/// String `number` of a structure's string set, counted from 1, without the white space around it. Empty for
/// number 0 and for a number the set does not hold. A view: valid only while the strings are.
[[nodiscard]] std::string_view FindString(std::uint8_t number,
                                          const std::vector<std::string>& strings) noexcept;

/// A copy of the same; empty, too, when there is no memory for it.
[[nodiscard]] std::string GetStringByIndex(std::uint8_t number, const std::vector<std::string>& strings);

}  // namespace SMBIOS::Structures
