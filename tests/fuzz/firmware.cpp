// A raw table, its header included, shown as the SMBIOS standard has it.

#include <cstddef>
#include <cstdint>
#include <ostream>

#include "smbios-inspect/reports/firmware_report.h"
#include "tests/fuzz/given_table.h"
#include "tests/fuzz/report.h"

using namespace SMBIOS;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (!Fuzz::GivenTable::IsOne({data, size})) {
        return 0;
    }
    const Fuzz::GivenTable table({data, size});
    const Inspect::Request asJson = {.json = true, .quiet = table.IsQuiet()};
    const Inspect::Request asText = {.quiet = table.IsQuiet(), .bytes = table.HasBytes()};
    Fuzz::RequireJson([&](std::ostream& output) { Inspect::ReportFirmware(asJson, {}, output); });
    Fuzz::RequireText([&](std::ostream& output) { Inspect::ReportFirmware(asText, table.Style(), output); });
    return 0;
}
