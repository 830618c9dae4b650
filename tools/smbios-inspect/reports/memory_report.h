#pragma once

#include <iosfwd>

#include "smbios-inspect/command_line/options.h"
#include "smbios-inspect/output/output_style.h"

namespace SMBIOS::Inspect {

/// Prints the memory devices as `MemoryInfo` gives them. Throws what its RetrieveInfo throws.
void ReportMemory(const Options& options, const OutputStyle& style, std::ostream& output);

}  // namespace SMBIOS::Inspect
