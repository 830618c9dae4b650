#include "smbios-inspect/departures/departures_json.h"

#include "smbios-inspect/departures/library_fields.h"
#include "smbios-inspect/records/structure_heading.h"
#include "smbios-inspect/standard/firmware_json.h"

namespace SMBIOS::Inspect::Departures {

namespace {

/// A value that is none of the standard's fields has neither kind nor unit.
void WriteFirmware(const Departure& departure, JsonWriter& json) {
    json.Name("firmware");
    if (departure.standard == nullptr) {
        json.Null();
        return;
    }
    const Standard::FieldRow* row = departure.row;
    Standard::WriteValue({.name = departure.field,
                          .label = {},
                          .kind = row == nullptr ? Standard::ValueKind::text : row->form.kind,
                          .unit = row == nullptr ? std::string_view() : row->form.unit,
                          .place = {},
                          .offset = row == nullptr ? 0 : row->offset,
                          .width = row == nullptr ? 0 : row->width,
                          .value = *departure.standard},
                         json);
}

void WriteLibrary(const Departure& departure, JsonWriter& json) {
    constexpr const char* kName = "library";
    if (departure.decoder == nullptr) {
        json.Name(kName);
        json.Null();
    } else {
        WriteField(departure.key, *departure.decoder, departure.index, kName, json);
    }
}

}  // namespace

void JsonPrinter::Visit(const Departure& departure) {
    json_.BeginObject();
    json_.Member("type", departure.structure.Type());
    json_.Member("name", StructureName(departure.structure.Type()));
    json_.Member("handle", departure.structure.Handle());
    json_.Member("field", departure.field);
    WriteFirmware(departure, json_);
    WriteLibrary(departure, json_);
    json_.Member("reason", ReasonText(departure.reason));
    json_.EndObject();
}

}  // namespace SMBIOS::Inspect::Departures
