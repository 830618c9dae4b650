#pragma once

#include <string>
#include <vector>

#include "smbios-inspect/comparison/comparison.h"
#include "smbios-inspect/comparison/field_changes.h"
#include "smbios-inspect/output/field_block.h"

namespace SMBIOS::Inspect::Comparing {

/// How a change reads: "Size", "8 GiB -> 16 GiB"; of a list what is gone and what has come, a line each.
struct ChangeText {
    std::string label;
    Lines lines;
};

/// How the changes of a structure read. What has no label for people tells what another field tells as well,
/// and is left out unless nothing else has changed. Texts of the firmware are as they are.
[[nodiscard]] std::vector<ChangeText> TextOf(const Comparison& comparison,
                                             const std::vector<FieldChange>& changes);

}  // namespace SMBIOS::Inspect::Comparing
