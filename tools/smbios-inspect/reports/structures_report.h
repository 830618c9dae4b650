#pragma once

#include <iosfwd>

#include "smbios-inspect/command_line/options.h"
#include "smbios-inspect/output/output_style.h"

namespace SMBIOS::Inspect {

/// Prints every structure of the table with all fields of its record. Throws what a load throws.
void ReportStructures(const Options& options, const OutputStyle& style, std::ostream& output);

}  // namespace SMBIOS::Inspect
