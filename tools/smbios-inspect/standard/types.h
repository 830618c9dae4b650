#pragma once

#include <cstdint>
#include <span>

#include "smbios-inspect/standard/description.h"

namespace SMBIOS::Inspect::Standard {

/// All types whose fields the standard defines, in ascending order.
[[nodiscard]] std::span<const TypeDescription* const> AllTypes() noexcept;

/// Null when the standard does not define the fields of the type.
[[nodiscard]] const TypeDescription* DescriptionOf(std::uint8_t type) noexcept;

}  // namespace SMBIOS::Inspect::Standard
