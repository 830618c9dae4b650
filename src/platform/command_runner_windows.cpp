#include <stdio.h>

#include <memory>
#include <utility>

#include "platform/command_runner.h"
#include "platform/read_pieces.h"

namespace SMBIOS::Platform {

namespace {

struct EndProgram {
    void operator()(FILE* stream) const noexcept { ::_pclose(stream); }
};

using ProgramStream = std::unique_ptr<FILE, EndProgram>;

class WindowsProgramOutput final : public ProgramOutput {
public:
    explicit WindowsProgramOutput(ProgramStream stream) noexcept : stream_(std::move(stream)) {}

    [[nodiscard]] std::optional<std::string_view> NextPiece() override { return pieces_.Next(stream_.get()); }

private:
    ProgramStream stream_;
    PieceReader pieces_;
};

class WindowsCommandRunner final : public CommandRunner {
public:
    [[nodiscard]] std::unique_ptr<ProgramOutput> Start(const std::string& commandLine) override {
        ProgramStream stream(::_popen(commandLine.c_str(), "r"));
        return stream != nullptr ? std::make_unique<WindowsProgramOutput>(std::move(stream)) : nullptr;
    }
};

constinit WindowsCommandRunner machineCommandRunner;

}  // namespace

CommandRunner& MachineCommandRunner() noexcept {
    return machineCommandRunner;
}

}  // namespace SMBIOS::Platform
