#include <gtest/gtest.h>

#include <string>

#include "smbios/processor_info.h"
#include "tests/windows/only_powershell.h"
#include "tests/windows/process_usage.h"
#include "tests/windows/sample_structures.h"
#include "tests/windows/served_table.h"
#include "tests/windows/windows_headers.h"

namespace SMBIOS::Tests {
namespace {

using Parsers::ProcessorInfo;

constexpr const char* kAnswer =
    R"({"ProcessorId": "BFEBFBFF000406F1", "Name": "Example CPU", "NumberOfCores": 8})";

/// A machine whose firmware tells the processor's id and socket only.
class PowerShellFailures : public testing::Test {
protected:
    void ExpectFirmwareValues(const ProcessorInfo& info) const {
        ASSERT_EQ(info.GetCPUCount(), 1U);
        EXPECT_STREQ(info.GetProcessorID(0), kProcessorIdText);
        EXPECT_STREQ(info.GetSocketDesignation(0), "Socket 1");
        EXPECT_STREQ(info.GetStringifiedType(0), "Central Processor");
    }

    /// Several calls leave the firmware's values, complete none, and leave no handle open.
    void ExpectNothingCompleted() const {
        std::size_t handles = 0;
        for (int call = 0; call < kCalls; ++call) {
            ProcessorInfo info;
            info.RetrieveInfo();
            ExpectFirmwareValues(info);
            EXPECT_EQ(info.GetVersion(0), nullptr);
            EXPECT_EQ(info.GetCoreCount(0), 0xFFFF);
            if (call == 0) {  // the first call opens what the C runtime keeps
                handles = OpenHandles();
            }
        }
        EXPECT_EQ(OpenHandles(), handles);
    }

    /// One call leaves the firmware's values and completes the others.
    void ExpectCompleted() const {
        ProcessorInfo info;
        info.RetrieveInfo();
        ExpectFirmwareValues(info);
        EXPECT_STREQ(info.GetVersion(0), "Example CPU");
        EXPECT_EQ(info.GetCoreCount(0), 8);
    }

    static constexpr int kCalls = 4;

private:
    ServedTable served_{TableOf(BareProcessor()).RawTable()};
};

TEST_F(PowerShellFailures, NoPowerShell) {
    const NoPowerShell powerShell;
    ASSERT_EQ(::SearchPathW(nullptr, L"powershell.exe", nullptr, 0, nullptr, nullptr), 0U);
    ExpectNothingCompleted();
}

TEST_F(PowerShellFailures, PrintsNothing) {
    const ScriptedPowerShell powerShell("");
    ExpectNothingCompleted();
    EXPECT_EQ(powerShell.Runs(), std::size_t{kCalls});
}

TEST_F(PowerShellFailures, PrintsAnErrorText) {
    const ScriptedPowerShell powerShell("", "Get-WmiObject : Invalid class\r\n", 1);
    ExpectNothingCompleted();
}

TEST_F(PowerShellFailures, PrintsAnErrorTextAmongItsOutput) {
    const ScriptedPowerShell powerShell("Get-WmiObject : Invalid class\r\n    + CategoryInfo\r\n");
    ExpectNothingCompleted();
}

TEST_F(PowerShellFailures, PrintsHalfADocument) {
    const std::string answer = kAnswer;
    const ScriptedPowerShell powerShell(answer.substr(0, answer.size() / 2));
    ExpectNothingCompleted();
}

TEST_F(PowerShellFailures, PrintsADocumentOfAnotherKind) {
    const ScriptedPowerShell powerShell("[1, \"two\", null, [], {\"ProcessorId\": 3}]");
    ExpectNothingCompleted();
}

TEST_F(PowerShellFailures, NestsAMemberSixtyThousandDeep) {
    constexpr std::size_t kDepth = 60'000;
    const ScriptedPowerShell powerShell(R"({"ProcessorId": "BFEBFBFF000406F1", "Name": )" +
                                        std::string(kDepth, '[') + std::string(kDepth, ']') +
                                        R"(, "NumberOfCores": 8})");
    ExpectNothingCompleted();
}

TEST_F(PowerShellFailures, CrashesWithinItsAnswer) {
    constexpr auto kAccessViolation = static_cast<int>(0xC0000005);
    const std::string answer = kAnswer;
    const ScriptedPowerShell powerShell(answer.substr(0, answer.size() - 1), "", kAccessViolation);
    ExpectNothingCompleted();
}

TEST_F(PowerShellFailures, GoesOnWithoutEndBehindWhatIsNotJson) {
    const ScriptedPowerShell powerShell("no JSON\r\n");
    powerShell.GoOnWithoutEnd();
    ExpectNothingCompleted();
    EXPECT_EQ(powerShell.Runs(), std::size_t{kCalls});
}

TEST_F(PowerShellFailures, StaysWhenItHasClosedItsOutput) {
    const ScriptedPowerShell powerShell(kAnswer);
    powerShell.Linger();
    ExpectCompleted();
}

TEST_F(PowerShellFailures, PrintsANulBehindItsAnswer) {
    using namespace std::string_literals;
    const ScriptedPowerShell powerShell(kAnswer + "\0rubbish"s);
    ExpectCompleted();
}

TEST_F(PowerShellFailures, EndsWithAnErrorAfterItsAnswer) {
    const ScriptedPowerShell powerShell(kAnswer, "Something went wrong\r\n", 1);
    ExpectCompleted();
}

TEST_F(PowerShellFailures, PrintsEightMebibytesAroundItsAnswer) {
    const std::string filler = "{\"Caption\": \"" + std::string(std::size_t{4} << 20, 'x') + "\"}";
    const ScriptedPowerShell powerShell("[" + filler + ",\r\n" + kAnswer + ",\r\n" + filler + "]");
    ExpectCompleted();
}

TEST_F(PowerShellFailures, PrintsEightMebibytesOfRubbish) {
    const ScriptedPowerShell powerShell(std::string(std::size_t{8} << 20, 'x'));
    ExpectNothingCompleted();
}

TEST_F(PowerShellFailures, LeaveNoHandleOpenAfterAnAnswer) {
    const ScriptedPowerShell powerShell(kAnswer);
    ExpectCompleted();
    const std::size_t handles = OpenHandles();
    for (int call = 0; call < kCalls; ++call) {
        ExpectCompleted();
    }
    EXPECT_EQ(OpenHandles(), handles);
}

}  // namespace
}  // namespace SMBIOS::Tests
