#include "smbios-inspect/reports/structures_report.h"

#include <ostream>

#include "manager/decoded_table.h"
#include "manager/raw_table.h"
#include "smbios-inspect/output/json_writer.h"
#include "smbios-inspect/records/filed_structure.h"

namespace SMBIOS::Inspect {

using Manager::DecodedTable;

namespace {

bool IsAskedFor(const FiledStructure& structure, const Request& request) {
    return request.types.empty() || request.types.contains(TypeOf(structure));
}

void PrintAsJson(const DecodedTable& table, const Request& request, std::ostream& output) {
    JsonWriter json(output);
    json.BeginObject();
    json.Member("version", table.version.text);
    json.Member("versionIndex", static_cast<int>(table.version.index));
    json.Name("structures");
    json.BeginArray();
    for (const FiledStructure& structure : table.structures) {
        if (IsAskedFor(structure, request)) {
            WriteStructure(structure, json);
        }
    }
    json.EndArray();
    json.EndObject();
    json.EndLine();
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
