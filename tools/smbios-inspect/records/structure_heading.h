#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "smbios-inspect/output/text_page.h"

namespace SMBIOS::Inspect {

/// Name of a structure type; empty when it has none.
[[nodiscard]] std::string_view StructureName(std::uint8_t type);

/// "Type 17: Memory Device, handle 0x0050, 92 bytes". The handle is the one of the bytes: the record of a
/// structure that was not accepted has none.
[[nodiscard]] std::string StructureHeading(std::uint8_t type, std::span<const std::uint8_t> rawBytes);

/// The same at the end of a page.
void AppendStructureHeading(std::uint8_t type, std::span<const std::uint8_t> rawBytes, TextPage& page);

}  // namespace SMBIOS::Inspect
