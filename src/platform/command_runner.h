#pragma once

#include <string>

namespace SMBIOS::Platform {

/// Starts a program and reads what it prints: the machine's way of doing so, or one that a test supplies.
class CommandRunner {
public:
    /// Runs `commandLine`, written as the Windows C runtime splits one, and waits for its end. Returns false,
    /// leaving `output` untouched, when the program cannot be started; otherwise `output` becomes everything
    /// the program printed on its standard output. The exit status is not looked at.
    /// Throws only std::bad_alloc and std::length_error; the program is waited for even then.
    virtual bool Run(const std::string& commandLine, std::string& output) = 0;

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
