#include <benchmark/benchmark.h>

#include <ostream>

#include "bench/tables.h"
#include "smbios-inspect/picture/picture.h"
#include "smbios-inspect/reports/departures_report.h"
#include "smbios-inspect/reports/diff_report.h"
#include "smbios-inspect/reports/firmware_report.h"
#include "smbios-inspect/reports/structures_report.h"
#include "smbios-inspect/reports/summary_report.h"
#include "tests/support/counting_buffer.h"
#include "tests/support/fake_platform.h"

// Each report of the tool, from the raw table to the last byte written.
namespace {

using namespace SMBIOS;
using namespace SMBIOS::Inspect;

template <class Write>
void Measure(benchmark::State& state, Write write) {
    const Tests::FakeFirmwareTable firmware(Bench::MeasuredTable());
    Tests::CountingBuffer buffer;
    std::ostream output(&buffer);
    for (auto _ : state) {
        write(output);
    }
}

using Report = void (*)(const Request&, const OutputStyle&, std::ostream&);

void Text(benchmark::State& state, Report report) {
    Measure(state, [&](std::ostream& output) { report({}, {}, output); });
}

void Json(benchmark::State& state, Report report) {
    Measure(state, [&](std::ostream& output) { report({.json = true}, {}, output); });
}

BENCHMARK_CAPTURE(Text, summary, ReportSummary);
BENCHMARK_CAPTURE(Json, summary, ReportSummary);
BENCHMARK_CAPTURE(Text, structures, ReportStructures);
BENCHMARK_CAPTURE(Json, structures, ReportStructures);
BENCHMARK_CAPTURE(Text, firmware, ReportFirmware);
BENCHMARK_CAPTURE(Json, firmware, ReportFirmware);
BENCHMARK_CAPTURE(Text, departures, ReportDepartures);
BENCHMARK_CAPTURE(Json, departures, ReportDepartures);

void Diff(benchmark::State& state) {
    Measure(state, [](std::ostream& output) {
        (void)ReportDiff(Bench::MeasuredTable(), Bench::MeasuredTable(), {}, {}, output);
    });
}
BENCHMARK(Diff);

void DrawnPicture(benchmark::State& state) {
    Measure(state,
            [](std::ostream& output) { Inspect::Picture::DrawMachine(Bench::MeasuredTable(), output); });
}
BENCHMARK(DrawnPicture);

}  // namespace
