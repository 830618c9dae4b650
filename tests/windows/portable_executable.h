#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "tests/windows/windows_headers.h"

namespace SMBIOS::Tests {

/// A 64-bit program or library laid out in memory as the system's loader does it. The bytes stay the
/// caller's.
class ImageView {
public:
    explicit ImageView(const std::byte* base) noexcept : base_(base) {}

    [[nodiscard]] const IMAGE_NT_HEADERS64& Headers() const noexcept;

    /// File names of the libraries it needs.
    [[nodiscard]] std::vector<std::string> ImportedLibraries() const;

    /// The names it offers.
    [[nodiscard]] std::vector<std::string> ExportedNames() const;

    /// The place in its import table through which it calls `function`; nullptr when it does not.
    [[nodiscard]] const ULONGLONG* ImportSlot(std::string_view function) const noexcept;

private:
    template <class Record>
    [[nodiscard]] const Record* At(DWORD offset) const noexcept {
        return reinterpret_cast<const Record*>(base_ + offset);
    }
    [[nodiscard]] DWORD DirectoryOffset(unsigned directory) const noexcept;
    [[nodiscard]] const ULONGLONG* ImportSlot(const IMAGE_IMPORT_DESCRIPTOR& library,
                                              std::string_view function) const noexcept;

    const std::byte* base_;
};

/// Reads a file and lays it out for an `ImageView`. Throws std::runtime_error for what is not a 64-bit
/// program or library.
[[nodiscard]] std::vector<std::byte> LayOutImage(const std::filesystem::path& file);

}  // namespace SMBIOS::Tests
