#pragma once

#include <cstdint>

#include "smbios-inspect/standard/value.h"

// What a processor's ID says; that depends on its family.
namespace SMBIOS::Inspect::Standard {

/// "Type 0, Family 6, Model 61, Stepping 4"; nothing for a family whose IDs are not known.
[[nodiscard]] Value SignatureOf(std::uint64_t family, std::uint64_t id);

/// Whether the upper half of the ID holds the feature flags of an x86 processor.
[[nodiscard]] bool HasFeatureFlags(std::uint64_t family) noexcept;

}  // namespace SMBIOS::Inspect::Standard
