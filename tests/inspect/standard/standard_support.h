#pragma once

#include <cstdint>
#include <sstream>
#include <string>
#include <vector>

#include "samples/table_builder.h"
#include "smbios-inspect/standard/firmware_json.h"
#include "smbios-inspect/standard/firmware_text.h"
#include "smbios-inspect/standard/structure.h"
#include "tests/support/json.h"

namespace SMBIOS::Tests {

using Samples::StructureBuilder;
using Samples::TableBuilder;

/// The text of every structure of a raw table.
inline std::string FirmwareText(const std::vector<std::uint8_t>& rawTable, bool isQuiet = false) {
    using Inspect::Standard::Detail;
    std::ostringstream output;
    Inspect::Standard::TableWalk walk(rawTable);
    while (const auto structure = walk.Next()) {
        Inspect::Standard::PrintStructure(*structure, isQuiet ? Detail::values : Detail::fields, {}, output);
    }
    return output.str();
}

/// The JSON of every structure of a raw table.
inline std::string FirmwareJsonText(const std::vector<std::uint8_t>& rawTable, bool isQuiet = false) {
    return JsonText([&](Inspect::JsonWriter& json) {
        json.BeginArray();
        Inspect::Standard::TableWalk walk(rawTable);
        while (const auto structure = walk.Next()) {
            Inspect::Standard::WriteStructure(*structure, isQuiet, json);
        }
        json.EndArray();
    });
}

/// Likewise, read back.
inline Json FirmwareJson(const std::vector<std::uint8_t>& rawTable, bool isQuiet = false) {
    return Json::parse(FirmwareJsonText(rawTable, isQuiet));
}

/// A table of version 3.8 with this structure alone.
inline std::vector<std::uint8_t> TableOf(const StructureBuilder& structure) {
    return TableBuilder(3, 8, 0).Add(structure).RawTable();
}

}  // namespace SMBIOS::Tests
