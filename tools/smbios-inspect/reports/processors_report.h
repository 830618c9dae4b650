#pragma once

#include <iosfwd>

#include "smbios-inspect/command_line/options.h"
#include "smbios-inspect/output/output_style.h"

namespace SMBIOS::Inspect {

/// Prints the processors as `ProcessorInfo` gives them. Throws what its RetrieveInfo throws.
void ReportProcessors(const Options& options, const OutputStyle& style, std::ostream& output);

}  // namespace SMBIOS::Inspect
