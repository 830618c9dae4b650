#pragma once

#include <nlohmann/json.hpp>
#include <string_view>
#include <vector>

namespace SMBIOS::Tests {

/// One instance: its properties in WMI's order, numbers as numbers.
using WmiInstance = nlohmann::ordered_json;

/// What this machine's WMI answers to a WQL query in root\cimv2. Throws std::runtime_error when it refuses
/// it.
[[nodiscard]] std::vector<WmiInstance> QueryWmi(std::string_view query);

}  // namespace SMBIOS::Tests
