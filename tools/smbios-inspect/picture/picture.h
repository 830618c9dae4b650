#pragma once

#include <cstdint>
#include <iosfwd>
#include <span>

namespace SMBIOS::Inspect::Picture {

/// Draws the machine that a raw table describes, as SVG. `rawTable` begins with the 8-byte header and may be
/// any bytes; the same bytes give the same text on every system.
void DrawMachine(std::span<const std::uint8_t> rawTable, std::ostream& output);

}  // namespace SMBIOS::Inspect::Picture
