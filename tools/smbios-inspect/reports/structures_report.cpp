#include "smbios-inspect/reports/structures_report.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <ostream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "manager/decoded_table.h"
#include "manager/raw_table.h"
#include "manager/structure_factory.h"
#include "smbios-inspect/departures/mark_finder.h"
#include "smbios-inspect/output/json_writer.h"
#include "smbios-inspect/output/text_layout.h"
#include "smbios-inspect/records/decode_each.h"
#include "smbios-inspect/records/filed_structure.h"
#include "smbios-inspect/reports/from_option.h"

namespace SMBIOS::Inspect {

using Departures::MarkFinder;
using Manager::Types::StructureTypes;
using Structures::StructureFactory;

namespace {

bool IsAskedFor(const FiledStructure& structure, const Request& request) {
    return request.types.empty() || request.types.contains(TypeOf(structure));
}

/// Whether structures of a type that is asked for are filed under this key.
bool MayBeAskedFor(StructureTypes key, const Request& request) {
    return request.types.empty() || std::ranges::any_of(request.types, [key](std::uint8_t type) {
               return StructureFactory::KeyOf(StructureTypes{type}) == key;
           });
}

/// Hands each structure to `visit`, one decoded at a time; those that are not asked for may be passed over.
template <class Visitor>
void VisitStructures(std::span<const std::uint8_t> rawTable, const Request& request, Visitor visit) {
    DecodeEach(
        rawTable, [&](StructureTypes key) { return MayBeAskedFor(key, request); }, visit);
}

void PrintAsJson(std::span<const std::uint8_t> rawTable, const Request& request, std::ostream& output) {
    const auto version = Manager::TableVersion::Of(rawTable, Manager::SmbiosVersionIndex::v2_0_0);
    JsonWriter json(output);
    json.BeginObject();
    json.Member("version", version.text);
    json.Member("versionIndex", static_cast<int>(version.index));
    json.Name("structures");
    json.BeginArray();
    VisitStructures(rawTable, request, [&](const FiledStructure& structure) {
        if (IsAskedFor(structure, request)) {
            WriteStructure(structure, json);
        }
    });
    json.EndArray();
    json.EndObject();
    json.EndLine();
}

/// What the lines of the structures leave to `departures`.
struct DepartureCount {
    std::size_t marked = 0;   ///< lines
    std::size_t missing = 0;  ///< values without a line
};

void PrintDepartureNote(const DepartureCount& count,
                        const Request& request,
                        const OutputStyle& style,
                        std::ostream& output) {
    if (count.marked == 0 && count.missing == 0) {
        return;
    }
    std::string note;
    if (count.marked != 0) {
        note = "Values with a * are not what the SMBIOS standard makes of them";
    }
    if (count.missing != 0) {
        note += (note.empty() ? "" : "; ") + std::to_string(count.missing) +
                (count.missing == 1 ? " value" : " values") + " that the SMBIOS standard has " +
                (count.missing == 1 ? "is" : "are") + " missing here";
    }
    output << '\n';
    PrintSentence(note + ". See both with: smbios-inspect departures" + FromOption(request), style, output);
}

void PrintAsText(std::span<const std::uint8_t> rawTable,
                 const Request& request,
                 const OutputStyle& style,
                 std::ostream& output) {
    MarkFinder finder(rawTable);
    StructurePrinter printer(style, output);
    bool isFirst = true;
    DepartureCount count;
    VisitStructures(rawTable, request, [&](const FiledStructure& structure) {
        const std::span<const std::string_view> marks = finder.MarksOf(structure);
        if (IsAskedFor(structure, request)) {
            output << (isFirst ? "" : "\n");
            const std::size_t marked = printer.Print(structure, marks);
            count.marked += marked;
            count.missing += marks.size() - marked;
            isFirst = false;
        }
    });
    if (isFirst) {
        output << "The table holds no " << (request.types.empty() ? "" : "such ") << "structure.\n";
    }
    PrintDepartureNote(count, request, style, output);
}

}  // namespace

void ReportStructures(const Request& request, const OutputStyle& style, std::ostream& output) {
    const std::vector<std::uint8_t> rawTable = Manager::ReadRawTable();
    if (request.json) {
        PrintAsJson(rawTable, request, output);
    } else {
        PrintAsText(rawTable, request, style, output);
    }
}

}  // namespace SMBIOS::Inspect
