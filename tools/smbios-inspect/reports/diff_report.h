#pragma once

#include <cstdint>
#include <iosfwd>
#include <span>

#include "smbios-inspect/output/output_style.h"
#include "smbios-inspect/reports/request.h"

namespace SMBIOS::Inspect {

/// Prints what differs between two raw tables, the old one first, and returns whether anything does. It reads
/// nothing else, and prints nothing when the request is for quiet.
bool ReportDiff(std::span<const std::uint8_t> before,
                std::span<const std::uint8_t> after,
                const Request& request,
                const OutputStyle& style,
                std::ostream& output);

}  // namespace SMBIOS::Inspect
