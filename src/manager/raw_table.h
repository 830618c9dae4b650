#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace SMBIOS::Manager {

/// Reads the firmware table in use in its raw form, the 8-byte header included. Throws when the platform
/// gives none or a corrupted one.
[[nodiscard]] std::vector<std::uint8_t> ReadRawTable();

/// Throws when nothing follows the header of a raw table.
void CheckRawTable(std::span<const std::uint8_t> rawTable);

}  // namespace SMBIOS::Manager
