#include "smbios/report.h"

#include <cstdlib>
#include <optional>
#include <string>

#include "report/delivery.h"
#include "report/json_report.h"
#include "smbios-inspect/command_line/inspect.h"
#include "smbios-inspect/command_line/options.h"
#include "smbios-inspect/command_line/table_input.h"

namespace {

using namespace SMBIOS;

std::string ReportOfThisMachine(const char* name) {
    if (name == nullptr) {
        throw Inspect::UsageError("no name of a report given");
    }
    const Report::NamedReport& report = Report::FindReport(name);
    const Inspect::TableInput machine(std::nullopt);
    return Report::JsonOf(report);
}

}  // namespace

int smbios_report(const char* name, char** text) {
    if (text == nullptr) {
        return Inspect::kWrongUsage;
    }
    return Report::Deliver(*text, [name] { return ReportOfThisMachine(name); });
}

void smbios_report_free(char* text) {
    std::free(text);
}

const char* smbios_report_version(void) {
    return SMBIOS_REPORT_VERSION;
}
