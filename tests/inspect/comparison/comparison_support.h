#pragma once

#include <cstdint>
#include <sstream>
#include <string>
#include <vector>

#include "samples/table_builder.h"
#include "smbios-inspect/reports/diff_report.h"
#include "tests/inspect/run_tool.h"
#include "tests/support/editable_table.h"
#include "tests/support/json.h"

namespace SMBIOS::Tests {

using Samples::StructureBuilder;
using Samples::TableBuilder;
using RawTable = std::vector<std::uint8_t>;

/// What `diff` prints of two raw tables.
inline std::string DiffText(const RawTable& before,
                            const RawTable& after,
                            const Inspect::OutputStyle& style = {}) {
    std::ostringstream output;
    Inspect::ReportDiff(before, after, {}, style, output);
    return output.str();
}

inline Json DiffJson(const RawTable& before, const RawTable& after) {
    std::ostringstream output;
    Inspect::ReportDiff(before, after, {.json = true}, {}, output);
    return Json::parse(output.str());
}

/// Whether they differ; whatever is printed in the end must not depend on that it is printed.
inline bool AreDifferent(const RawTable& before, const RawTable& after) {
    std::ostringstream output;
    return Inspect::ReportDiff(before, after, {.quiet = true}, {}, output);
}

/// A table of version 3.8 with these structures.
inline RawTable TableWith(const std::vector<StructureBuilder>& structures) {
    TableBuilder table(3, 8, 0);
    for (const StructureBuilder& structure : structures) {
        table.Add(structure);
    }
    return table.RawTable();
}

inline RawTable TableIn(const std::string& file) {
    const std::string contents = ContentsOf(file);
    return RawTable(contents.begin(), contents.end());
}

}  // namespace SMBIOS::Tests
