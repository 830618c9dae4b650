#include <benchmark/benchmark.h>

#include "bench/tables.h"
#include "manager/decoded_table.h"
#include "manager/structure_walk.h"
#include "platform/raw_table_header.h"

// The steps of a load: each does what the one before does, and more.
namespace {

using namespace SMBIOS;

void Walk(benchmark::State& state) {
    const auto structures = Platform::RawTableHeader::StructuresOf(Bench::MeasuredTable());
    for (auto _ : state) {
        Manager::StructureWalk walk(structures);
        while (const auto structure = walk.Next()) {
            benchmark::DoNotOptimize(structure->type);
        }
    }
}
BENCHMARK(Walk);

/// The floor of a load.
void WalkWithStringSets(benchmark::State& state) {
    const auto structures = Platform::RawTableHeader::StructuresOf(Bench::MeasuredTable());
    for (auto _ : state) {
        Manager::StructureWalk walk(structures);
        while (const auto structure = walk.Next()) {
            const auto raw = Manager::RawStructure::Of(*structure);
            benchmark::DoNotOptimize(raw.strings.data());
        }
    }
}
BENCHMARK(WalkWithStringSets);

void Load(benchmark::State& state) {
    for (auto _ : state) {
        const Manager::DecodedTable table = Manager::DecodeTable(Bench::MeasuredTable());
        benchmark::DoNotOptimize(table.structures.size());
    }
}
BENCHMARK(Load);

}  // namespace
