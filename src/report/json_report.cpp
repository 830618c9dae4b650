#include "report/json_report.h"

#include <algorithm>
#include <iterator>
#include <sstream>

#include "smbios-inspect/command_line/options.h"
#include "smbios-inspect/reports/memory_report.h"
#include "smbios-inspect/reports/processors_report.h"
#include "smbios-inspect/reports/structures_report.h"

namespace SMBIOS::Report {

namespace {

constexpr NamedReport kReports[] = {
    {"memory", Inspect::ReportMemory},
    {"processors", Inspect::ReportProcessors},
    {"structures", Inspect::ReportStructures},
};

}  // namespace

const NamedReport& FindReport(std::string_view name) {
    const NamedReport* const report = std::ranges::find(kReports, name, &NamedReport::name);
    if (report == std::end(kReports)) {
        throw Inspect::UsageError("unknown report '" + std::string(name) + "'");
    }
    return *report;
}

std::string JsonOf(const NamedReport& report) {
    Inspect::Request request;
    request.json = true;
    std::ostringstream output;
    output.exceptions(std::ios_base::badbit);  // a stream swallows what is thrown for want of memory
    report.print(request, Inspect::OutputStyle(), output);
    return output.str();
}

}  // namespace SMBIOS::Report
