#pragma once

#include "smbios-inspect/output/json.h"
#include "smbios-inspect/standard/structure.h"

namespace SMBIOS::Inspect::Standard {

/// Type, name, handle, length, fields, strings and bytes of a structure, and a remark when it is cut short.
/// `isQuiet` leaves out the last three. See docs/json.md.
[[nodiscard]] Json StructureToJson(const Structure& structure, bool isQuiet);

}  // namespace SMBIOS::Inspect::Standard
