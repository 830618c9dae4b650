#pragma once

#include <nlohmann/json.hpp>
#include <sstream>
#include <string>

#include "smbios-inspect/output/json_writer.h"

namespace SMBIOS::Tests {

/// Keeps its members in the order in which they were written.
using Json = nlohmann::ordered_json;

/// What `write` tells a writer to write: one value.
template <class Write>
[[nodiscard]] std::string JsonText(Write write) {
    std::ostringstream output;
    Inspect::JsonWriter json(output);
    write(json);
    json.EndLine();
    return output.str();
}

}  // namespace SMBIOS::Tests
