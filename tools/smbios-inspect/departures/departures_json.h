#pragma once

#include "smbios-inspect/departures/departure.h"
#include "smbios-inspect/output/json_writer.h"

namespace SMBIOS::Inspect::Departures {

/// Writes departures as JSON, each an object: structure, field, what the firmware says as `firmware --json`
/// has it, what the library makes of it as `structures --json` has it, and why.
class JsonPrinter final : public DepartureVisitor {
public:
    explicit JsonPrinter(JsonWriter& json) noexcept : json_(json) {}

    void Visit(const Departure& departure) override;

private:
    JsonWriter& json_;
};

}  // namespace SMBIOS::Inspect::Departures
