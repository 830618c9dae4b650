#pragma once

#include <iosfwd>

#include "smbios-inspect/output/output_style.h"
#include "smbios-inspect/reports/request.h"

namespace SMBIOS::Inspect {

/// Prints every structure of the table, in table order, as the SMBIOS standard has it. Throws when no table
/// can be read.
void ReportFirmware(const Request& request, const OutputStyle& style, std::ostream& output);

}  // namespace SMBIOS::Inspect
