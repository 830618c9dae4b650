#pragma once

#include <iosfwd>
#include <nlohmann/json.hpp>

namespace SMBIOS::Inspect {

/// Keeps its members in the order they are added.
using Json = nlohmann::ordered_json;

/// Prints `json` indented, with a line end. Bytes of a text that are not UTF-8 become U+FFFD; control
/// characters are escaped, those from U+007F to U+009F too.
void PrintJson(const Json& json, std::ostream& output);

}  // namespace SMBIOS::Inspect
