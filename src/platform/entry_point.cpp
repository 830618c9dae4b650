#include "platform/entry_point.h"

#include <algorithm>
#include <numeric>
#include <string_view>

#include "platform/raw_table_header.h"

namespace SMBIOS::Platform {

namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::string_view kAnchor32 = "_SM_";
constexpr std::string_view kIntermediateAnchor = "_DMI_";
constexpr std::string_view kAnchor64 = "_SM3_";

constexpr std::size_t kSize32 = 0x1F;
constexpr std::size_t kMistakenSize32 = 0x1E;
constexpr std::size_t kSize64 = 0x18;
constexpr std::size_t kIntermediateOffset = 0x10;
constexpr std::size_t kIntermediateSize = 15;

bool StartsWith(Bytes bytes, std::string_view anchor) noexcept {
    return bytes.size() >= anchor.size() && std::equal(anchor.begin(), anchor.end(), bytes.begin());
}

bool SumsToZero(Bytes bytes) noexcept {
    return std::accumulate(bytes.begin(), bytes.end(), 0U) % 0x100U == 0;
}

std::uint64_t ReadLittleEndian(Bytes bytes, std::size_t offset, std::size_t size) noexcept {
    std::uint64_t value = 0;
    for (std::size_t index = size; index > 0; --index) {
        value = value << 8 | bytes[offset + index - 1];
    }
    return value;
}

std::uint32_t ReadWord(Bytes bytes, std::size_t offset) noexcept {
    return static_cast<std::uint32_t>(ReadLittleEndian(bytes, offset, 2));
}

std::uint32_t ReadDword(Bytes bytes, std::size_t offset) noexcept {
    return static_cast<std::uint32_t>(ReadLittleEndian(bytes, offset, 4));
}

std::uint64_t ReadQword(Bytes bytes, std::size_t offset) noexcept {
    return ReadLittleEndian(bytes, offset, 8);
}

/// The entry point's own bytes, when they are all there and sum up; otherwise none.
Bytes Verified(Bytes bytes, std::size_t statedSize, std::size_t leastSize) noexcept {
    if (statedSize < leastSize || statedSize > bytes.size() || !SumsToZero(bytes.first(statedSize))) {
        return {};
    }
    return bytes.first(statedSize);
}

std::size_t StatedSize32(Bytes bytes) noexcept {
    // Firmware of the 2.1 era states one byte less than the entry point has.
    return bytes[0x05] == kMistakenSize32 ? kSize32 : bytes[0x05];
}

std::optional<EntryPoint> Parse32(Bytes bytes) noexcept {
    if (bytes.size() < kSize32) {
        return std::nullopt;
    }
    const Bytes own = Verified(bytes, StatedSize32(bytes), kSize32);
    if (own.empty()) {
        return std::nullopt;
    }
    const Bytes intermediate = own.subspan(kIntermediateOffset, kIntermediateSize);
    if (!StartsWith(intermediate, kIntermediateAnchor) || !SumsToZero(intermediate)) {
        return std::nullopt;
    }
    EntryPoint result;
    result.size = own.size();
    result.majorVersion = own[0x06];
    result.minorVersion = own[0x07];
    result.tableLength = ReadWord(own, 0x16);
    result.tableAddress = ReadDword(own, 0x18);
    return result;
}

std::optional<EntryPoint> Parse64(Bytes bytes) noexcept {
    if (bytes.size() < kSize64) {
        return std::nullopt;
    }
    const Bytes own = Verified(bytes, bytes[0x06], kSize64);
    if (own.empty()) {
        return std::nullopt;
    }
    EntryPoint result;
    result.size = own.size();
    result.majorVersion = own[0x07];
    result.minorVersion = own[0x08];
    result.revision = own[0x09];
    result.tableLength = ReadDword(own, 0x0C);
    result.tableAddress = ReadQword(own, 0x10);
    result.lengthIsMaximum = true;
    return result;
}

}  // namespace

bool StartsWithEntryPointAnchor(Bytes bytes) noexcept {
    return StartsWith(bytes, kAnchor32) || StartsWith(bytes, kAnchor64);
}

std::optional<EntryPoint> ParseEntryPoint(Bytes bytes) noexcept {
    if (StartsWith(bytes, kAnchor32)) {
        return Parse32(bytes);
    }
    if (StartsWith(bytes, kAnchor64)) {
        return Parse64(bytes);
    }
    return std::nullopt;
}

std::optional<std::vector<std::uint8_t>> AssembleRawTable(const EntryPoint& entryPoint, Bytes bytes) {
    const Bytes table = bytes.first(std::min<std::size_t>(bytes.size(), entryPoint.tableLength));
    const bool truncated = !entryPoint.lengthIsMaximum && table.size() < entryPoint.tableLength;
    if (table.empty() || truncated) {
        return std::nullopt;
    }
    std::vector<std::uint8_t> raw;
    raw.reserve(RawTableHeader::kSize + table.size());
    const RawTableHeader header = {entryPoint.majorVersion, entryPoint.minorVersion, entryPoint.revision};
    const auto headerBytes = header.Bytes(static_cast<std::uint32_t>(table.size()));
    raw.assign(headerBytes.begin(), headerBytes.end());
    raw.insert(raw.end(), table.begin(), table.end());
    return raw;
}

}  // namespace SMBIOS::Platform
