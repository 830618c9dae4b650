#include <gtest/gtest.h>

#include <ostream>
#include <sstream>
#include <string>

#include "smbios-inspect/reports/departures_report.h"
#include "smbios-inspect/reports/firmware_report.h"
#include "smbios-inspect/reports/get_report.h"
#include "smbios-inspect/reports/memory_report.h"
#include "smbios-inspect/reports/processors_report.h"
#include "smbios-inspect/reports/structures_report.h"
#include "smbios-inspect/reports/summary_report.h"
#include "tests/support/child_process_posix.h"
#include "tests/support/counted_allocations.h"
#include "tests/support/counting_buffer.h"
#include "tests/support/fake_platform.h"
#include "tests/support/worst_tables.h"

// What a report of a table costs, whatever stands in it.
namespace SMBIOS::Tests {
namespace {

constexpr std::size_t kKibibyte = 1024;

struct Writer {
    const char* name;
    void (*write)(std::ostream& output);
};

constexpr Writer kMemoryText = {"MemoryText",
                                [](std::ostream& output) { Inspect::ReportMemory({}, {}, output); }};
constexpr Writer kProcessorsText = {"ProcessorsText",
                                    [](std::ostream& output) { Inspect::ReportProcessors({}, {}, output); }};
constexpr Writer kOtherWriters[] = {
    {"SummaryText", [](std::ostream& output) { Inspect::ReportSummary({}, {}, output); }},
    {"SummaryOnATerminal", [](std::ostream& output) { Inspect::ReportSummary({}, {.width = 80}, output); }},
    {"SummaryJson", [](std::ostream& output) { Inspect::ReportSummary({.json = true}, {}, output); }},
    {"Values", [](std::ostream& output) { Inspect::ReportValues({}, output); }},
    {"FirmwareWithBytes", [](std::ostream& output) { Inspect::ReportFirmware({.bytes = true}, {}, output); }},
    {"MemoryOnATerminal", [](std::ostream& output) { Inspect::ReportMemory({}, {.width = 80}, output); }},
    {"MemoryJson", [](std::ostream& output) { Inspect::ReportMemory({.json = true}, {}, output); }},
    {"ProcessorsJson", [](std::ostream& output) { Inspect::ReportProcessors({.json = true}, {}, output); }},
    {"StructuresText", [](std::ostream& output) { Inspect::ReportStructures({}, {}, output); }},
    {"StructuresOnATerminal",
     [](std::ostream& output) { Inspect::ReportStructures({}, {.width = 80}, output); }},
    {"StructuresJson", [](std::ostream& output) { Inspect::ReportStructures({.json = true}, {}, output); }},
    {"DeparturesText", [](std::ostream& output) { Inspect::ReportDepartures({}, {}, output); }},
    {"DeparturesJson", [](std::ostream& output) { Inspect::ReportDepartures({.json = true}, {}, output); }},
};

struct Cost {
    std::size_t allocations = 0;
    std::size_t bytes = 0;
    std::size_t written = 0;
};

/// Asked of a process of its own: a table is loaded once per process.
Cost CostOf(const Writer& writer, const std::vector<std::uint8_t>& rawTable) {
    const FakeFirmwareTable firmware(rawTable);
    FakeCommandRunner powershell;
    powershell.FailToStart();
    std::istringstream costs(TextOfChild([&] {
        CountingBuffer buffer;
        std::ostream output(&buffer);
        const CountedAllocations counted;
        writer.write(output);
        return std::to_string(counted.Count()) + " " + std::to_string(counted.Bytes()) + " " +
               std::to_string(buffer.Size());
    }));
    Cost cost;
    costs >> cost.allocations >> cost.bytes >> cost.written;
    EXPECT_FALSE(costs.fail()) << costs.str();
    return cost;
}

void ExpectGrowthLikeTheTables(const Writer& writer, const WorstTable& table) {
    const Cost small = CostOf(writer, table.make(16 * kKibibyte));
    const Cost large = CostOf(writer, table.make(64 * kKibibyte));
    EXPECT_LE(10 * large.allocations, 44 * small.allocations) << writer.name;
    EXPECT_LE(10 * large.bytes, 44 * small.bytes) << writer.name;
    EXPECT_LE(10 * large.written, 44 * small.written) << writer.name;
}

class ReportCost : public testing::TestWithParam<WorstTable> {};

TEST_P(ReportCost, GrowsWithTheTableAndNoFaster) {
    ExpectGrowthLikeTheTables(kMemoryText, GetParam());
    ExpectGrowthLikeTheTables(kProcessorsText, GetParam());
    for (const Writer& writer : kOtherWriters) {
        ExpectGrowthLikeTheTables(writer, GetParam());
    }
}

TEST_P(ReportCost, RowsOfDevicesAreAtMost20TimesTheTable) {
    const std::vector<std::uint8_t> rawTable = GetParam().make(64 * kKibibyte);
    EXPECT_LE(CostOf(kMemoryText, rawTable).written, 20 * rawTable.size());
    EXPECT_LE(CostOf(kProcessorsText, rawTable).written, 20 * rawTable.size());
}

INSTANTIATE_TEST_SUITE_P(WorstTables,
                         ReportCost,
                         testing::ValuesIn(WorstTables().begin(), WorstTables().end()),
                         [](const auto& each) { return each.param.name; });

}  // namespace
}  // namespace SMBIOS::Tests
