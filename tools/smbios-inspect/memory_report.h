#pragma once

#include <iosfwd>

#include "smbios-inspect/options.h"

namespace SMBIOS::Inspect {

/// Prints the memory devices as `MemoryInfo` gives them. Throws what its RetrieveInfo throws.
void ReportMemory(const Options& options, std::ostream& output);

}  // namespace SMBIOS::Inspect
