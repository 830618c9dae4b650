#include "tests/windows/only_powershell.h"

#include <cstdlib>
#include <system_error>

#include "tests/windows/windows_headers.h"

namespace SMBIOS::Tests {

namespace fs = std::filesystem;

namespace {

constexpr const char* kProgram = "powershell.exe";

std::string SearchPath() {
    const char* const path = std::getenv("PATH");
    return path == nullptr ? std::string() : std::string(path);
}

/// Removes a program that may have ended this very moment: the system frees its file a little later.
void RemoveProgram(const fs::path& program) {
    constexpr int kAttempts = 100;
    constexpr DWORD kPauseInMilliseconds = 20;
    std::error_code error;
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        fs::remove(program, error);
        if (!error) {
            return;
        }
        ::Sleep(kPauseInMilliseconds);
    }
}

}  // namespace

NoPowerShell::NoPowerShell() : formerFolder_(fs::current_path()), formerPath_(SearchPath()) {
    fs::current_path(folder_.Path());
    ::_putenv_s("PATH", folder_.Path().string().c_str());
}

NoPowerShell::~NoPowerShell() {
    ::_putenv_s("PATH", formerPath_.c_str());
    fs::current_path(formerFolder_);
    RemoveProgram(folder_.Path() / kProgram);
}

LivePowerShell::LivePowerShell() {
    fs::copy_file(SMBIOS_WMI_POWERSHELL, Folder().Path() / kProgram);
}

ScriptedPowerShell::ScriptedPowerShell(std::string_view output,
                                       std::string_view errorOutput,
                                       int exitStatus) {
    fs::copy_file(SMBIOS_SCRIPTED_POWERSHELL, Folder().Path() / kProgram);
    Folder().Write("output.txt", output);
    Folder().Write("error-output.txt", errorOutput);
    Folder().Write("exit-status.txt", std::to_string(exitStatus));
}

void ScriptedPowerShell::GoOnWithoutEnd() const {
    Folder().Write("without-end", "");
}

void ScriptedPowerShell::Linger() const {
    Folder().Write("lingering", "");
}

std::size_t ScriptedPowerShell::Runs() const {
    const fs::path notes = Folder().Path() / "runs.txt";
    return fs::exists(notes) ? static_cast<std::size_t>(fs::file_size(notes)) : 0;
}

}  // namespace SMBIOS::Tests
