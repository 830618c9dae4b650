#pragma once

#include <iosfwd>

#include "smbios-inspect/output/output_style.h"
#include "smbios-inspect/reports/request.h"

namespace SMBIOS::Inspect {

/// Prints every value of the table that the library gives otherwise than the SMBIOS standard, and why. Throws
/// what a load throws.
void ReportDepartures(const Request& request, const OutputStyle& style, std::ostream& output);

}  // namespace SMBIOS::Inspect
