#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/command_runner.h"
#include "tests/support/temporary_folder.h"

namespace SMBIOS::Tests {

/// While it lives, `powershell.exe` is a program of ours that answers with a prepared text: a real process,
/// started by the machine's own runner in a folder of its own. One per process.
class StandInPowerShell final : public Platform::CommandRunner {
public:
    explicit StandInPowerShell(const std::string& answer);
    ~StandInPowerShell();

    /// Notes the command line and lets the machine's own runner start it.
    [[nodiscard]] std::unique_ptr<Platform::ProgramOutput> Start(const std::string& commandLine) override;

    /// The command lines the library asked for, character for character.
    [[nodiscard]] const std::vector<std::string>& CommandLines() const noexcept { return commandLines_; }

    /// The arguments the program received, without its own name; empty when it never ran.
    [[nodiscard]] std::vector<std::string> Arguments() const;

private:
    TemporaryFolder folder_;
    std::filesystem::path formerFolder_;
    std::vector<std::string> commandLines_;
};

/// Makes `powershell.exe` a program that is nowhere to be found.
class NoPowerShell {
public:
    NoPowerShell();
    ~NoPowerShell();

private:
    TemporaryFolder folder_;
    std::filesystem::path formerFolder_;
};

}  // namespace SMBIOS::Tests
