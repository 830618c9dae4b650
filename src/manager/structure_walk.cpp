#include "manager/structure_walk.h"

#include <algorithm>
#include <string_view>

namespace SMBIOS::Manager {

namespace {

constexpr std::size_t kTypeAndLength = 2;

std::string_view AsText(std::span<const std::uint8_t> bytes) noexcept {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

struct DoubleZero {
    std::size_t place;  ///< npos where there is none
    std::uint32_t zerosBefore;
};

/// Where two zeros stand next to each other for the first time.
DoubleZero FindDoubleZero(std::string_view bytes) noexcept {
    std::uint32_t zerosBefore = 0;
    std::size_t zero = bytes.find('\0');
    while (zero != std::string_view::npos && zero + 1 < bytes.size() && bytes[zero + 1] != '\0') {
        zero = bytes.find('\0', zero + 2);
        ++zerosBefore;
    }
    return {zero + 1 < bytes.size() ? zero : std::string_view::npos, zerosBefore};
}

std::vector<std::string> StringsOf(const StructureView& structure) {
    std::vector<std::string> strings;
    strings.reserve(structure.stringCount);
    std::string_view rest = AsText(structure.stringSet);
    for (std::uint32_t i = 0; i < structure.stringCount; ++i) {
        const std::size_t length = std::min(rest.find('\0'), rest.size());
        strings.emplace_back(rest.substr(0, length));
        rest.remove_prefix(std::min(length + 1, rest.size()));
    }
    return strings;
}

}  // namespace

RawStructure RawStructure::Of(const StructureView& structure) {
    return {
        .type = structure.type,
        .formattedBytes = {structure.formattedArea.begin(), structure.formattedArea.end()},
        .strings = StringsOf(structure),
    };
}

std::optional<StructureView> StructureWalk::Next() noexcept {
    if (rest_.size() < kTypeAndLength || rest_.size() < rest_[1]) {
        return std::nullopt;
    }
    const std::size_t sizeBefore = rest_.size();
    StructureView structure;
    structure.type = rest_[0];
    structure.formattedArea = rest_.first(rest_[1]);
    rest_ = rest_.subspan(structure.formattedArea.size());
    TakeStringSet(structure);

    if (rest_.size() == sizeBefore) {
        return std::nullopt;
    }
    return structure;
}

void StructureWalk::TakeStringSet(StructureView& structure) noexcept {
    if (!mayHoldDoubleZero_) {
        return;
    }
    const auto [length, zerosBefore] = FindDoubleZero(AsText(rest_));
    if (length == std::string_view::npos) {
        mayHoldDoubleZero_ =
            false;  // searched once only, or a long table would be searched for every structure
        return;
    }
    structure.stringSet = rest_.first(length);
    structure.stringCount = length == 0 ? 0 : zerosBefore + 1;
    rest_ = rest_.subspan(length + 2);
}

}  // namespace SMBIOS::Manager
