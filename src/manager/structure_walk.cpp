#include "manager/structure_walk.h"

#include <algorithm>
#include <string_view>

namespace SMBIOS::Manager {

namespace {

constexpr std::size_t kTypeAndLength = 2;

std::string_view AsText(std::span<const std::uint8_t> bytes) noexcept {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

/// Where two zeros stand next to each other for the first time; npos where they never do.
std::size_t FindDoubleZero(std::string_view bytes) noexcept {
    std::size_t zero = bytes.find('\0');
    while (zero != std::string_view::npos && zero + 1 < bytes.size() && bytes[zero + 1] != '\0') {
        zero = bytes.find('\0', zero + 2);
    }
    return zero + 1 < bytes.size() ? zero : std::string_view::npos;
}

}  // namespace

void RawStructure::Assign(const StructureView& structure) {
    type = structure.type;
    formattedBytes.assign(structure.formattedArea.begin(), structure.formattedArea.end());
    const std::string_view texts = AsText(structure.stringSet);
    std::size_t count = 0;
    for (std::size_t begin = 0; begin <= texts.size() && !texts.empty(); ++count) {
        const std::size_t end = std::min(texts.find('\0', begin), texts.size());
        if (count == strings.size()) {
            strings.emplace_back();
        }
        strings[count].assign(texts, begin, end - begin);
        begin = end + 1;
    }
    strings.resize(count);
}

std::optional<StructureView> StructureWalk::Next() noexcept {
    if (rest_.size() < kTypeAndLength || rest_.size() < rest_[1]) {
        return std::nullopt;
    }
    const std::size_t sizeBefore = rest_.size();
    StructureView structure{.type = rest_[0], .formattedArea = rest_.first(rest_[1]), .stringSet = {}};
    rest_ = rest_.subspan(structure.formattedArea.size());
    structure.stringSet = TakeStringSet();

    if (rest_.size() == sizeBefore) {
        return std::nullopt;
    }
    return structure;
}

std::span<const std::uint8_t> StructureWalk::TakeStringSet() noexcept {
    if (!mayHoldDoubleZero_) {
        return {};
    }
    const std::size_t length = FindDoubleZero(AsText(rest_));
    if (length == std::string_view::npos) {
        mayHoldDoubleZero_ =
            false;  // searched once only, or a long table would be searched for every structure
        return {};
    }
    const auto stringSet = rest_.first(length);
    rest_ = rest_.subspan(length + 2);
    return stringSet;
}

}  // namespace SMBIOS::Manager
