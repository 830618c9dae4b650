#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

#include "bench/tables.h"
#include "manager/decoded_table.h"
#include "manager/structure_factory.h"
#include "manager/structure_walk.h"
#include "platform/raw_table_header.h"

// Each decoder on the structures of its type in the measured table; the time is that of one structure.
namespace {

using namespace SMBIOS;
using Manager::RawStructure;

std::map<std::uint8_t, std::vector<RawStructure>> StructuresByType() {
    std::map<std::uint8_t, std::vector<RawStructure>> structures;
    Manager::StructureWalk walk(Platform::RawTableHeader::StructuresOf(Bench::MeasuredTable()));
    while (const auto structure = walk.Next()) {
        structures[structure->type].push_back(RawStructure::Of(*structure));
    }
    return structures;
}

void Decode(benchmark::State& state, const std::vector<RawStructure>& structures) {
    const auto version =
        Manager::TableVersion::Of(Bench::MeasuredTable(), Manager::SmbiosVersionIndex::v2_0_0).index;
    for (auto _ : state) {
        for (const RawStructure& structure : structures) {
            const auto [key, decoder] = Structures::StructureFactory::CreateTablePtr(
                Manager::Types::StructureTypes{structure.type}, version);
            decoder->Process(structure.formattedBytes, structure.strings);
            benchmark::DoNotOptimize(decoder->GetHandle());
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(structures.size()));
}

/// Made before main: the names of benchmarks must be there when it begins.
const bool kAreRegistered = [] {
    for (auto& [type, structures] : StructuresByType()) {
        benchmark::RegisterBenchmark(("Decode/type:" + std::to_string(type)).c_str(),
                                     [structures](benchmark::State& state) { Decode(state, structures); });
    }
    return true;
}();

}  // namespace
