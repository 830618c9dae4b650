#include "smbios-inspect/standard/structure.h"

#include <algorithm>
#include <cstddef>

#include "platform/raw_table_header.h"

namespace SMBIOS::Inspect::Standard {

namespace {

constexpr std::size_t kHeaderSize = 4;
constexpr std::size_t kUsualStrings = 4;

std::string_view AsText(std::span<const std::uint8_t> bytes) noexcept {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

bool IsPadding(std::span<const std::uint8_t> bytes) noexcept {
    return std::ranges::all_of(bytes, [](std::uint8_t byte) { return byte == 0; });
}

}  // namespace

std::string VersionText(TableVersion version) {
    return std::to_string(version.major) + "." + std::to_string(version.minor) + "." +
           std::to_string(version.revision);
}

TableWalk::TableWalk(std::span<const std::uint8_t> rawTable) noexcept {
    if (rawTable.size() >= Platform::RawTableHeader::kSize) {
        const auto header = Platform::RawTableHeader::Of(rawTable);
        version_ = {header.majorVersion, header.minorVersion, header.revision};
        rest_ = Platform::RawTableHeader::StructuresOf(rawTable);
    }
}

std::optional<Structure> TableWalk::Next() {
    const std::size_t length = rest_.size() < 2 ? 0 : rest_[1];
    if (rest_.empty() || (length == 0 && IsPadding(rest_))) {
        return std::nullopt;
    }
    Structure structure;
    structure.version = version_;
    if (length < kHeaderSize || length > rest_.size()) {
        structure.bytes = rest_.first(std::min(rest_.size(), std::max(length, kHeaderSize)));
        structure.defect = length < kHeaderSize
                               ? "its length is less than that of a header; nothing behind it can be read"
                               : "the table ends before it does";
        rest_ = {};
        return structure;
    }
    structure.bytes = rest_.first(length);
    rest_ = rest_.subspan(length);
    TakeStrings(structure);
    return structure;
}

/// A string set ends with an empty string; one without strings is two zeros.
void TableWalk::TakeStrings(Structure& structure) {
    if (rest_.size() >= 2 && rest_[0] == 0 && rest_[1] == 0) {
        rest_ = rest_.subspan(2);
        return;
    }
    structure.strings.reserve(kUsualStrings);
    while (!rest_.empty() && rest_.front() != 0) {
        const auto end = static_cast<std::size_t>(std::ranges::find(rest_, std::uint8_t{0}) - rest_.begin());
        structure.strings.push_back(AsText(rest_.first(end)));
        rest_ = rest_.subspan(std::min(end + 1, rest_.size()));
    }
    if (rest_.empty()) {
        structure.defect = "the table ends before its strings do";
        return;
    }
    rest_ = rest_.subspan(1);
}

}  // namespace SMBIOS::Inspect::Standard
