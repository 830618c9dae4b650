#include <stdio.h>

#include <memory>

#include "platform/command_runner.h"
#include "platform/read_pieces.h"

namespace SMBIOS::Platform {

namespace {

struct EndProgram {
    void operator()(FILE* stream) const noexcept { ::_pclose(stream); }
};

class WindowsCommandRunner final : public CommandRunner {
public:
    bool Run(const std::string& commandLine, std::string& output) override {
        const std::unique_ptr<FILE, EndProgram> stream(::_popen(commandLine.c_str(), "r"));
        if (stream == nullptr) {
            return false;
        }
        output.clear();
        AppendPieces(stream.get(), output);
        return true;
    }
};

constinit WindowsCommandRunner machineCommandRunner;

}  // namespace

CommandRunner& MachineCommandRunner() noexcept {
    return machineCommandRunner;
}

}  // namespace SMBIOS::Platform
