#include "smbios-inspect/reports/structures_report.h"

#include <ostream>
#include <utility>

#include "manager/decoded_table.h"
#include "manager/raw_table.h"
#include "smbios-inspect/output/json.h"
#include "smbios-inspect/records/filed_structure.h"

namespace SMBIOS::Inspect {

using Manager::DecodedTable;

namespace {

bool IsAskedFor(const FiledStructure& structure, const Options& options) {
    return options.types.empty() || options.types.contains(TypeOf(structure));
}

void PrintAsJson(const DecodedTable& table, const Options& options, std::ostream& output) {
    Json list = Json::array();
    for (const FiledStructure& structure : table.structures) {
        if (IsAskedFor(structure, options)) {
            list.push_back(StructureToJson(structure));
        }
    }
    PrintJson({{"version", table.version.text},
               {"versionIndex", static_cast<int>(table.version.index)},
               {"structures", std::move(list)}},
              output);
}

void PrintAsText(const DecodedTable& table,
                 const Options& options,
                 const OutputStyle& style,
                 std::ostream& output) {
    bool isFirst = true;
    for (const FiledStructure& structure : table.structures) {
        if (IsAskedFor(structure, options)) {
            output << (isFirst ? "" : "\n");
            PrintStructure(structure, style, output);
            isFirst = false;
        }
    }
    if (isFirst) {
        output << "The table holds no " << (options.types.empty() ? "" : "such ") << "structure.\n";
    }
}

}  // namespace

void ReportStructures(const Options& options, const OutputStyle& style, std::ostream& output) {
    const DecodedTable table = Manager::DecodeTable(Manager::ReadRawTable());
    if (options.json) {
        PrintAsJson(table, options, output);
    } else {
        PrintAsText(table, options, style, output);
    }
}

}  // namespace SMBIOS::Inspect
