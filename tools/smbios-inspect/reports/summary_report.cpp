#include "smbios-inspect/reports/summary_report.h"

#include <cstdint>
#include <vector>

#include "manager/raw_table.h"
#include "smbios-inspect/reports/summary_json.h"
#include "smbios-inspect/reports/summary_text.h"

namespace SMBIOS::Inspect {

void ReportSummary(const Request& request, const OutputStyle& style, std::ostream& output) {
    const std::vector<std::uint8_t> rawTable = Manager::ReadRawTable();
    const MachineFacts machine = MachineFactsOf(rawTable);
    const TableFacts table = TableFactsOf(rawTable);
    if (request.json) {
        PrintSummaryAsJson(machine, table, output);
    } else {
        PrintSummary(machine, table, style, output);
    }
}

}  // namespace SMBIOS::Inspect
