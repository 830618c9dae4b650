#include "bench/tables.h"

#include <cstdlib>

#include "platform/raw_table_header.h"
#include "platform/saved_table.h"
#include "samples/table_builder.h"

namespace SMBIOS::Bench {

const std::vector<std::uint8_t>& MeasuredTable() {
    static const std::vector<std::uint8_t> table = [] {
        const char* const file = std::getenv("SMBIOS_BENCH_TABLE");
        return Platform::LoadSavedTable(file == nullptr ? SMBIOS_SAMPLE_TABLE : file);
    }();
    return table;
}

std::vector<std::uint8_t> Repeated(const std::vector<std::uint8_t>& rawTable, std::size_t times) {
    const auto structures = Platform::RawTableHeader::StructuresOf(rawTable);
    std::vector<std::uint8_t> table = rawTable;
    table.reserve(rawTable.size() + structures.size() * times);
    for (std::size_t i = 1; i < times; ++i) {
        table.insert(table.end(), structures.begin(), structures.end());
    }
    return table;
}

std::vector<std::uint8_t> TableOf(std::uint8_t type, std::uint8_t length, std::size_t count) {
    const std::vector<std::uint8_t> one =
        Samples::TableBuilder(3, 2, 0)
            .Add(Samples::StructureBuilder(type, length).String(length - 1U, "A text"))
            .RawTable();
    return Repeated(one, count);
}

}  // namespace SMBIOS::Bench
