#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "manager/decoded_table.h"
#include "samples/table_builder.h"
#include "smbios-inspect/departures/departures_json.h"
#include "smbios-inspect/departures/find_departures.h"
#include "tests/support/json.h"

namespace SMBIOS::Tests {

/// A departure as its JSON object, and the reason's identifier.
struct FoundDeparture {
    Json json;
    Inspect::Departures::ReasonId reason;

    [[nodiscard]] std::string Field() const { return json.at("field"); }
};

/// Keeps what it is handed.
class DepartureKeeper final : public Inspect::Departures::DepartureVisitor {
public:
    void Visit(const Inspect::Departures::Departure& departure) override {
        const std::string text = JsonText(
            [&](Inspect::JsonWriter& json) { Inspect::Departures::JsonPrinter(json).Visit(departure); });
        found.push_back({Json::parse(text), departure.reason});
    }

    std::vector<FoundDeparture> found;
};

inline std::vector<FoundDeparture> DeparturesOf(const std::vector<std::uint8_t>& rawTable) {
    DepartureKeeper keeper;
    Inspect::Departures::FindDepartures(rawTable, Manager::DecodeTable(rawTable), keeper);
    return keeper.found;
}

/// The fields that depart, one behind the other.
inline std::string FieldsOf(const std::vector<FoundDeparture>& departures) {
    std::string fields;
    for (const FoundDeparture& departure : departures) {
        fields += (fields.empty() ? "" : " ") + departure.Field();
    }
    return fields;
}

}  // namespace SMBIOS::Tests
