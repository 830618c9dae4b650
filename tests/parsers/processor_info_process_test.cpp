#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "smbios/processor_info.h"
#include "tests/support/decode.h"
#include "tests/support/fake_platform.h"
#include "tests/support/stand_in_powershell.h"

// ProcessorInfo with a real process behind it. The manager is once per process: so is every test here.
namespace SMBIOS::Tests {
namespace {

using Parsers::ProcessorInfo;
using Arguments = std::vector<std::string>;

/// A processor of a 3.0.0 table that lacks its second cache and what only WMI knows.
StructureBuilder Processor(std::uint64_t id, const std::string& socket) {
    return StructureBuilder(4, 0x30)
        .String(0x04, socket)
        .Qword(0x08, id)
        .String(0x10, "Processor")
        .Word(0x1A, 0xFFFF)
        .Word(0x1C, 0x0099)
        .Word(0x1E, 0x0073)
        .Byte(0x23, 4)
        .Byte(0x24, 4)
        .Byte(0x25, 8);
}

StructureBuilder Cache() {
    return StructureBuilder(7, 0x13, 0x0073).Word(0x07, 8192);
}

std::vector<std::uint8_t> TableOf(const std::vector<StructureBuilder>& processors) {
    TableBuilder table(3, 0, 0);
    for (const StructureBuilder& processor : processors) {
        table.Add(processor);
    }
    return table.Add(Cache()).RawTable();
}

Arguments ArgumentsOf(const std::string& query) {
    return {"-ExecutionPolicy",
            "Unrestricted",
            "-Command",
            R"(Get-WmiObject -Namespace 'root\cimv2' -Query ")" + query + R"(" | ConvertTo-Json)"};
}

TEST(ProcessorInfoProcess, TwoSocketsWithDifferentIdsAreCompleted) {
    const StandInPowerShell powershell(
        R"([{"ProcessorId":"0000000000000002","DeviceID":"CPU1","MaxClockSpeed":3000,"L2CacheSize":2048},
            {"ProcessorId":"0000000000000001","DeviceID":"CPU0","MaxClockSpeed":2900,"L2CacheSize":1024}])");
    const FakeFirmwareTable firmware(TableOf({Processor(2, "S2"), Processor(1, "S1")}));
    ProcessorInfo info;
    info.RetrieveInfo();

    const std::string query =
        "SELECT AddressWidth, Caption, DataWidth, Description, DeviceID, L2CacheSize, Manufacturer, "
        "MaxClockSpeed, "
        "ProcessorId FROM Win32_Processor WHERE ProcessorId = '0000000000000002' OR ProcessorId = "
        "'0000000000000001'";
    EXPECT_EQ(powershell.CommandLines(),
              Arguments{R"(powershell.exe -ExecutionPolicy Unrestricted -Command "Get-WmiObject -Namespace )"
                        R"('root\cimv2' -Query \")" +
                        query + R"(\" | ConvertTo-Json")"});
    EXPECT_EQ(powershell.Arguments(), ArgumentsOf(query));
    ASSERT_EQ(info.GetCPUCount(), 2U);
    EXPECT_STREQ(info.GetSocketDesignation(0), "S1");
    EXPECT_STREQ(info.GetDeviceId(0), "CPU0");
    EXPECT_EQ(info.GetMaxSpeedInMHz(0), 2900);
    EXPECT_EQ(info.GetL1CacheSizeInKB(0), 18446744073709551615U);
    EXPECT_EQ(info.GetL2CacheHandle(0), 0x0099);
    EXPECT_EQ(info.GetL2CacheSizeInKB(0), 1024U);
    EXPECT_EQ(info.GetL3CacheSizeInKB(0), 8192U);
    EXPECT_EQ(info.GetMaxSpeedInMHz(1), 3000);
}

TEST(ProcessorInfoProcess, OfTwoSocketsWithOneIdTheFirstIsListed) {
    const StandInPowerShell powershell(
        R"([{"ProcessorId":"0000000000000001","DeviceID":"CPU0"},{"ProcessorId":"0000000000000001","DeviceID":"CPU1"}])");
    const FakeFirmwareTable firmware(TableOf({Processor(1, "S1"), Processor(1, "S2")}));
    ProcessorInfo info;
    info.RetrieveInfo();
    ASSERT_EQ(info.GetCPUCount(), 1U);
    EXPECT_STREQ(info.GetSocketDesignation(0), "S1");
    EXPECT_STREQ(info.GetDeviceId(0), "CPU0");
}

TEST(ProcessorInfoProcess, AProcessorWithoutIdWidensTheQuery) {
    const StandInPowerShell powershell(R"({"ProcessorId":"W","Name":"from WMI"})");
    const FakeFirmwareTable firmware(TableOf({StructureBuilder(4, 0x10)}));
    ProcessorInfo info;
    info.RetrieveInfo();

    const std::string query =
        "SELECT AddressWidth, Caption, DataWidth, Description, DeviceID, L2CacheSize, L3CacheSize, "
        "Manufacturer, "
        "MaxClockSpeed, Name, NumberOfCores, NumberOfEnabledCore, NumberOfLogicalProcessors, ProcessorId, "
        "VirtualizationFirmwareEnabled FROM Win32_Processor";
    EXPECT_EQ(powershell.CommandLines(),
              Arguments{R"(powershell.exe -ExecutionPolicy Unrestricted -Command "Get-WmiObject -Namespace )"
                        R"('root\cimv2' -Query \")" +
                        query + R"(\" | ConvertTo-Json")"});
    EXPECT_EQ(powershell.Arguments(), ArgumentsOf(query));
    ASSERT_EQ(info.GetCPUCount(), 1U);
    EXPECT_STREQ(info.GetVersion(0), "from WMI");
}

TEST(ProcessorInfoProcess, NullAndWrongTypedMembersEndTheCompletionThere) {
    const StandInPowerShell powershell(
        "[\r\n  {\r\n    \"ProcessorId\": \"0000000000000001\",\r\n    \"AddressWidth\": 64,\r\n    "
        "\"Caption\": null,\r\n"
        "    \"DeviceID\": 7\r\n  }\r\n]\r\n");
    const FakeFirmwareTable firmware(TableOf({Processor(1, "S1")}));
    ProcessorInfo info;
    info.RetrieveInfo();
    ASSERT_EQ(info.GetCPUCount(), 1U);
    EXPECT_EQ(info.GetAddrWidth(0), 64);
    EXPECT_EQ(info.GetCaption(0), nullptr);
    EXPECT_EQ(info.GetDeviceId(0), nullptr);
    EXPECT_EQ(info.GetCoreCount(0), 4);
}

TEST(ProcessorInfoProcess, WithoutPowerShellTheFirmwaresRowsStand) {
    const NoPowerShell nothing;
    const FakeFirmwareTable firmware(TableOf({Processor(1, "S1")}));
    ProcessorInfo info;
    info.RetrieveInfo();
    ASSERT_EQ(info.GetCPUCount(), 1U);
    EXPECT_EQ(info.GetThreadCount(0), 8);
}

}  // namespace
}  // namespace SMBIOS::Tests
