#include "platform/saved_table.h"

#include <array>
#include <cerrno>
#include <optional>
#include <span>
#include <system_error>
#include <utility>

#include "platform/dmi_tables.h"
#include "platform/entry_point.h"
#include "platform/file_bytes.h"
#include "platform/raw_table_header.h"

namespace SMBIOS::Platform {

namespace {

bool AddressLiesBehind(const EntryPoint& entryPoint, std::size_t fileSize) noexcept {
    return entryPoint.tableAddress >= entryPoint.size && entryPoint.tableAddress <= fileSize;
}

std::vector<std::uint8_t> FollowEntryPoint(const std::filesystem::path& file,
                                           std::span<const std::uint8_t> bytes) {
    const std::optional<EntryPoint> entryPoint = ParseEntryPoint(bytes);
    if (!entryPoint) {
        throw SavedTableError::NotATable(file, "its entry point is damaged");
    }
    if (!AddressLiesBehind(*entryPoint, bytes.size())) {
        throw SavedTableError::NotATable(file, "its entry point gives an address that is not in the file");
    }
    const auto offset = static_cast<std::size_t>(entryPoint->tableAddress);
    std::optional<std::vector<std::uint8_t>> raw = AssembleRawTable(*entryPoint, bytes.subspan(offset));
    if (!raw) {
        throw SavedTableError::Truncated(file, "its table is shorter than its entry point states");
    }
    return std::move(*raw);
}

FileBytes ReadStream(std::FILE* stream) {
    FileBytes result;
    std::array<std::uint8_t, 16384> piece;
    errno = 0;
    while (const std::size_t size = std::fread(piece.data(), 1, piece.size(), stream)) {
        result.bytes.insert(result.bytes.end(), piece.data(), piece.data() + size);
        if (result.bytes.size() > kLargestFile) {
            result.error = std::make_error_code(std::errc::file_too_large);
            return result;
        }
    }
    if (std::ferror(stream) != 0) {
        const bool hasReason = errno != 0;
        result.error = hasReason ? std::error_code(errno, std::generic_category())
                                 : std::make_error_code(std::errc::io_error);
    }
    return result;
}

std::vector<std::uint8_t> LoadFile(FileBytes contents, const std::filesystem::path& file) {
    if (contents.error == std::errc::file_too_large) {
        throw SavedTableError::NotATable(file, "it is larger than 16 MiB, which no firmware's table is");
    }
    if (contents.error) {
        throw SavedTableError::Unreadable(file, contents.error);
    }
    if (contents.bytes.empty()) {
        throw SavedTableError::NotATable(file, "it is empty");
    }
    if (StartsWithEntryPointAnchor(contents.bytes)) {
        return FollowEntryPoint(file, contents.bytes);
    }
    if (contents.bytes.size() <= RawTableHeader::kSize) {
        throw SavedTableError::Truncated(file, "nothing follows its 8-byte header");
    }
    return std::move(contents.bytes);
}

}  // namespace

std::vector<std::uint8_t> LoadSavedTable(const std::filesystem::path& path) {
    std::error_code ignored;
    return std::filesystem::is_directory(path, ignored) ? DmiTablesDirectory(path).Read()
                                                        : LoadFile(ReadFileBytes(path), path);
}

std::vector<std::uint8_t> LoadSavedTable(std::FILE* stream, const std::filesystem::path& name) {
    return LoadFile(ReadStream(stream), name);
}

}  // namespace SMBIOS::Platform
