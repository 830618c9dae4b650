#pragma once

#include <cstdint>
#include <span>

namespace SMBIOS::Inspect {

/// Whether a raw table, its header included, may have lost its end: the walk meets no end-of-table structure,
/// because the table stops before one or in the middle of a structure.
[[nodiscard]] bool MayBeCutShort(std::span<const std::uint8_t> rawTable);

inline constexpr const char* kCutShortText = "the table may be cut short: it has no end-of-table structure";

}  // namespace SMBIOS::Inspect
