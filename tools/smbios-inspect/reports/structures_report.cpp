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

bool IsAskedFor(const FiledStructure& structure, const Request& request) {
    return request.types.empty() || request.types.contains(TypeOf(structure));
}

void PrintAsJson(const DecodedTable& table, const Request& request, std::ostream& output) {
    Json list = Json::array();
    for (const FiledStructure& structure : table.structures) {
        if (IsAskedFor(structure, request)) {
            list.push_back(StructureToJson(structure));
        }
    }
    PrintJson({{"version", table.version.text},
               {"versionIndex", static_cast<int>(table.version.index)},
               {"structures", std::move(list)}},
              output);
}

void PrintAsText(const DecodedTable& table,
                 const Request& request,
                 const OutputStyle& style,
                 std::ostream& output) {
    bool isFirst = true;
    for (const FiledStructure& structure : table.structures) {
        if (IsAskedFor(structure, request)) {
            output << (isFirst ? "" : "\n");
            PrintStructure(structure, style, output);
            isFirst = false;
        }
    }
    if (isFirst) {
        output << "The table holds no " << (request.types.empty() ? "" : "such ") << "structure.\n";
    }
}

}  // namespace

void ReportStructures(const Request& request, const OutputStyle& style, std::ostream& output) {
    const DecodedTable table = Manager::DecodeTable(Manager::ReadRawTable());
    if (request.json) {
        PrintAsJson(table, request, output);
    } else {
        PrintAsText(table, request, style, output);
    }
}

}  // namespace SMBIOS::Inspect
