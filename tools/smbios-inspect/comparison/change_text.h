#pragma once

#include <string>
#include <vector>

#include "smbios-inspect/comparison/comparison.h"
#include "smbios-inspect/comparison/field_changes.h"

namespace SMBIOS::Inspect::Comparing {

/// How a change reads: "Size", "8 GiB -> 16 GiB"; of a list what is gone and what has come, a line each.
struct ChangeText {
    std::string label;
    std::vector<std::string> lines;
};

/// How the changes of a structure read. What has no label for people tells what another field tells as well,
/// and is left out unless nothing else has changed. Texts of the firmware are as they are.
[[nodiscard]] std::vector<ChangeText> TextOf(const Comparison& comparison,
                                             const std::vector<FieldChange>& changes);

}  // namespace SMBIOS::Inspect::Comparing
