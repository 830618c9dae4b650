#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

namespace SMBIOS::Platform {

/// A saved table that could not be loaded. what() is one line for a person and names the file, in UTF-8.
class SavedTableError : public std::runtime_error {
public:
    enum class Problem { unreadable, notATable, truncated };

    static SavedTableError Unreadable(const std::filesystem::path& file, std::error_code reason);
    static SavedTableError NotATable(const std::filesystem::path& file, std::string_view reason);
    static SavedTableError Truncated(const std::filesystem::path& file, std::string_view reason);

    [[nodiscard]] Problem Kind() const noexcept { return problem_; }

    /// The operating system's reason why the file is unreadable; no error for the other problems.
    [[nodiscard]] std::error_code SystemReason() const noexcept { return systemReason_; }

private:
    SavedTableError(Problem problem, const std::string& message, std::error_code systemReason = {});

    Problem problem_;
    std::error_code systemReason_;
};

}  // namespace SMBIOS::Platform
