// A raw table, its header included, read as the library and as the SMBIOS standard has it: every difference
// has a reason. The report of structures marks them.

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <span>
#include <vector>

#include "manager/decoded_table.h"
#include "manager/raw_table.h"
#include "smbios-inspect/departures/find_departures.h"
#include "smbios-inspect/departures/reasons.h"
#include "smbios-inspect/reports/departures_report.h"
#include "smbios-inspect/reports/structures_report.h"
#include "tests/fuzz/given_table.h"
#include "tests/fuzz/report.h"
#include "tests/fuzz/require.h"

using namespace SMBIOS;
using Inspect::Departures::ReasonId;

namespace {

class ReasonsRequired final : public Inspect::Departures::DepartureVisitor {
public:
    void Visit(const Inspect::Departures::Departure& departure) override {
        Fuzz::Require(departure.reason != ReasonId::unexplained, "every difference has a reason");
    }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (!Fuzz::GivenTable::IsOne({data, size})) {
        return 0;
    }
    const Fuzz::GivenTable table({data, size});
    const std::vector<std::uint8_t> rawTable = Manager::ReadRawTable();
    ReasonsRequired reasons;
    Inspect::Departures::FindDepartures(rawTable, Manager::DecodeTable(rawTable), reasons);
    Fuzz::RequireJson([](std::ostream& output) { Inspect::ReportDepartures({.json = true}, {}, output); });
    Fuzz::RequireText([&](std::ostream& output) { Inspect::ReportDepartures({}, table.Style(), output); });
    Fuzz::RequireText([&](std::ostream& output) { Inspect::ReportStructures({}, table.Style(), output); });
    return 0;
}
