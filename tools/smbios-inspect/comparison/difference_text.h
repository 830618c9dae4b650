#pragma once

#include <iosfwd>

#include "smbios-inspect/comparison/differences.h"
#include "smbios-inspect/output/output_style.h"

namespace SMBIOS::Inspect::Comparing {

/// Prints the differences for people: "- " in front of what is in the old table only, "~ " of what has
/// changed and "+ " of what is in the new one only, and the counts in the last line.
Counts PrintDifferences(const Comparison& comparison, const OutputStyle& style, std::ostream& output);

}  // namespace SMBIOS::Inspect::Comparing
