// A raw table, its header included, summed up on one screen and as single values.

#include <cstddef>
#include <cstdint>
#include <ostream>

#include "smbios-inspect/reports/get_report.h"
#include "smbios-inspect/reports/summary_report.h"
#include "tests/fuzz/given_table.h"
#include "tests/fuzz/report.h"

using namespace SMBIOS;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (!Fuzz::GivenTable::IsOne({data, size})) {
        return 0;
    }
    const Fuzz::GivenTable table({data, size});
    Fuzz::RequireText([&](std::ostream& output) { Inspect::ReportSummary({}, table.Style(), output); });
    Fuzz::RequireJson([](std::ostream& output) { Inspect::ReportSummary({.json = true}, {}, output); });
    Fuzz::RequireText([](std::ostream& output) { Inspect::ReportValues({}, output); });
    return 0;
}
