// A raw table, its header included, decoded into records that are shown with all their fields.

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <vector>

#include "manager/decoded_table.h"
#include "manager/raw_table.h"
#include "smbios-inspect/output/json_writer.h"
#include "smbios-inspect/records/filed_structure.h"
#include "tests/fuzz/given_table.h"
#include "tests/fuzz/report.h"

using namespace SMBIOS;
using Inspect::FiledStructure;

namespace {

void WriteAll(const Manager::DecodedTable& table, std::ostream& output) {
    Inspect::JsonWriter json(output);
    json.BeginArray();
    for (const auto& [key, run] : table.structures) {
        for (const FiledStructure& structure : run) {
            Inspect::WriteStructure(structure, json);
        }
    }
    json.EndArray();
    json.EndLine();
}

void PrintAll(const Manager::DecodedTable& table, const Inspect::OutputStyle& style, std::ostream& output) {
    for (const auto& [key, run] : table.structures) {
        for (const FiledStructure& structure : run) {
            Inspect::StructurePrinter(style, output).Print(structure);
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (!Fuzz::GivenTable::IsOne({data, size})) {
        return 0;
    }
    const Fuzz::GivenTable given({data, size});
    const Manager::DecodedTable table = Manager::DecodeTable(Manager::ReadRawTable());
    Fuzz::RequireJson([&](std::ostream& output) { WriteAll(table, output); });
    Fuzz::RequireText([&](std::ostream& output) { PrintAll(table, given.Style(), output); });
    return 0;
}
