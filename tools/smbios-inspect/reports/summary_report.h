#pragma once

#include <iosfwd>

#include "smbios-inspect/output/output_style.h"

namespace SMBIOS::Inspect {

/// Prints the machine on one screen. Throws what a load throws.
void ReportSummary(const OutputStyle& style, std::ostream& output);

}  // namespace SMBIOS::Inspect
