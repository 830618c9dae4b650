#include <benchmark/benchmark.h>

#include "bench/tables.h"
#include "smbios/memory_info.h"
#include "smbios/processor_info.h"
#include "tests/support/fake_platform.h"

// Both exported classes, with an answer of PowerShell that is there at once. The table is loaded once per
// process, so this is what each further object costs.
namespace {

using namespace SMBIOS;

constexpr const char* kDevices =
    R"([{"SerialNumber": "4A8C1D20", "PositionInRow": 1, "Tag": "Physical Memory 0"},
                                     {"SerialNumber": "4A8C1D21", "PositionInRow": 2, "Tag": "Physical Memory 1"}])";
constexpr const char* kProcessor =
    R"({"ProcessorId": "BFEBFBFF000406F1", "L2CacheSize": 3072, "Name": "A processor"})";

template <class Info>
void Retrieve(benchmark::State& state, const char* answer) {
    const Tests::FakeFirmwareTable firmware(Bench::MeasuredTable());
    Tests::FakeCommandRunner powershell;
    powershell.Answer(answer);
    for (auto _ : state) {
        Info info;
        info.RetrieveInfo();
        benchmark::ClobberMemory();
    }
}
void MemoryRows(benchmark::State& state) {
    Retrieve<Parsers::MemoryInfo>(state, kDevices);
}
BENCHMARK(MemoryRows);

void ProcessorRows(benchmark::State& state) {
    Retrieve<Parsers::ProcessorInfo>(state, kProcessor);
}
BENCHMARK(ProcessorRows);

}  // namespace
