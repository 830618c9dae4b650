#include "tests/support/stand_in_powershell.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace SMBIOS::Tests {

namespace fs = std::filesystem;

namespace {

/// Makes `folder` the only place where programs are found, and the working folder.
fs::path EnterFolder(const fs::path& folder) {
    const fs::path former = fs::current_path();
    fs::current_path(folder);
#ifndef _WIN32
    ::setenv("PATH", folder.c_str(), 1);
#endif
    return former;
}

}  // namespace

StandInPowerShell::StandInPowerShell(const std::string& answer) : formerFolder_(EnterFolder(folder_.Path())) {
    fs::copy_file(SMBIOS_STAND_IN_POWERSHELL, folder_.Path() / "powershell.exe");
    std::ofstream(folder_.Path() / "powershell-answer.txt", std::ios::binary) << answer;
    Platform::UseCommandRunner(this);
}

StandInPowerShell::~StandInPowerShell() {
    Platform::UseCommandRunner(nullptr);
    fs::current_path(formerFolder_);
}

std::unique_ptr<Platform::ProgramOutput> StandInPowerShell::Start(const std::string& commandLine) {
    commandLines_.push_back(commandLine);
    return Platform::MachineCommandRunner().Start(commandLine);
}

std::vector<std::string> StandInPowerShell::Arguments() const {
    std::ifstream notes(folder_.Path() / "powershell-arguments.txt", std::ios::binary);
    std::vector<std::string> arguments;
    for (std::string argument; std::getline(notes, argument);) {
        arguments.push_back(argument);
    }
    return arguments;
}

NoPowerShell::NoPowerShell() : formerFolder_(EnterFolder(folder_.Path())) {}

NoPowerShell::~NoPowerShell() {
    fs::current_path(formerFolder_);
}

}  // namespace SMBIOS::Tests
