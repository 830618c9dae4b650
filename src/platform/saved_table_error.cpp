#include "platform/saved_table_error.h"

namespace SMBIOS::Platform {

namespace {

std::string NameOf(const std::filesystem::path& file) {
    const std::u8string name = file.u8string();
    return std::string(name.begin(), name.end());
}

}  // namespace

SavedTableError::SavedTableError(Problem problem, const std::string& message, std::error_code systemReason)
    : std::runtime_error(message), problem_(problem), systemReason_(systemReason) {}

SavedTableError SavedTableError::Unreadable(const std::filesystem::path& file, std::error_code reason) {
    return {Problem::unreadable, "cannot open " + NameOf(file) + ": " + reason.message(), reason};
}

SavedTableError SavedTableError::NotATable(const std::filesystem::path& file, std::string_view reason) {
    return {Problem::notATable, NameOf(file) + " is not an SMBIOS table: " + std::string(reason)};
}

SavedTableError SavedTableError::Truncated(const std::filesystem::path& file, std::string_view reason) {
    return {Problem::truncated, NameOf(file) + " is truncated: " + std::string(reason)};
}

}  // namespace SMBIOS::Platform
