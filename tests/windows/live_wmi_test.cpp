#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "smbios/memory_info.h"
#include "smbios/processor_info.h"
#include "tests/windows/only_powershell.h"
#include "tests/windows/sample_structures.h"
#include "tests/windows/served_table.h"
#include "tests/windows/wmi_instances.h"

namespace SMBIOS::Tests {
namespace {

using Parsers::MemoryInfo;
using Parsers::ProcessorInfo;

/// The first instance of a class, as WMI itself tells it.
WmiInstance FirstInstance(std::string_view className) {
    const std::vector<WmiInstance> instances = QueryWmi("SELECT * FROM " + std::string(className));
    return instances.empty() ? WmiInstance::object() : instances.front();
}

std::string TextIn(const WmiInstance& instance, const char* property) {
    return instance.at(property).get<std::string>();
}

std::uint64_t IdOf(const WmiInstance& processor) {
    constexpr int kHexadecimal = 16;
    return std::stoull(TextIn(processor, "ProcessorId"), nullptr, kHexadecimal);
}

TEST(LiveWmi, CompletesTheProcessorWithItsId) {
    const WmiInstance processor = FirstInstance("Win32_Processor");
    const ServedTable served(TableOf(BareProcessor(IdOf(processor))).RawTable());
    const LivePowerShell powerShell;
    ProcessorInfo info;
    info.RetrieveInfo();
    ASSERT_EQ(info.GetCPUCount(), 1U);
    EXPECT_EQ(info.GetProcessorID(0), TextIn(processor, "ProcessorId"));
    EXPECT_EQ(info.GetVersion(0), TextIn(processor, "Name"));
    EXPECT_EQ(info.GetManufacturer(0), TextIn(processor, "Manufacturer"));
    EXPECT_EQ(info.GetCaption(0), TextIn(processor, "Caption"));
    EXPECT_EQ(info.GetDescription(0), TextIn(processor, "Description"));
    EXPECT_EQ(info.GetCoreCount(0), processor.at("NumberOfCores"));
    EXPECT_EQ(info.GetThreadCount(0), processor.at("NumberOfLogicalProcessors"));
    EXPECT_EQ(info.GetMaxSpeedInMHz(0), processor.at("MaxClockSpeed"));
    EXPECT_EQ(info.GetAddrWidth(0), processor.at("AddressWidth"));
    EXPECT_EQ(info.GetDataWidth(0), processor.at("DataWidth"));
    EXPECT_STREQ(info.GetSocketDesignation(0), "Socket 1");
}

TEST(LiveWmi, LeavesAbsentWhatTheMachineDoesNotTell) {
    const WmiInstance processor = FirstInstance("Win32_Processor");
    const ServedTable served(TableOf(BareProcessor(IdOf(processor))).RawTable());
    const LivePowerShell powerShell;
    ProcessorInfo info;
    info.RetrieveInfo();
    ASSERT_EQ(info.GetCPUCount(), 1U);
    if (!processor.contains("DeviceID")) {  // Wine spells it another way
        EXPECT_EQ(info.GetDeviceId(0), nullptr);
    }
    if (!processor.contains("NumberOfEnabledCore")) {
        EXPECT_EQ(info.GetEnabledCoreCount(0), 0xFFFF);
    }
    if (!processor.contains("L2CacheSize")) {
        EXPECT_EQ(info.GetL2CacheSizeInKB(0), 0xFFFFFFFFFFFFFFFF);
    }
}

TEST(LiveWmi, KeepsWhatTheFirmwareTells) {
    const WmiInstance processor = FirstInstance("Win32_Processor");
    const ServedTable served(
        TableOf(BareProcessor(IdOf(processor)).String(0x10, "Firmware's name").Byte(0x23, 77)).RawTable());
    const LivePowerShell powerShell;
    ProcessorInfo info;
    info.RetrieveInfo();
    ASSERT_EQ(info.GetCPUCount(), 1U);
    EXPECT_STREQ(info.GetVersion(0), "Firmware's name");
    EXPECT_EQ(info.GetCoreCount(0), 77);
    EXPECT_EQ(info.GetThreadCount(0), processor.at("NumberOfLogicalProcessors"));
}

TEST(LiveWmi, CompletesOneOfTwoProcessors) {
    const WmiInstance processor = FirstInstance("Win32_Processor");
    constexpr std::uint64_t kUnknownId = 0xFFFFFFFFFFFFFFFE;  // behind any other in the order of rows
    const ServedTable served(
        TableOf(BareProcessor(kUnknownId)).Add(BareProcessor(IdOf(processor))).RawTable());
    const LivePowerShell powerShell;
    ProcessorInfo info;
    info.RetrieveInfo();
    ASSERT_EQ(info.GetCPUCount(), 2U);
    EXPECT_EQ(info.GetVersion(0), TextIn(processor, "Name"));
    EXPECT_STREQ(info.GetProcessorID(1), "FFFFFFFFFFFFFFFE");
    EXPECT_EQ(info.GetVersion(1), nullptr);
}

/// What a text getter should give for a WMI text: an empty text reads as none.
const char* Readable(const std::string& text) {
    return text.empty() ? nullptr : text.c_str();
}

// A device without a serial number makes the library list the devices as WMI reports them.
TEST(LiveWmi, ListsTheMemoryDevicesOfTheMachine) {
    const WmiInstance device = FirstInstance("Win32_PhysicalMemory");
    const ServedTable served(TableOf(BareMemoryDevice("")).RawTable());
    const LivePowerShell powerShell;
    MemoryInfo info;
    info.RetrieveInfo();
    ASSERT_EQ(info.GetMemoryDeviceCount(), 1U);
    EXPECT_EQ(info.GetSizeInKB(0), device.at("Capacity"));
    EXPECT_EQ(info.GetFormFactor(0), device.at("FormFactor"));
    EXPECT_STREQ(info.GetDeviceLocator(0), Readable(TextIn(device, "DeviceLocator")));
    EXPECT_STREQ(info.GetSerialNumber(0), Readable(TextIn(device, "SerialNumber")));
    EXPECT_STREQ(info.GetPartNumber(0), Readable(TextIn(device, "PartNumber")));
}

TEST(LiveWmi, CompletesTheMemoryDeviceWithItsSerialNumber) {
    const WmiInstance device = FirstInstance("Win32_PhysicalMemory");
    const std::string serialNumber = TextIn(device, "SerialNumber");
    if (serialNumber.empty()) {
        GTEST_SKIP() << "this machine's memory has no serial number";
    }
    const ServedTable served(TableOf(BareMemoryDevice(serialNumber)).RawTable());
    const LivePowerShell powerShell;
    MemoryInfo info;
    info.RetrieveInfo();
    ASSERT_EQ(info.GetMemoryDeviceCount(), 1U);
    EXPECT_STREQ(info.GetDeviceLocator(0), "DIMM 1");
    EXPECT_STREQ(info.GetPartNumber(0), Readable(TextIn(device, "PartNumber")));
}

TEST(LiveWmi, LeavesAMemoryDeviceOfAnotherMachineAsItIs) {
    const ServedTable served(TableOf(BareMemoryDevice("OTHER-MACHINE")).RawTable());
    const LivePowerShell powerShell;
    MemoryInfo info;
    info.RetrieveInfo();
    ASSERT_EQ(info.GetMemoryDeviceCount(), 1U);
    EXPECT_STREQ(info.GetSerialNumber(0), "OTHER-MACHINE");
    EXPECT_STREQ(info.GetDeviceLocator(0), "DIMM 1");
    EXPECT_EQ(info.GetPartNumber(0), nullptr);
}

struct EndProgram {
    void operator()(FILE* stream) const noexcept { ::_pclose(stream); }
};

/// What a program prints, byte for byte, and its exit status.
std::pair<std::string, int> RunProgram(const std::string& commandLine) {
    std::unique_ptr<FILE, EndProgram> stream(::_popen(commandLine.c_str(), "rb"));
    std::string output;
    for (int character = std::fgetc(stream.get()); character != EOF; character = std::fgetc(stream.get())) {
        output += static_cast<char>(character);
    }
    return {output, ::_pclose(stream.release())};
}

std::string CommandLineFor(const std::string& query) {
    return "powershell.exe -ExecutionPolicy Unrestricted -Command \"Get-WmiObject -Namespace 'root\\cimv2' "
           "-Query \\\"" +
           query + "\\\" | ConvertTo-Json\"";
}

TEST(LivePowerShell, PrintsOneInstanceAsAnObject) {
    const WmiInstance processor = FirstInstance("Win32_Processor");
    const LivePowerShell powerShell;
    EXPECT_EQ(RunProgram(CommandLineFor("SELECT Name, NumberOfCores FROM Win32_Processor")),
              std::pair("{\r\n  \"Name\": \"" + TextIn(processor, "Name") + "\",\r\n  \"NumberOfCores\": " +
                            processor.at("NumberOfCores").dump() + "\r\n}\r\n",
                        0));
}

TEST(LivePowerShell, PrintsSeveralInstancesAsAnArray) {
    const LivePowerShell powerShell;
    const auto [output, exitStatus] = RunProgram(CommandLineFor("SELECT Name FROM Win32_Service"));
    EXPECT_EQ(output.substr(0, output.find(':')), "[\r\n  {\r\n    \"Name\"");
    EXPECT_TRUE(output.ends_with("\r\n  }\r\n]\r\n"));
    EXPECT_EQ(exitStatus, 0);
}

TEST(LivePowerShell, PrintsNothingWithoutAnInstance) {
    const LivePowerShell powerShell;
    EXPECT_EQ(RunProgram(CommandLineFor("SELECT Name FROM Win32_Processor WHERE Name = 'nobody'")),
              std::pair(std::string(), 0));
}

TEST(LivePowerShell, RefusesWhatIsNotAQuery) {
    const LivePowerShell powerShell;
    EXPECT_EQ(RunProgram(CommandLineFor("nonsense") + " 2>nul"), std::pair(std::string(), 1));
}

TEST(LivePowerShell, RefusesAnyOtherCommand) {
    const LivePowerShell powerShell;
    EXPECT_EQ(RunProgram("powershell.exe -Command \"Get-Date\" 2>nul"), std::pair(std::string(), 1));
}

}  // namespace
}  // namespace SMBIOS::Tests
