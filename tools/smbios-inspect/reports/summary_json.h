#pragma once

#include <iosfwd>

#include "smbios-inspect/reports/machine_facts.h"
#include "smbios-inspect/reports/table_facts.h"

namespace SMBIOS::Inspect {

/// Prints the facts as one JSON object, which docs/json.md describes.
void PrintSummaryAsJson(const MachineFacts& machine, const TableFacts& table, std::ostream& output);

}  // namespace SMBIOS::Inspect
