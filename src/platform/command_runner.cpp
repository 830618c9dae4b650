#include "platform/command_runner.h"

namespace SMBIOS::Platform {

namespace {

constinit CommandRunner* replacement = nullptr;

}  // namespace

CommandRunner& ActiveCommandRunner() noexcept {
    return replacement != nullptr ? *replacement : MachineCommandRunner();
}

void UseCommandRunner(CommandRunner* runner) noexcept {
    replacement = runner;
}

}  // namespace SMBIOS::Platform
