#pragma once

#include <iosfwd>

#include "smbios-inspect/output/output_style.h"
#include "smbios-inspect/reports/request.h"

namespace SMBIOS::Inspect {

/// Prints the processors as `ProcessorInfo` gives them. Throws what its RetrieveInfo throws.
void ReportProcessors(const Request& request, const OutputStyle& style, std::ostream& output);

}  // namespace SMBIOS::Inspect
