#include "smbios-inspect/reports/departures_report.h"

#include <cstdint>
#include <ostream>
#include <span>
#include <vector>

#include "manager/decoded_table.h"
#include "manager/raw_table.h"
#include "smbios-inspect/departures/departures_json.h"
#include "smbios-inspect/departures/departures_text.h"
#include "smbios-inspect/departures/find_departures.h"
#include "smbios-inspect/output/json_writer.h"

namespace SMBIOS::Inspect {

using Manager::DecodedTable;

namespace {

void PrintAsJson(std::span<const std::uint8_t> rawTable, const DecodedTable& table, std::ostream& output) {
    JsonWriter json(output);
    json.BeginObject();
    json.Member("version", table.version.text);
    json.Name("departures");
    json.BeginArray();
    Departures::JsonPrinter printer(json);
    Departures::FindDepartures(rawTable, table, printer);
    json.EndArray();
    json.EndObject();
    json.EndLine();
}

void PrintAsText(std::span<const std::uint8_t> rawTable,
                 const DecodedTable& table,
                 const OutputStyle& style,
                 std::ostream& output) {
    Departures::TextPrinter printer(style, output);
    Departures::FindDepartures(rawTable, table, printer);
    printer.Finish();
}

}  // namespace

void ReportDepartures(const Request& request, const OutputStyle& style, std::ostream& output) {
    const std::vector<std::uint8_t> rawTable = Manager::ReadRawTable();
    const DecodedTable table = Manager::DecodeTable(rawTable);
    if (request.json) {
        PrintAsJson(rawTable, table, output);
    } else {
        PrintAsText(rawTable, table, style, output);
    }
}

}  // namespace SMBIOS::Inspect
