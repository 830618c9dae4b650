#pragma once

#include <iosfwd>

#include "smbios-inspect/command_line/options.h"
#include "smbios-inspect/output/output_style.h"

namespace SMBIOS::Inspect {

/// Compares the two tables that `options` name, the second being the one in use when it has no name, prints
/// what differs, and returns the exit status: kSuccess or kDifferent. Throws an exception whose text is for a
/// person when a table cannot be read.
int CompareTables(const Options& options,
                  const OutputStyle& style,
                  std::ostream& output,
                  std::ostream& errors);

}  // namespace SMBIOS::Inspect
