#pragma once

#include <iosfwd>

#include "smbios-inspect/comparison/differences.h"

namespace SMBIOS::Inspect::Comparing {

/// Writes the differences as JSON. See docs/json.md.
Counts WriteDifferences(const Comparison& comparison, std::ostream& output);

}  // namespace SMBIOS::Inspect::Comparing
