// A raw table, its header included, decoded into records and summed up on one screen.

#include <cstddef>
#include <cstdint>
#include <ostream>

#include "smbios-inspect/reports/summary_report.h"
#include "tests/fuzz/given_table.h"
#include "tests/fuzz/report.h"

using namespace SMBIOS;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (!Fuzz::GivenTable::IsOne({data, size})) {
        return 0;
    }
    const Fuzz::GivenTable table({data, size});
    Fuzz::RequireText([&](std::ostream& output) { Inspect::ReportSummary(table.Style(), output); });
    return 0;
}
