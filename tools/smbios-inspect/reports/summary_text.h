#pragma once

#include <iosfwd>

#include "smbios-inspect/output/output_style.h"
#include "smbios-inspect/reports/machine_facts.h"
#include "smbios-inspect/reports/table_facts.h"

namespace SMBIOS::Inspect {

/// Prints the facts for people, on one screen for most machines.
void PrintSummary(const MachineFacts& machine,
                  const TableFacts& table,
                  const OutputStyle& style,
                  std::ostream& output);

}  // namespace SMBIOS::Inspect
