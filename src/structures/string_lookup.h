#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace SMBIOS::Structures {

/// String `number` of a structure's string set, counted from 1, without the white space around it. Empty for
/// number 0, for a number the set does not hold, and when there is no memory for the copy.
[[nodiscard]] std::string GetStringByIndex(std::uint8_t number, const std::vector<std::string>& strings);

}  // namespace SMBIOS::Structures
