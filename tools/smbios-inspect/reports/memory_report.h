#pragma once

#include <iosfwd>

#include "smbios-inspect/output/output_style.h"
#include "smbios-inspect/reports/request.h"

namespace SMBIOS::Inspect {

/// Prints the memory devices as `MemoryInfo` gives them. Throws what its RetrieveInfo throws.
void ReportMemory(const Request& request, const OutputStyle& style, std::ostream& output);

}  // namespace SMBIOS::Inspect
