#pragma once

#include <iosfwd>

#include "smbios-inspect/reports/request.h"

namespace SMBIOS::Inspect {

/// Prints the values of the request's keys, one a line in their order; without a key all, behind their keys.
/// What the firmware does not give is empty. Throws when no table can be read.
void ReportValues(const Request& request, std::ostream& output);

}  // namespace SMBIOS::Inspect
