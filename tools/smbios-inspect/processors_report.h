#pragma once

#include <iosfwd>

#include "smbios-inspect/options.h"

namespace SMBIOS::Inspect {

/// Prints the processors as `ProcessorInfo` gives them. Throws what its RetrieveInfo throws.
void ReportProcessors(const Options& options, std::ostream& output);

}  // namespace SMBIOS::Inspect
