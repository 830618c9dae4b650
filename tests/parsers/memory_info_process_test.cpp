#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "smbios/memory_info.h"
#include "tests/support/decode.h"
#include "tests/support/fake_platform.h"
#include "tests/support/stand_in_powershell.h"

// MemoryInfo with a real process behind it. The manager is once per process: so is every test here.
namespace SMBIOS::Tests {
namespace {

using Parsers::MemoryInfo;
using Arguments = std::vector<std::string>;

/// A device that lacks its size, its asset tag and its position in the row.
StructureBuilder Device(const std::string& serialNumber) {
    return StructureBuilder(17, 0x28)
        .Word(0x08, 64)
        .Word(0x0A, 64)
        .String(0x10, "DIMM")
        .String(0x11, "BANK")
        .Word(0x15, 3200)
        .String(0x17, "Maker")
        .String(0x18, serialNumber)
        .String(0x1A, "Part");
}

Arguments ArgumentsOf(const std::string& query) {
    return {"-ExecutionPolicy",
            "Unrestricted",
            "-Command",
            R"(Get-WmiObject -Namespace 'root\cimv2' -Query ")" + query + R"(" | ConvertTo-Json)"};
}

TEST(MemoryInfoProcess, OneDeviceIsCompleted) {
    const StandInPowerShell powershell(
        "{\r\n  \"SerialNumber\": \"1A2B3C4D\",\r\n  \"Capacity\": 8589934592,\r\n"
        "  \"PositionInRow\": 1,\r\n  \"Tag\": \"Physical Memory 0\"\r\n}\r\n");
    const FakeFirmwareTable firmware(TableBuilder(2, 8, 0).Add(Device("1A2B3C4D")).RawTable());
    MemoryInfo info;
    info.RetrieveInfo();

    EXPECT_EQ(powershell.CommandLines(),
              Arguments{R"(powershell.exe -ExecutionPolicy Unrestricted -Command "Get-WmiObject -Namespace )"
                        R"('root\cimv2' -Query \"SELECT Capacity, PositionInRow, SerialNumber, Tag FROM )"
                        R"(Win32_PhysicalMemory WHERE SerialNumber = '1A2B3C4D'\" | ConvertTo-Json")"});
    EXPECT_EQ(powershell.Arguments(),
              ArgumentsOf("SELECT Capacity, PositionInRow, SerialNumber, Tag FROM Win32_PhysicalMemory WHERE "
                          "SerialNumber = '1A2B3C4D'"));
    ASSERT_EQ(info.GetMemoryDeviceCount(), 1U);
    EXPECT_EQ(info.GetSizeInKB(0), 8589934592U);
    EXPECT_EQ(info.GetPositionInRow(0), 1);
    EXPECT_STREQ(info.GetAssetTag(0), "Physical Memory 0");
}

TEST(MemoryInfoProcess, SeveralDevicesAreCompleted) {
    const StandInPowerShell powershell(
        R"([{"SerialNumber":"B","Capacity":2},{"SerialNumber":"A","Capacity":1}])");
    const FakeFirmwareTable firmware(TableBuilder(2, 8, 0).Add(Device("B")).Add(Device("A")).RawTable());
    MemoryInfo info;
    info.RetrieveInfo();

    EXPECT_EQ(
        powershell.CommandLines(),
        Arguments{
            R"(powershell.exe -ExecutionPolicy Unrestricted -Command "Get-WmiObject -Namespace )"
            R"('root\cimv2' -Query \"SELECT Capacity, PositionInRow, SerialNumber, Tag FROM )"
            R"(Win32_PhysicalMemory WHERE SerialNumber = 'B' OR SerialNumber = 'A'\" | ConvertTo-Json")"});
    EXPECT_EQ(powershell.Arguments(),
              ArgumentsOf("SELECT Capacity, PositionInRow, SerialNumber, Tag FROM Win32_PhysicalMemory WHERE "
                          "SerialNumber = 'B' OR SerialNumber = 'A'"));
    ASSERT_EQ(info.GetMemoryDeviceCount(), 2U);
    EXPECT_EQ(info.GetSizeInKB(0), 1U);
    EXPECT_EQ(info.GetSizeInKB(1), 2U);
}

TEST(MemoryInfoProcess, ADeviceWithoutSerialNumberWidensTheQuery) {
    const StandInPowerShell powershell(R"({"SerialNumber":"W","Capacity":1})");
    const FakeFirmwareTable firmware(TableBuilder(2, 8, 0).Add(Device("A").Byte(0x18, 0)).RawTable());
    MemoryInfo info;
    info.RetrieveInfo();

    EXPECT_EQ(powershell.CommandLines(),
              Arguments{R"(powershell.exe -ExecutionPolicy Unrestricted -Command "Get-WmiObject -Namespace )"
                        R"('root\cimv2' -Query \"SELECT Attributes, BankLabel, Capacity, DataWidth, )"
                        R"(DeviceLocator, FormFactor, Manufacturer, PartNumber, PositionInRow, )"
                        R"(SMBIOSMemoryType, SerialNumber, Speed, Tag, TotalWidth, TypeDetail FROM )"
                        R"(Win32_PhysicalMemory\" | ConvertTo-Json")"});
    EXPECT_EQ(
        powershell.Arguments(),
        ArgumentsOf("SELECT Attributes, BankLabel, Capacity, DataWidth, DeviceLocator, FormFactor, "
                    "Manufacturer, PartNumber, PositionInRow, SMBIOSMemoryType, SerialNumber, Speed, Tag, "
                    "TotalWidth, TypeDetail FROM Win32_PhysicalMemory"));
    ASSERT_EQ(info.GetMemoryDeviceCount(), 1U);
    EXPECT_STREQ(info.GetSerialNumber(0), "W");
}

TEST(MemoryInfoProcess, AnAnswerOfManyPiecesIsJoinedWithoutLoss) {
    const std::string longText(5000, 'x');
    const StandInPowerShell powershell(R"({"SerialNumber":"A","Tag":")" + longText + R"("})");
    const FakeFirmwareTable firmware(TableBuilder(2, 8, 0).Add(Device("A")).RawTable());
    MemoryInfo info;
    info.RetrieveInfo();
    EXPECT_STREQ(info.GetAssetTag(0), longText.c_str());
}

TEST(MemoryInfoProcess, WithoutPowerShellTheFirmwaresRowsStand) {
    const NoPowerShell nothing;
    const FakeFirmwareTable firmware(TableBuilder(2, 8, 0).Add(Device("A")).RawTable());
    MemoryInfo info;
    info.RetrieveInfo();
    ASSERT_EQ(info.GetMemoryDeviceCount(), 1U);
    EXPECT_EQ(info.GetSpeed(0), 3200U);
}

}  // namespace
}  // namespace SMBIOS::Tests
