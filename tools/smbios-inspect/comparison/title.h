#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "smbios-inspect/comparison/comparison.h"

// How a structure is called. Texts of the firmware are as they are, not yet safe for a terminal.
namespace SMBIOS::Inspect::Comparing {

/// "CPU0 DIMM A1, NODE 0"; empty for a structure without a name. Parts longer than `limit` end there.
[[nodiscard]] std::string NameText(const ComparedTable& table,
                                   Index index,
                                   std::size_t limit = std::string_view::npos);

/// "Memory Device DIMM A2".
[[nodiscard]] std::string Title(std::uint8_t type, std::string_view name);

/// The name of a structure that is in one table only, with its handle where the name alone does not tell
/// which it is.
[[nodiscard]] std::string TitleOf(const Side& side, Index index);

/// The same of a structure and its partner. They have a name when it is that of both.
[[nodiscard]] std::string TitleOfPair(const Comparison& comparison, Index before, Index after);
[[nodiscard]] std::string NameOfPair(const Comparison& comparison, Index before, Index after);

}  // namespace SMBIOS::Inspect::Comparing
