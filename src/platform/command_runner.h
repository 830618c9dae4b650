#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace SMBIOS::Platform {

/// What a program prints on its standard output while it runs.
class ProgramOutput {
public:
    ProgramOutput(const ProgramOutput&) = delete;
    ProgramOutput& operator=(const ProgramOutput&) = delete;

    /// Waits for the program's end. One whose output was not read to its end is ended, where the system lets
    /// a program be ended, and otherwise finds its output closed.
    virtual ~ProgramOutput() = default;

    /// The next piece of the output, possibly empty and valid until the next call; none at the end.
    [[nodiscard]] virtual std::optional<std::string_view> NextPiece() = 0;

protected:
    ProgramOutput() = default;
};

/// Starts programs and reads what they print: the machine's way of doing so, or one that a test supplies.
class CommandRunner {
public:
    /// Starts the program of `commandLine`, written as the Windows C runtime splits one. Returns nullptr when
    /// it cannot be started. Throws only std::bad_alloc and std::length_error.
    [[nodiscard]] virtual std::unique_ptr<ProgramOutput> Start(const std::string& commandLine) = 0;

    /// Runs `commandLine` and waits for its end. Returns false, leaving `output` untouched, when the program
    /// cannot be started; otherwise `output` becomes everything the program printed on its standard output.
    /// The exit status is not looked at. Throws only std::bad_alloc and std::length_error; the program is
    /// ended and waited for even then.
    bool Run(const std::string& commandLine, std::string& output);

protected:
    ~CommandRunner() = default;  // nobody owns one through this class
};

/// Runs programs on the machine this process runs on.
[[nodiscard]] CommandRunner& MachineCommandRunner() noexcept;

/// The runner in use: the machine's unless another one was put in its place.
[[nodiscard]] CommandRunner& ActiveCommandRunner() noexcept;

/// Puts `runner` in place of the machine's; the caller keeps it alive. nullptr restores the machine's.
/// Not synchronised: call it before the first load.
void UseCommandRunner(CommandRunner* runner) noexcept;

}  // namespace SMBIOS::Platform
