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
#include "smbios-inspect/records/filed_structure.h"
#include "tests/support/counting_buffer.h"

// Time and memory of a structure while tables grow: both must stay what they are.
namespace {

using namespace SMBIOS;
using Clock = std::chrono::steady_clock;

std::size_t liveBytes = 0;
std::size_t peakBytes = 0;

/// What stands in front of each allocation: its size, at the largest alignment.
constexpr std::size_t kFront = alignof(std::max_align_t);

void WriteJson(const Manager::DecodedTable& table) {
    Tests::CountingBuffer buffer;
    std::ostream output(&buffer);
    Inspect::JsonWriter json(output);
    json.BeginArray();
    for (const Inspect::FiledStructure& structure : table.structures) {
        Inspect::WriteStructure(structure, json);
    }
    json.EndArray();
    json.EndLine();
}

double NanosecondsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::nano>(Clock::now() - start).count();
}

void PrintRow(const char* name, const std::vector<std::uint8_t>& rawTable) {
    const std::size_t before = liveBytes;
    peakBytes = liveBytes;
    const Clock::time_point start = Clock::now();
    const Manager::DecodedTable table = Manager::DecodeTable(rawTable);
    const double load = NanosecondsSince(start);
    const std::size_t held = liveBytes - before;
    WriteJson(table);
    const auto count = static_cast<double>(table.structures.size());
    std::printf("%-24s %10.0f %12.0f %16.0f %17.1f\n",
                name,
                count,
                load / count,
                static_cast<double>(held) / count,
                static_cast<double>(peakBytes - before) / static_cast<double>(rawTable.size()));
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
