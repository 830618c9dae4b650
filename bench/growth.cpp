#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <ostream>
#include <vector>

#include "bench/tables.h"
#include "manager/decoded_table.h"
#include "smbios-inspect/output/json_writer.h"
#include "smbios-inspect/records/decode_each.h"
#include "tests/support/counting_buffer.h"

// Time and memory of a structure while tables grow: both must stay what they are.
namespace {

using namespace SMBIOS;
using Clock = std::chrono::steady_clock;

std::size_t liveBytes = 0;
std::size_t peakBytes = 0;

/// What stands in front of each allocation: its size, at the largest alignment.
constexpr std::size_t kFront = alignof(std::max_align_t);

void WriteJson(const std::vector<std::uint8_t>& rawTable) {
    Tests::CountingBuffer buffer;
    std::ostream output(&buffer);
    Inspect::JsonWriter json(output);
    json.BeginArray();
    Inspect::DecodeEach(
        rawTable,
        [](Manager::Types::StructureTypes) { return true; },
        [&](const Inspect::FiledStructure& structure) { Inspect::WriteStructure(structure, json); });
    json.EndArray();
    json.EndLine();
}

double NanosecondsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::nano>(Clock::now() - start).count();
}

struct LoadCost {
    double structures = 0;
    double nanoseconds = 0;
    double bytesHeld = 0;
};

LoadCost CostOfLoading(const std::vector<std::uint8_t>& rawTable) {
    const std::size_t before = liveBytes;
    const Clock::time_point start = Clock::now();
    const Manager::DecodedTable table = Manager::DecodeTable(rawTable);
    LoadCost cost{.nanoseconds = NanosecondsSince(start),
                  .bytesHeld = static_cast<double>(liveBytes - before)};
    for (const auto& [key, run] : table.structures) {
        cost.structures += static_cast<double>(run.size());
    }
    return cost;
}

/// Bytes, at most, while the table is written.
double PeakOfWriting(const std::vector<std::uint8_t>& rawTable) {
    const std::size_t before = liveBytes;
    peakBytes = liveBytes;
    WriteJson(rawTable);
    return static_cast<double>(peakBytes - before);
}

void PrintRow(const char* name, const std::vector<std::uint8_t>& rawTable) {
    const LoadCost load = CostOfLoading(rawTable);
    std::printf("%-24s %10.0f %12.0f %16.0f %17.1f\n",
                name,
                load.structures,
                load.nanoseconds / load.structures,
                load.bytesHeld / load.structures,
                PeakOfWriting(rawTable) / static_cast<double>(rawTable.size()));
}

}  // namespace

void* operator new(std::size_t size) {
    void* const front = std::malloc(size + kFront);
    if (front == nullptr) {
        throw std::bad_alloc();
    }
    *static_cast<std::size_t*>(front) = size;
    liveBytes += size;
    peakBytes = peakBytes < liveBytes ? liveBytes : peakBytes;
    return static_cast<char*>(front) + kFront;
}

void operator delete(void* memory) noexcept {
    if (memory != nullptr) {
        void* const front = static_cast<char*>(memory) - kFront;
        liveBytes -= *static_cast<std::size_t*>(front);
        std::free(front);
    }
}

void operator delete(void* memory, std::size_t) noexcept {
    operator delete(memory);
}

int main() {
    std::printf(
        "%-24s %10s %12s %16s %17s\n", "table", "structures", "ns to load", "bytes held", "peak with JSON");
    std::printf("%-24s %10s %12s %16s %17s\n", "", "", "a structure", "a structure", "a byte of table");
    for (const std::size_t times : {1U, 10U, 100U, 1000U}) {
        PrintRow("the measured table", Bench::Repeated(Bench::MeasuredTable(), times));
    }
    for (const std::size_t count : {620U, 6200U, 62000U, 620000U}) {
        PrintRow("of an unknown type", Bench::TableOf(200, 0x20, count));
    }
    for (const std::size_t count : {620U, 6200U, 62000U, 620000U}) {
        PrintRow("memory devices", Bench::TableOf(17, 0x54, count));
    }
    return 0;
}
