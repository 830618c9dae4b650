#pragma once

#include <cstdint>
#include <span>

#include "smbios-inspect/picture/machine.h"

namespace SMBIOS::Inspect::Picture {

/// What is drawn of the machine that a raw table describes: in one walk, in time linear in the table, and of
/// any bytes whatever. `rawTable` begins with the 8-byte header.
[[nodiscard]] Machine ReadMachine(std::span<const std::uint8_t> rawTable);

}  // namespace SMBIOS::Inspect::Picture
