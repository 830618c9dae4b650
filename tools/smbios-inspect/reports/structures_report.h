#pragma once

#include <iosfwd>

#include "smbios-inspect/output/output_style.h"
#include "smbios-inspect/reports/request.h"

namespace SMBIOS::Inspect {

/// Prints every structure of the table with all fields of its record. Throws what a load throws.
void ReportStructures(const Request& request, const OutputStyle& style, std::ostream& output);

}  // namespace SMBIOS::Inspect
