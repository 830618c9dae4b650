#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

#include "smbios-inspect/output/output_style.h"
#include "smbios-inspect/reports/request.h"

namespace SMBIOS::Report {

/// One of the tool's reports and the name it goes by.
struct NamedReport {
    std::string_view name;
    void (*print)(const Inspect::Request& request, const Inspect::OutputStyle& style, std::ostream& output);
};

/// The report of this name. Throws Inspect::UsageError when there is none.
[[nodiscard]] const NamedReport& FindReport(std::string_view name);

/// The report of the table in use, as the tool prints it with --json. Throws what a load throws.
[[nodiscard]] std::string JsonOf(const NamedReport& report);

}  // namespace SMBIOS::Report
