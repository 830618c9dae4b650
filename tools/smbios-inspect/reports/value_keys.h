#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "smbios-inspect/reports/machine_facts.h"

namespace SMBIOS::Inspect {

/// A value that `get` prints, and where it comes from: a field of the first structure of a type, or the
/// facts.
struct ValueKey {
    std::string_view name;
    std::string_view meaning;  ///< with the unit
    std::uint8_t type = 0;
    std::string_view field = {};
    std::string (*compute)(const MachineFacts& machine) = nullptr;  ///< null for a field
};

/// All of them, in the order in which `get` lists them.
[[nodiscard]] std::span<const ValueKey> ValueKeys() noexcept;

/// Null when there is no key of that name.
[[nodiscard]] const ValueKey* FindValueKey(std::string_view name) noexcept;

}  // namespace SMBIOS::Inspect
