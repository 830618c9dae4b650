#include "manager/structure_walk.h"

#include <algorithm>

namespace SMBIOS::Manager {

namespace {

constexpr std::size_t kTypeAndLength = 2;

std::vector<std::string> SplitAtZeros(std::span<const std::uint8_t> bytes) {
    std::vector<std::string> strings;
    if (bytes.empty()) {
        return strings;
    }
    auto begin = bytes.begin();
    for (;;) {
        const auto end = std::find(begin, bytes.end(), std::uint8_t{0});
        strings.emplace_back(begin, end);
        if (end == bytes.end()) {
            return strings;
        }
        begin = end + 1;
    }
}

}  // namespace

std::optional<RawStructure> StructureWalk::Next() {
    if (rest_.size() < kTypeAndLength || rest_.size() < rest_[1]) {
        return std::nullopt;
    }
    const std::span<const std::uint8_t> formattedArea = rest_.first(rest_[1]);
    const std::size_t sizeBefore = rest_.size();

    RawStructure structure;
    structure.type = rest_[0];
    structure.formattedBytes.assign(formattedArea.begin(), formattedArea.end());
    rest_ = rest_.subspan(formattedArea.size());
    structure.strings = TakeStrings();

    if (rest_.size() == sizeBefore) {
        return std::nullopt;
    }
    return structure;
}

std::vector<std::string> StructureWalk::TakeStrings() {
    if (!mayHoldDoubleZero_) {
        return {};
    }
    const auto doubleZero = std::ranges::adjacent_find(
        rest_, [](std::uint8_t first, std::uint8_t second) { return first == 0 && second == 0; });
    if (doubleZero == rest_.end()) {
        mayHoldDoubleZero_ =
            false;  // searched once only, or a long table would be searched for every structure
        return {};
    }
    const auto length = static_cast<std::size_t>(doubleZero - rest_.begin());
    std::vector<std::string> strings = SplitAtZeros(rest_.first(length));
    rest_ = rest_.subspan(length + 2);
    return strings;
}

}  // namespace SMBIOS::Manager
