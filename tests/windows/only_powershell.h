#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "tests/support/temporary_folder.h"

namespace SMBIOS::Tests {

/// Makes `powershell.exe` a program that is nowhere to be found: the working folder becomes an empty one of
/// the test's own, and the only one in PATH.
class NoPowerShell {
public:
    NoPowerShell();
    NoPowerShell(const NoPowerShell&) = delete;
    NoPowerShell& operator=(const NoPowerShell&) = delete;
    ~NoPowerShell();

protected:
    [[nodiscard]] const TemporaryFolder& Folder() const noexcept { return folder_; }

private:
    TemporaryFolder folder_;
    std::filesystem::path formerFolder_;
    std::string formerPath_;
};

/// Makes `powershell.exe` the program that asks this machine's WMI.
class LivePowerShell : public NoPowerShell {
public:
    LivePowerShell();
};

/// Makes `powershell.exe` a program that does as it is told, whatever it is asked.
class ScriptedPowerShell : public NoPowerShell {
public:
    explicit ScriptedPowerShell(std::string_view output,
                                std::string_view errorOutput = {},
                                int exitStatus = 0);

    /// Prints its output again and again, until nobody reads it any more.
    void GoOnWithoutEnd() const;

    /// Stays for a while when it has closed its output.
    void Linger() const;

    /// How often it was run.
    [[nodiscard]] std::size_t Runs() const;
};

}  // namespace SMBIOS::Tests
