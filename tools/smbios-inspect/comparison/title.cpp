#include "smbios-inspect/comparison/title.h"

#include <algorithm>

#include "smbios-inspect/output/text_layout.h"
#include "smbios-inspect/records/structure_heading.h"
#include "smbios-inspect/standard/forms.h"
#include "smbios-inspect/standard/words_types.h"

namespace SMBIOS::Inspect::Comparing {

namespace {

/// What other structures call the type: shorter than its name in the standard.
std::string TypeTitle(std::uint8_t type) {
    constexpr std::uint8_t kFirstOem = 0x80;
    const std::string number = std::to_string(type);
    if (type >= kFirstOem) {
        return "OEM-specific type " + number;
    }
    const std::string_view words =
        Standard::WordList(Standard::kTypeWords).Find(type).value_or(StructureName(type));
    return words.empty() ? "Type " + number : std::string(words);
}

std::string HandleText(const Side& side, Index index) {
    constexpr std::size_t kDigits = 4;
    return Standard::HexText(side.table.HandleOf(index), kDigits);
}

bool SharesItsName(const Side& side, Index index) {
    return side.sharedNames.contains(side.keys[index].name);
}

}  // namespace

std::string NameText(const ComparedTable& table, Index index, std::size_t limit) {
    const NameParts name = table.NameOf(index, limit);
    std::string text;
    for (const std::string_view part : name.texts) {
        const std::string_view words = WithoutPadding(part);
        text.append(text.empty() || words.empty() ? "" : ", ").append(words);
    }
    if (name.cacheLevel != 0) {
        text.append(text.empty() ? "L" : " L") += std::to_string(name.cacheLevel);
    }
    return text;
}

std::string Title(std::uint8_t type, std::string_view name) {
    return TypeTitle(type).append(name.empty() ? "" : " ").append(name);
}

std::string TitleOf(const Side& side, Index index) {
    const std::string title = Title(side.table.TypeOf(index), NameText(side.table, index));
    return SharesItsName(side, index) ? title + ", handle " + HandleText(side, index) : title;
}

std::string NameOfPair(const Comparison& comparison, Index before, Index after) {
    const bool isSame = comparison.Before().keys[before].name == comparison.After().keys[after].name;
    return isSame ? NameText(comparison.Before().table, before) : std::string();
}

std::string TitleOfPair(const Comparison& comparison, Index before, Index after) {
    const Side& side = comparison.Before();
    const Side& other = comparison.After();
    const std::string name = NameOfPair(comparison, before, after);
    std::string title = Title(side.table.TypeOf(before), name);
    const bool isRenamed = side.keys[before].name != other.keys[after].name;
    if (isRenamed || SharesItsName(side, before) || SharesItsName(other, after)) {
        const std::string handle = HandleText(side, before);
        const std::string otherHandle = HandleText(other, after);
        title += ", handle " + handle + (handle == otherHandle ? "" : " -> " + otherHandle);
    }
    return title;
}

}  // namespace SMBIOS::Inspect::Comparing
