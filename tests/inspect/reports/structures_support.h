#pragma once

#include <cstdint>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "smbios-inspect/reports/structures_report.h"
#include "tests/support/fake_platform.h"
#include "tests/support/json.h"

namespace SMBIOS::Tests {

/// What `smbios-inspect structures` prints of this table. Once per process.
inline std::string StructuresReport(std::vector<std::uint8_t> table,
                                    const Inspect::Request& request,
                                    const Inspect::OutputStyle& style = {}) {
    const FakeFirmwareTable firmware(std::move(table));
    std::ostringstream output;
    Inspect::ReportStructures(request, style, output);
    return output.str();
}

}  // namespace SMBIOS::Tests
