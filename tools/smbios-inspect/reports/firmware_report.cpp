#include "smbios-inspect/reports/firmware_report.h"

#include <ostream>
#include <vector>

#include "manager/raw_table.h"
#include "smbios-inspect/output/json_writer.h"
#include "smbios-inspect/standard/firmware_json.h"
#include "smbios-inspect/standard/firmware_text.h"
#include "smbios-inspect/standard/structure.h"

namespace SMBIOS::Inspect {

using Standard::Structure;
using Standard::TableWalk;

namespace {

bool IsAskedFor(const Structure& structure, const Request& request) {
    return (request.types.empty() || request.types.contains(structure.Type())) &&
           (request.handles.empty() || request.handles.contains(structure.Handle())) &&
           (!request.quiet || Standard::HasValues(structure));
}

Standard::Detail DetailOf(const Request& request) noexcept {
    if (request.quiet) {
        return Standard::Detail::values;
    }
    return request.bytes ? Standard::Detail::bytes : Standard::Detail::fields;
}

void PrintAsJson(TableWalk walk, const Request& request, std::ostream& output) {
    JsonWriter json(output);
    json.BeginObject();
    json.Member("version", Standard::VersionText(walk.Version()));
    json.Name("structures");
    json.BeginArray();
    while (const auto structure = walk.Next()) {
        if (IsAskedFor(*structure, request)) {
            Standard::WriteStructure(*structure, request.quiet, json);
        }
    }
    json.EndArray();
    json.EndObject();
    json.EndLine();
}

void PrintAsText(TableWalk walk, const Request& request, const OutputStyle& style, std::ostream& output) {
    bool isFirst = true;
    while (const auto structure = walk.Next()) {
        if (IsAskedFor(*structure, request)) {
            output << (isFirst ? "" : "\n");
            Standard::PrintStructure(*structure, DetailOf(request), style, output);
            isFirst = false;
        }
    }
    if (isFirst) {
        const bool isSelection = request.quiet || !request.types.empty() || !request.handles.empty();
        output << "The table holds no " << (isSelection ? "such " : "") << "structure.\n";
    }
}

}  // namespace

void ReportFirmware(const Request& request, const OutputStyle& style, std::ostream& output) {
    const std::vector<std::uint8_t> rawTable = Manager::ReadRawTable();
    if (request.json) {
        PrintAsJson(TableWalk(rawTable), request, output);
    } else {
        PrintAsText(TableWalk(rawTable), request, style, output);
    }
}

}  // namespace SMBIOS::Inspect
