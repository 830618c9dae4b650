#pragma once

#include <iosfwd>

#include "smbios-inspect/output/output_style.h"
#include "smbios-inspect/reports/request.h"

namespace SMBIOS::Inspect {

/// Prints the machine on one screen, as the SMBIOS standard has its table. Throws what a load throws.
void ReportSummary(const Request& request, const OutputStyle& style, std::ostream& output);

}  // namespace SMBIOS::Inspect
