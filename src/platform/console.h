#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace SMBIOS::Platform {

/// What a command line tool reads from and prints to. While it lives, the standard streams carry bytes as
/// they are and a Windows console takes them as UTF-8; then the console is as it was before. One per process.
class Console {
public:
    Console();
    Console(const Console&) = delete;
    Console& operator=(const Console&) = delete;
    ~Console();

    /// Number of columns of the terminal that standard output is; 0 when it is none, or does not tell.
    [[nodiscard]] std::size_t Columns() const noexcept;

    /// Whether standard output is a terminal that takes escape sequences.
    [[nodiscard]] bool TakesEscapeSequences() const noexcept { return takesEscapeSequences_; }

    /// Writes all of `text` to standard output. Returns the system's reason when that fails:
    /// std::errc::broken_pipe when the reader has gone.
    [[nodiscard]] std::error_code Write(std::string_view text) const noexcept;

private:
    struct Settings;
    std::unique_ptr<const Settings> former_;  ///< of the console, where they were changed
    bool takesEscapeSequences_ = false;
};

/// The arguments that `main` was given, without the program's name, in UTF-8 on every system. Throws
/// std::bad_alloc.
[[nodiscard]] std::vector<std::string> ProgramArguments(int argumentCount, char** arguments);

}  // namespace SMBIOS::Platform
