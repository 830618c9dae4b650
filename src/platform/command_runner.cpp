#include "platform/command_runner.h"

namespace SMBIOS::Platform {

namespace {

constinit CommandRunner* replacement = nullptr;

}  // namespace

bool CommandRunner::Run(const std::string& commandLine, std::string& output) {
    const std::unique_ptr<ProgramOutput> program = Start(commandLine);
    if (program == nullptr) {
        return false;
    }
    output.clear();
    while (const std::optional<std::string_view> piece = program->NextPiece()) {
        output += *piece;
    }
    return true;
}

CommandRunner& ActiveCommandRunner() noexcept {
    return replacement != nullptr ? *replacement : MachineCommandRunner();
}

void UseCommandRunner(CommandRunner* runner) noexcept {
    replacement = runner;
}

}  // namespace SMBIOS::Platform
