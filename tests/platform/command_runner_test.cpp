#include "platform/command_runner.h"

#include <gtest/gtest.h>

namespace SMBIOS::Platform {
namespace {

class RefusingRunner final : public CommandRunner {
public:
    [[nodiscard]] std::unique_ptr<ProgramOutput> Start(const std::string&) override { return nullptr; }
};

class CommandRunnerInUse : public testing::Test {
protected:
    ~CommandRunnerInUse() override { UseCommandRunner(nullptr); }
};

TEST_F(CommandRunnerInUse, IsTheMachinesAtFirst) {
    EXPECT_EQ(&ActiveCommandRunner(), &MachineCommandRunner());
}

TEST_F(CommandRunnerInUse, IsTheOnePutInItsPlace) {
    RefusingRunner runner;
    UseCommandRunner(&runner);
    EXPECT_EQ(&ActiveCommandRunner(), &runner);
}

TEST_F(CommandRunnerInUse, IsTheMachinesAgainWhenRestored) {
    RefusingRunner runner;
    UseCommandRunner(&runner);
    UseCommandRunner(nullptr);
    EXPECT_EQ(&ActiveCommandRunner(), &MachineCommandRunner());
}

TEST(MachineCommandRunner, IsOneObject) {
    EXPECT_EQ(&MachineCommandRunner(), &MachineCommandRunner());
}

}  // namespace
}  // namespace SMBIOS::Platform
