#include "smbios-inspect/output/field_texts.h"

#include <algorithm>
#include <utility>

namespace SMBIOS::Inspect {

bool FieldTexts::Mark(std::string_view label) noexcept {
    const auto line =
        std::ranges::find_if(lines_, [&](const Line& each) { return each.isFirst && each.label == label; });
    return line != lines_.end() && !std::exchange(line->isMarked, true);
}

}  // namespace SMBIOS::Inspect
