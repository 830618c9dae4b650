#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/inspect/run_tool.h"

namespace SMBIOS::Tests {

/// A label and its value, or an item of the list below it.
using LabelledValue = std::pair<std::string, std::string>;

/// What one structure's block of text says.
struct PrintedStructure {
    int type = 0;
    std::vector<LabelledValue> values;
};

/// The blocks of a text whose lines "\tLabel: value" and "\t\titem" stand below headings; `typeIn` gives the
/// structure's type in a heading that begins one, and -1 for any other line.
inline std::vector<PrintedStructure> PrintedStructures(const std::string& text,
                                                       int (*typeIn)(const std::string& line)) {
    std::vector<PrintedStructure> structures;
    std::string label;
    for (const std::string& line : LinesOf(text)) {
        if (const int type = typeIn(line); type >= 0) {
            structures.push_back({type, {}});
        } else if (structures.empty()) {
            continue;
        } else if (line.starts_with("\t\t")) {
            structures.back().values.emplace_back(label, line.substr(2));
        } else if (const std::size_t colon = line.find(':');
                   line.starts_with('\t') && colon != std::string::npos) {
            label = line.substr(1, colon - 1);
            structures.back().values.emplace_back(label, line.substr(std::min(colon + 2, line.size())));
        }
    }
    return structures;
}

/// The type in "Type 17: Memory Device, handle 0x0050, 92 bytes".
inline int TypeInHeading(const std::string& line) {
    return line.starts_with("Type ") && line.find(", handle 0x") != std::string::npos
               ? std::stoi(line.substr(5))
               : -1;
}

}  // namespace SMBIOS::Tests
