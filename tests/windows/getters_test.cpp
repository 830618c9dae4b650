#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

#include "smbios/memory_info.h"
#include "smbios/processor_info.h"
#include "tests/windows/only_powershell.h"
#include "tests/windows/sample_structures.h"
#include "tests/windows/served_table.h"

namespace SMBIOS::Tests {
namespace {

using Parsers::EBOOL;
using Parsers::MEMORY_TYPE_DETAILS;
using Parsers::MemoryInfo;
using Parsers::PROCESSOR_CHARACTERISTICS;
using Parsers::ProcessorInfo;

constexpr std::size_t kRow = 0;
constexpr std::size_t kOutOfRange = 1;

/// A getter and what it gives for the row.
template <class Info, class Value>
struct Reading {
    Value (Info::*getter)(std::size_t) const;
    Value expected;
    const char* name;
};

/// Each gives what is expected for the row, and the largest number of its type for none.
template <class Info, class Number>
void ExpectNumbers(const Info& info, const std::vector<Reading<Info, Number>>& readings) {
    for (const auto& [getter, expected, name] : readings) {
        EXPECT_EQ((info.*getter)(kRow), expected) << name;
        EXPECT_EQ((info.*getter)(kOutOfRange), std::numeric_limits<Number>::max()) << name;
    }
}

/// Each gives the expected text for the row, and nullptr for none.
template <class Info>
void ExpectTexts(const Info& info, const std::vector<Reading<Info, const char*>>& readings) {
    for (const auto& [getter, expected, name] : readings) {
        EXPECT_STREQ((info.*getter)(kRow), expected) << name;
        EXPECT_EQ((info.*getter)(kOutOfRange), nullptr) << name;
    }
}

constexpr const char* kMemoryAnswer = R"({"SerialNumber": "SN-1", "PositionInRow": 1})";

/// A memory device of which everything is known.
StructureBuilder MemoryDevice() {
    return StructureBuilder(17, 0x64)
        .Word(0x04, 0x0040)
        .Word(0x06, 0x0041)
        .Word(0x08, 72)
        .Word(0x0A, 64)
        .Word(0x0C, 0x4000)
        .Byte(0x0E, 0x09)
        .Byte(0x0F, 2)
        .String(0x10, "DIMM A1")
        .String(0x11, "BANK 0")
        .Byte(0x12, 0x22)
        .Word(0x13, 0x2080)
        .Word(0x15, 4800)
        .String(0x17, "Example")
        .String(0x18, "SN-1")
        .String(0x19, "Tag")
        .String(0x1A, "Part")
        .Byte(0x1B, 0x02)
        .Word(0x20, 4400)
        .Word(0x22, 1100)
        .Word(0x24, 1200)
        .Word(0x26, 1150)
        .Byte(0x28, 0x08)
        .Word(0x29, 0x0008)
        .String(0x2B, "1.2")
        .Word(0x2C, 0x1122)
        .Word(0x2E, 0x3344)
        .Word(0x30, 0x5566)
        .Word(0x32, 0x7788)
        .Qword(0x34, 1000)
        .Qword(0x3C, 2000)
        .Qword(0x44, 3000)
        .Qword(0x4C, 4000)
        .Word(0x5C, 0x99AA)
        .Word(0x5E, 0x0102)
        .Word(0x60, 0xBBCC)
        .Word(0x62, 0x0304);
}

/// Rows of one table with one row.
class MemoryGetters : public testing::Test {
protected:
    void SetUp() override { info.RetrieveInfo(); }

    MemoryInfo info;

private:
    ScriptedPowerShell powerShell_{kMemoryAnswer};
    ServedTable served_{TableBuilder(3, 8, 0).Add(MemoryDevice()).RawTable()};
};

TEST_F(MemoryGetters, CountRows) {
    EXPECT_EQ(info.GetMemoryDeviceCount(), 1U);
}

TEST_F(MemoryGetters, ReadBytes) {
    ExpectNumbers<MemoryInfo, std::uint8_t>(info,
                                            {{&MemoryInfo::GetDeviceSet, 2, "GetDeviceSet"},
                                             {&MemoryInfo::GetMemoryType, 0x22, "GetMemoryType"},
                                             {&MemoryInfo::GetFormFactor, 0x09, "GetFormFactor"},
                                             {&MemoryInfo::GetRank, 2, "GetRank"},
                                             {&MemoryInfo::GetMemoryTechnology, 0x08, "GetMemoryTechnology"},
                                             {&MemoryInfo::GetPositionInRow, 1, "GetPositionInRow"}});
}

TEST_F(MemoryGetters, ReadWords) {
    ExpectNumbers<MemoryInfo, std::uint16_t>(
        info,
        {{&MemoryInfo::GetDataWidth, 64, "GetDataWidth"},
         {&MemoryInfo::GetTotalWidth, 72, "GetTotalWidth"},
         {&MemoryInfo::GetPhysicalMemoryArrayHandle, 0x0040, "GetPhysicalMemoryArrayHandle"},
         {&MemoryInfo::GetMemoryErrorInformationHandle, 0x0041, "GetMemoryErrorInformationHandle"},
         {&MemoryInfo::GetTypeDetail, 0x2080, "GetTypeDetail"},
         {&MemoryInfo::GetMinVoltageInmV, 1100, "GetMinVoltageInmV"},
         {&MemoryInfo::GetMaxVoltageInmV, 1200, "GetMaxVoltageInmV"},
         {&MemoryInfo::GetConfiguredVoltageInmV, 1150, "GetConfiguredVoltageInmV"},
         {&MemoryInfo::GetMemoryOperatingModeCapability, 0x0008, "GetMemoryOperatingModeCapability"},
         {&MemoryInfo::GetModuleProductId, 0, "GetModuleProductId"},
         {&MemoryInfo::GetModuleManufacturerId, 0, "GetModuleManufacturerId"},
         {&MemoryInfo::GetMemorySubsystemControllerManufacturerId,
          0,
          "GetMemorySubsystemControllerManufacturerId"},
         {&MemoryInfo::GetMemorySubsystemControllerProductId, 0, "GetMemorySubsystemControllerProductId"},
         {&MemoryInfo::GetRCDManufacturerId, 0, "GetRCDManufacturerId"},
         {&MemoryInfo::GetRCDRevisionNumber, 0x0304, "GetRCDRevisionNumber"},
         {&MemoryInfo::GetPMIC0ManufacturerId, 0, "GetPMIC0ManufacturerId"},
         {&MemoryInfo::GetPMIC0RevisionNumber, 0x0102, "GetPMIC0RevisionNumber"}});
}

TEST_F(MemoryGetters, ReadDoubleWords) {
    ExpectNumbers<MemoryInfo, std::uint32_t>(info,
                                             {{&MemoryInfo::GetSpeed, 4800, "GetSpeed"},
                                              {&MemoryInfo::GetConfiguredSpeed, 4400, "GetConfiguredSpeed"}});
}

TEST_F(MemoryGetters, ReadQuadWords) {
    ExpectNumbers<MemoryInfo, std::uint64_t>(
        info,
        {{&MemoryInfo::GetSizeInKB, std::uint64_t{16} << 30, "GetSizeInKB"},
         {&MemoryInfo::GetNonVolatileSize, 1000, "GetNonVolatileSize"},
         {&MemoryInfo::GetVolatileSize, 2000, "GetVolatileSize"},
         {&MemoryInfo::GetCacheSize, 3000, "GetCacheSize"},
         {&MemoryInfo::GetLogicalSize, 4000, "GetLogicalSize"}});
}

TEST_F(MemoryGetters, ReadTexts) {
    ExpectTexts<MemoryInfo>(
        info,
        {{&MemoryInfo::GetStringifiedMemoryType, "DDR5", "GetStringifiedMemoryType"},
         {&MemoryInfo::GetStringifiedFormFactor, "DIMM", "GetStringifiedFormFactor"},
         {&MemoryInfo::GetDeviceLocator, "DIMM A1", "GetDeviceLocator"},
         {&MemoryInfo::GetBankLocator, "BANK 0", "GetBankLocator"},
         {&MemoryInfo::GetManufacturer, "Example", "GetManufacturer"},
         {&MemoryInfo::GetSerialNumber, "SN-1", "GetSerialNumber"},
         {&MemoryInfo::GetAssetTag, "Tag", "GetAssetTag"},
         {&MemoryInfo::GetPartNumber, "Part", "GetPartNumber"},
         {&MemoryInfo::GetFirmwareVersion, "1.2", "GetFirmwareVersion"},
         {&MemoryInfo::GetStringifiedMemoryTechnology, "NVDIMM-N", "GetStringifiedMemoryTechnology"},
         {&MemoryInfo::GetStringifiedMemoryOperatingModeCapability,
          "Volatile Memory",
          "GetStringifiedMemoryOperatingModeCapability"}});
}

TEST_F(MemoryGetters, ReadFlags) {
    const MEMORY_TYPE_DETAILS details = info.GetBitsetTypeDetail(kRow);
    EXPECT_EQ(details.typeDetailWord, 0x2080);
    EXPECT_TRUE(details.synchronous.value && details.synchronous.isSet);
    EXPECT_TRUE(details.registered.value && details.registered.isSet);
    EXPECT_TRUE(!details.unbuffered.value && details.unbuffered.isSet);
}

TEST_F(MemoryGetters, ReadUnsetFlagsForNoRow) {
    const MEMORY_TYPE_DETAILS details = info.GetBitsetTypeDetail(kOutOfRange);
    const MEMORY_TYPE_DETAILS unset;
    EXPECT_EQ(std::memcmp(&details, &unset, sizeof(details)), 0);
    EXPECT_EQ(details.typeDetailWord, 0);
    EXPECT_FALSE(details.synchronous.isSet);
}

TEST_F(MemoryGetters, DumpTheStructure) {
    std::size_t size = 0;
    const std::uint8_t* const bytes = info.DumpRawData(kRow, size);
    EXPECT_EQ(std::vector<std::uint8_t>(bytes, bytes + size), MemoryDevice().FormattedBytes());
    EXPECT_EQ(info.DumpRawData(kOutOfRange, size), nullptr);
    EXPECT_EQ(size, 0U);
}

TEST_F(MemoryGetters, DumpTheStrings) {
    EXPECT_EQ(info.GetStringSessionSize(kRow), 7U);
    EXPECT_STREQ(info.DumpStringSession(kRow, 0), "DIMM A1");
    EXPECT_STREQ(info.DumpStringSession(kRow, 6), "1.2");
    EXPECT_EQ(info.DumpStringSession(kRow, 7), nullptr);
    EXPECT_EQ(info.GetStringSessionSize(kOutOfRange), 0U);
    EXPECT_EQ(info.DumpStringSession(kOutOfRange, 0), nullptr);
}

TEST_F(MemoryGetters, KeepNoErrors) {
    EXPECT_FALSE(info.HasError(kRow) || info.HasError(kOutOfRange));
    EXPECT_EQ(info.GetErrorMessage(kRow), nullptr);
    EXPECT_EQ(info.GetErrorMessage(kOutOfRange), nullptr);
}

constexpr const char* kProcessorAnswer = R"({
    "ProcessorId": "BFEBFBFF000406F1",
    "DeviceID": "CPU0",
    "Caption": "The caption",
    "Description": "The description",
    "MaxClockSpeed": 4000,
    "AddressWidth": 64,
    "DataWidth": 32
})";

/// A processor of which everything is known.
StructureBuilder Processor() {
    return StructureBuilder(4, 0x33)
        .String(0x04, "Socket 1")
        .Byte(0x05, 0x03)
        .Byte(0x06, 0xB3)
        .String(0x07, "Example")
        .Qword(0x08, kProcessorId)
        .String(0x10, "Example CPU")
        .Byte(0x11, 0x8C)
        .Word(0x12, 100)
        .Word(0x14, 4500)
        .Word(0x16, 2200)
        .Byte(0x18, 0x41)
        .Byte(0x19, 0x2B)
        .Word(0x1A, 0x0020)
        .Word(0x1C, 0x0021)
        .Word(0x1E, 0x0022)
        .String(0x20, "SN-1")
        .String(0x21, "Tag")
        .String(0x22, "Part")
        .Byte(0x23, 12)
        .Byte(0x24, 10)
        .Byte(0x25, 24)
        .Word(0x26, 0x0144)
        .Word(0x30, 20)
        .String(0x32, "The socket type");
}

StructureBuilder Cache(std::uint16_t handle, std::uint16_t sizeInKB) {
    return StructureBuilder(7, 0x1B, handle)
        .Word(0x07, sizeInKB)
        .Word(0x09, sizeInKB)
        .Dword(0x13, sizeInKB)
        .Dword(0x17, sizeInKB);
}

/// Rows of one table with one row.
class ProcessorGetters : public testing::Test {
protected:
    void SetUp() override { info.RetrieveInfo(); }

    ProcessorInfo info;

private:
    static std::vector<std::uint8_t> Table() {
        return TableBuilder(3, 8, 0)
            .Add(Processor())
            .Add(Cache(0x0020, 768))
            .Add(Cache(0x0021, 3072))
            .Add(Cache(0x0022, 30720))
            .RawTable();
    }

    ScriptedPowerShell powerShell_{kProcessorAnswer};
    ServedTable served_{Table()};
};

TEST_F(ProcessorGetters, CountRows) {
    EXPECT_EQ(info.GetCPUCount(), 1U);
}

TEST_F(ProcessorGetters, ReadBytes) {
    ExpectNumbers<ProcessorInfo, std::uint8_t>(
        info, {{&ProcessorInfo::GetType, 0x03, "GetType"}, {&ProcessorInfo::GetUpgrade, 0x2B, "GetUpgrade"}});
}

TEST_F(ProcessorGetters, ReadWords) {
    ExpectNumbers<ProcessorInfo, std::uint16_t>(
        info,
        {{&ProcessorInfo::GetFamily, 0xB3, "GetFamily"},
         {&ProcessorInfo::GetExternalClockInMHz, 100, "GetExternalClockInMHz"},
         {&ProcessorInfo::GetMaxSpeedInMHz, 4000, "GetMaxSpeedInMHz"},
         {&ProcessorInfo::GetCurrentSpeedInMHz, 2200, "GetCurrentSpeedInMHz"},
         {&ProcessorInfo::GetL1CacheHandle, 0x0020, "GetL1CacheHandle"},
         {&ProcessorInfo::GetL2CacheHandle, 0x0021, "GetL2CacheHandle"},
         {&ProcessorInfo::GetL3CacheHandle, 0x0022, "GetL3CacheHandle"},
         {&ProcessorInfo::GetCoreCount, 12, "GetCoreCount"},
         {&ProcessorInfo::GetEnabledCoreCount, 10, "GetEnabledCoreCount"},
         {&ProcessorInfo::GetThreadCount, 24, "GetThreadCount"},
         {&ProcessorInfo::GetEnabledThreadCount, 20, "GetEnabledThreadCount"},
         {&ProcessorInfo::GetAddrWidth, 64, "GetAddrWidth"},
         {&ProcessorInfo::GetDataWidth, 32, "GetDataWidth"}});
}

TEST_F(ProcessorGetters, ReadQuadWords) {
    ExpectNumbers<ProcessorInfo, std::uint64_t>(
        info,
        {{&ProcessorInfo::GetL1CacheSizeInKB, 768, "GetL1CacheSizeInKB"},
         {&ProcessorInfo::GetL2CacheSizeInKB, 3072, "GetL2CacheSizeInKB"},
         {&ProcessorInfo::GetL3CacheSizeInKB, 30720, "GetL3CacheSizeInKB"}});
}

TEST_F(ProcessorGetters, ReadVoltages) {
    ExpectNumbers<ProcessorInfo, float>(
        info, {{&ProcessorInfo::GetNonLegacyVoltageValue, 1.2F, "GetNonLegacyVoltageValue"}});
}

TEST_F(ProcessorGetters, ReadTexts) {
    ExpectTexts<ProcessorInfo>(
        info,
        {{&ProcessorInfo::GetVersion, "Example CPU", "GetVersion"},
         {&ProcessorInfo::GetManufacturer, "Example", "GetManufacturer"},
         {&ProcessorInfo::GetSocketDesignation, "Socket 1", "GetSocketDesignation"},
         {&ProcessorInfo::GetDeviceId, "CPU0", "GetDeviceId"},
         {&ProcessorInfo::GetCaption, "The caption", "GetCaption"},
         {&ProcessorInfo::GetDescription, "The description", "GetDescription"},
         {&ProcessorInfo::GetStringifiedType, "Central Processor", "GetStringifiedType"},
         {&ProcessorInfo::GetStringifiedFamily, "Intel(R) Xeon(R) processor", "GetStringifiedFamily"},
         {&ProcessorInfo::GetProcessorID, kProcessorIdText, "GetProcessorID"},
         {&ProcessorInfo::GetStringifiedStatus, "CPU Enabled", "GetStringifiedStatus"},
         {&ProcessorInfo::GetStringifiedUpgrade, "Socket LGA2011-3", "GetStringifiedUpgrade"},
         {&ProcessorInfo::GetSerialNumber, "SN-1", "GetSerialNumber"},
         {&ProcessorInfo::GetAssetTag, "Tag", "GetAssetTag"},
         {&ProcessorInfo::GetPartNumber, "Part", "GetPartNumber"},
         {&ProcessorInfo::GetSocketType, "The socket type", "GetSocketType"}});
}

void ExpectFlag(EBOOL flag, bool expected) {
    EXPECT_TRUE(flag.isSet);
    EXPECT_EQ(flag.value, expected);
}

TEST_F(ProcessorGetters, ReadFlags) {
    ExpectFlag(info.IsLegacyVoltageInfo(kRow), false);
    ExpectFlag(info.IsSocketPopulated(kRow), true);
    ExpectFlag(info.GetVirtualizationFirmwareEnabled(kRow), true);
    const PROCESSOR_CHARACTERISTICS characteristics = info.GetProcessorCharacteristics(kRow);
    EXPECT_EQ(characteristics.characteristicsLow, 0x44);
    ExpectFlag(characteristics.capable64bit, true);
    ExpectFlag(characteristics.multiCore, false);
    ExpectFlag(characteristics.enhacedVirtualization, true);
    ExpectFlag(characteristics.capable128bit, true);
    ExpectFlag(characteristics.arm64SoC_ID, false);
}

TEST_F(ProcessorGetters, ReadUnsetFlagsForNoRow) {
    EXPECT_FALSE(info.IsLegacyVoltageInfo(kOutOfRange).isSet);
    EXPECT_FALSE(info.IsSocketPopulated(kOutOfRange).isSet);
    EXPECT_FALSE(info.GetVirtualizationFirmwareEnabled(kOutOfRange).isSet);
    const PROCESSOR_CHARACTERISTICS characteristics = info.GetProcessorCharacteristics(kOutOfRange);
    const PROCESSOR_CHARACTERISTICS unset;
    EXPECT_EQ(std::memcmp(&characteristics, &unset, sizeof(characteristics)), 0);
    EXPECT_EQ(characteristics.characteristicsLow, 0);
    EXPECT_FALSE(characteristics.capable64bit.isSet);
}

TEST_F(ProcessorGetters, ListNoVoltagesBesidesOneValue) {
    EXPECT_EQ(info.GetLegacyVoltageInfoSize(kRow), 0U);
    EXPECT_EQ(info.GetLegacyVoltageInfo(kRow, 0), nullptr);
    EXPECT_EQ(info.GetLegacyVoltageInfoSize(kOutOfRange), 0U);
    EXPECT_EQ(info.GetLegacyVoltageInfo(kOutOfRange, 0), nullptr);
}

TEST_F(ProcessorGetters, DumpTheStructure) {
    std::size_t size = 0;
    const std::uint8_t* const bytes = info.DumpRawData(kRow, size);
    EXPECT_EQ(std::vector<std::uint8_t>(bytes, bytes + size), Processor().FormattedBytes());
    EXPECT_EQ(info.DumpRawData(kOutOfRange, size), nullptr);
    EXPECT_EQ(size, 0U);
}

TEST_F(ProcessorGetters, DumpTheStrings) {
    EXPECT_EQ(info.GetStringSessionSize(kRow), 7U);
    EXPECT_STREQ(info.DumpStringSession(kRow, 0), "Socket 1");
    EXPECT_STREQ(info.DumpStringSession(kRow, 6), "The socket type");
    EXPECT_EQ(info.DumpStringSession(kRow, 7), nullptr);
    EXPECT_EQ(info.GetStringSessionSize(kOutOfRange), 0U);
    EXPECT_EQ(info.DumpStringSession(kOutOfRange, 0), nullptr);
}

TEST_F(ProcessorGetters, KeepNoErrors) {
    EXPECT_FALSE(info.HasError(kRow) || info.HasError(kOutOfRange));
    EXPECT_EQ(info.GetErrorMessage(kRow), nullptr);
    EXPECT_EQ(info.GetErrorMessage(kOutOfRange), nullptr);
}

TEST(LegacyVoltages, AreListed) {
    const ScriptedPowerShell powerShell("");
    const ServedTable served(TableOf(BareProcessor().Byte(0x11, 0x03)).RawTable());
    ProcessorInfo info;
    info.RetrieveInfo();
    ExpectFlag(info.IsLegacyVoltageInfo(kRow), true);
    ASSERT_EQ(info.GetLegacyVoltageInfoSize(kRow), 2U);
    EXPECT_STREQ(info.GetLegacyVoltageInfo(kRow, 0), "5V");
    EXPECT_STREQ(info.GetLegacyVoltageInfo(kRow, 1), "3.3V");
    EXPECT_EQ(info.GetLegacyVoltageInfo(kRow, 2), nullptr);
    EXPECT_EQ(info.GetNonLegacyVoltageValue(kRow), std::numeric_limits<float>::max());
}

TEST(Getters, ReadNoneBeforeRetrieving) {
    EXPECT_EQ(MemoryInfo().GetMemoryDeviceCount(), 0U);
    EXPECT_EQ(MemoryInfo().GetSerialNumber(0), nullptr);
    EXPECT_EQ(ProcessorInfo().GetCPUCount(), 0U);
    EXPECT_EQ(ProcessorInfo().GetCoreCount(0), 0xFFFF);
}

}  // namespace
}  // namespace SMBIOS::Tests
