#include "smbios/processor_info.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

#include "manager/smbios_manager.h"
#include "structures/type_4.h"
#include "tests/support/decode.h"
#include "tests/support/fake_platform.h"

// The manager is once per process: every test here needs a process of its own.
namespace SMBIOS::Tests {
namespace {

using Manager::SmbiosManager;
using Manager::Types::StructureTypes;
using Parsers::EBOOL;
using Parsers::PROCESSOR_CHARACTERISTICS;
using Parsers::ProcessorInfo;
using Structures::Type_4;
using Structures::Type4::Types::Type4Struct;

constexpr std::size_t kFarIndex = std::numeric_limits<std::size_t>::max();
constexpr std::uint64_t kId = 0xBFEBFBFF000906A5;
constexpr const char* kIdText = "BFEBFBFF000906A5";

/// A processor of a 3.0.0 table that lacks nothing the firmware can give.
StructureBuilder FullProcessor(std::uint64_t id) {
    return StructureBuilder(4, 0x30, 0x0004)
        .String(0x04, "CPU0")
        .Byte(0x05, 3)
        .Byte(0x06, 0xC6)
        .String(0x07, "Maker")
        .Qword(0x08, id)
        .String(0x10, "Processor @ 2.50GHz")
        .Byte(0x11, 0x8C)
        .Word(0x12, 100)
        .Word(0x14, 4700)
        .Word(0x16, 2500)
        .Byte(0x18, 0x41)
        .Byte(0x19, 0x2D)
        .Word(0x1A, 0x0071)
        .Word(0x1C, 0x0072)
        .Word(0x1E, 0x0073)
        .String(0x20, "Serial")
        .String(0x21, "Asset")
        .String(0x22, "Part")
        .Byte(0x23, 8)
        .Byte(0x24, 6)
        .Byte(0x25, 16)
        .Word(0x26, 0x00FC);
}

StructureBuilder Cache(std::uint16_t handle, std::uint16_t maximumSize) {
    return StructureBuilder(7, 0x13, handle).Word(0x07, maximumSize).Word(0x09, 1);
}

TableBuilder TableWithCaches() {
    return TableBuilder(3, 0, 0).Add(Cache(0x0071, 512)).Add(Cache(0x0072, 2048)).Add(Cache(0x0073, 16384));
}

/// As an earlier call's completion would have left them.
void SupplyCacheSizes(Type4Struct& processor) {
    processor.l1CacheSize = 64;
    processor.l2CacheSize = 1280;
    processor.l3CacheSize = 8192;
}

std::vector<std::uint8_t> TableOf(const std::vector<StructureBuilder>& processors) {
    TableBuilder table = TableWithCaches();
    for (const StructureBuilder& processor : processors) {
        table.Add(processor);
    }
    return table.RawTable();
}

std::string CommandLineOf(const std::string& query) {
    return R"(powershell.exe -ExecutionPolicy Unrestricted -Command "Get-WmiObject -Namespace 'root\cimv2' -Query \")" +
           query + R"(\" | ConvertTo-Json")";
}

/// What a full processor is asked for: only WMI knows these, and the manufacturer is asked for always.
constexpr const char* kQueryOfAFullProcessor =
    "SELECT AddressWidth, Caption, DataWidth, Description, DeviceID, Manufacturer, MaxClockSpeed, "
    "ProcessorId "
    "FROM Win32_Processor WHERE ProcessorId = 'BFEBFBFF000906A5'";

constexpr const char* kQueryOfEverything =
    "SELECT AddressWidth, Caption, DataWidth, Description, DeviceID, L2CacheSize, L3CacheSize, Manufacturer, "
    "MaxClockSpeed, Name, NumberOfCores, NumberOfEnabledCore, NumberOfLogicalProcessors, ProcessorId, "
    "VirtualizationFirmwareEnabled FROM Win32_Processor";

/// A ProcessorInfo over a firmware table and a PowerShell of our own.
class ProcessorInfoTest : public testing::Test {
protected:
    void Load(const std::vector<StructureBuilder>& processors) { LoadTable(TableOf(processors)); }

    void LoadTable(const std::vector<std::uint8_t>& table) {
        firmware_.Supply(table);
        info_.RetrieveInfo();
    }

    /// The record of the first processor of the table.
    static std::shared_ptr<Type4Struct> FirstRecord() {
        const auto found =
            SmbiosManager::GetInstance()->GetStructuresByType(StructureTypes::ProcessorInformation);
        return std::dynamic_pointer_cast<Type_4>(found.at(0))->GetRecord();
    }

    std::vector<std::string> Ids() const {
        std::vector<std::string> ids;
        for (std::size_t i = 0; i < info_.GetCPUCount(); ++i) {
            const char* const id = info_.GetProcessorID(i);
            ids.emplace_back(id == nullptr ? "(none)" : id);
        }
        return ids;
    }

    FakeFirmwareTable firmware_;
    FakeCommandRunner powershell_;
    ProcessorInfo info_;
};

// Without rows

TEST_F(ProcessorInfoTest, BeforeRetrieveInfoThereAreNoRows) {
    EXPECT_EQ(info_.GetCPUCount(), 0U);
}

TEST_F(ProcessorInfoTest, ATableWithoutProcessorsGivesNoRowAndNoQuery) {
    LoadTable(TableBuilder(3, 0, 0).Add({1, 8}).RawTable());
    EXPECT_EQ(info_.GetCPUCount(), 0U);
    EXPECT_TRUE(powershell_.CommandLines().empty());
}

TEST_F(ProcessorInfoTest, EveryGetterGivesItsSentinelOutOfRange) {
    Load({FullProcessor(kId)});
    for (const std::size_t index : {std::size_t{1}, kFarIndex}) {
        EXPECT_EQ(info_.GetVersion(index), nullptr);
        EXPECT_EQ(info_.GetManufacturer(index), nullptr);
        EXPECT_EQ(info_.GetSocketDesignation(index), nullptr);
        EXPECT_EQ(info_.GetDeviceId(index), nullptr);
        EXPECT_EQ(info_.GetCaption(index), nullptr);
        EXPECT_EQ(info_.GetDescription(index), nullptr);
        EXPECT_EQ(info_.GetType(index), 255);
        EXPECT_EQ(info_.GetStringifiedType(index), nullptr);
        EXPECT_EQ(info_.GetFamily(index), 65535);
        EXPECT_EQ(info_.GetStringifiedFamily(index), nullptr);
        EXPECT_EQ(info_.GetProcessorID(index), nullptr);
        EXPECT_FALSE(info_.IsLegacyVoltageInfo(index).isSet);
        EXPECT_EQ(info_.GetLegacyVoltageInfoSize(index), 0U);
        EXPECT_EQ(info_.GetLegacyVoltageInfo(index, 0), nullptr);
        EXPECT_EQ(info_.GetNonLegacyVoltageValue(index), 3.4028235e38F);
        EXPECT_EQ(info_.GetExternalClockInMHz(index), 65535);
        EXPECT_EQ(info_.GetMaxSpeedInMHz(index), 65535);
        EXPECT_EQ(info_.GetCurrentSpeedInMHz(index), 65535);
        EXPECT_FALSE(info_.IsSocketPopulated(index).isSet);
        EXPECT_EQ(info_.GetStringifiedStatus(index), nullptr);
        EXPECT_EQ(info_.GetUpgrade(index), 255);
        EXPECT_EQ(info_.GetStringifiedUpgrade(index), nullptr);
        EXPECT_EQ(info_.GetL1CacheHandle(index), 65535);
        EXPECT_EQ(info_.GetL2CacheHandle(index), 65535);
        EXPECT_EQ(info_.GetL3CacheHandle(index), 65535);
        EXPECT_EQ(info_.GetL1CacheSizeInKB(index), 18446744073709551615U);
        EXPECT_EQ(info_.GetL2CacheSizeInKB(index), 18446744073709551615U);
        EXPECT_EQ(info_.GetL3CacheSizeInKB(index), 18446744073709551615U);
        EXPECT_EQ(info_.GetSerialNumber(index), nullptr);
        EXPECT_EQ(info_.GetAssetTag(index), nullptr);
        EXPECT_EQ(info_.GetPartNumber(index), nullptr);
        EXPECT_EQ(info_.GetCoreCount(index), 65535);
        EXPECT_EQ(info_.GetEnabledCoreCount(index), 65535);
        EXPECT_EQ(info_.GetThreadCount(index), 65535);
        EXPECT_EQ(info_.GetEnabledThreadCount(index), 65535);
        EXPECT_EQ(info_.GetSocketType(index), nullptr);
        EXPECT_EQ(info_.GetAddrWidth(index), 65535);
        EXPECT_EQ(info_.GetDataWidth(index), 65535);
        EXPECT_FALSE(info_.GetVirtualizationFirmwareEnabled(index).isSet);
        EXPECT_EQ(info_.GetProcessorCharacteristics(index).characteristicsLow, 0);
        EXPECT_FALSE(info_.GetProcessorCharacteristics(index).capable64bit.isSet);
        std::size_t size = 99;
        EXPECT_EQ(info_.DumpRawData(index, size), nullptr);
        EXPECT_EQ(size, 0U);
        EXPECT_EQ(info_.GetStringSessionSize(index), 0U);
        EXPECT_EQ(info_.DumpStringSession(index, 0), nullptr);
        EXPECT_FALSE(info_.HasError(index));
        EXPECT_EQ(info_.GetErrorMessage(index), nullptr);
    }
}

TEST_F(ProcessorInfoTest, ATableThatCannotBeReadThrows) {
    EXPECT_THROW(info_.RetrieveInfo(), std::exception);
}

// Getters

TEST_F(ProcessorInfoTest, GettersGiveWhatTheFirmwareSays) {
    Load({FullProcessor(kId)});
    ASSERT_EQ(info_.GetCPUCount(), 1U);
    EXPECT_STREQ(info_.GetVersion(0), "Processor @ 2.50GHz");
    EXPECT_STREQ(info_.GetManufacturer(0), "Maker");
    EXPECT_STREQ(info_.GetSocketDesignation(0), "CPU0");
    EXPECT_EQ(info_.GetType(0), 3);
    EXPECT_STREQ(info_.GetStringifiedType(0), "Central Processor");
    EXPECT_EQ(info_.GetFamily(0), 0xC6);
    EXPECT_STREQ(info_.GetStringifiedFamily(0), "Intel(R) Core(TM) i7 processor");
    EXPECT_STREQ(info_.GetProcessorID(0), kIdText);
    EXPECT_EQ(info_.GetExternalClockInMHz(0), 100);
    EXPECT_EQ(info_.GetCurrentSpeedInMHz(0), 2500);
    EXPECT_TRUE(info_.IsSocketPopulated(0).isSet);
    EXPECT_TRUE(info_.IsSocketPopulated(0));
    EXPECT_STREQ(info_.GetStringifiedStatus(0), "CPU Enabled");
    EXPECT_EQ(info_.GetUpgrade(0), 0x2D);
    EXPECT_STREQ(info_.GetStringifiedUpgrade(0), "Socket LGA1150");
    EXPECT_EQ(info_.GetL1CacheHandle(0), 0x0071);
    EXPECT_EQ(info_.GetL2CacheHandle(0), 0x0072);
    EXPECT_EQ(info_.GetL3CacheHandle(0), 0x0073);
    EXPECT_STREQ(info_.GetSerialNumber(0), "Serial");
    EXPECT_STREQ(info_.GetAssetTag(0), "Asset");
    EXPECT_STREQ(info_.GetPartNumber(0), "Part");
    EXPECT_EQ(info_.GetCoreCount(0), 8);
    EXPECT_EQ(info_.GetEnabledCoreCount(0), 6);
    EXPECT_EQ(info_.GetThreadCount(0), 16);
    EXPECT_TRUE(info_.GetVirtualizationFirmwareEnabled(0));
    EXPECT_FALSE(info_.HasError(0));
    EXPECT_EQ(info_.GetErrorMessage(0), nullptr);
}

TEST_F(ProcessorInfoTest, GettersGiveTheFieldsOfA380Table) {
    const StructureBuilder processor =
        StructureBuilder(4, 0x33).Qword(0x08, kId).Word(0x30, 12).String(0x32, "LGA1851");
    LoadTable(TableBuilder(3, 8, 0).Add(processor).RawTable());
    EXPECT_EQ(info_.GetEnabledThreadCount(0), 12);
    EXPECT_STREQ(info_.GetSocketType(0), "LGA1851");
}

TEST_F(ProcessorInfoTest, MaximumSpeedIsNotTakenFromTheFirmware) {
    Load({FullProcessor(kId)});
    EXPECT_EQ(info_.GetMaxSpeedInMHz(0), 65535);
}

TEST_F(ProcessorInfoTest, AVoltageValueIsNoList) {
    Load({FullProcessor(kId).Byte(0x11, 0x8C)});
    EXPECT_TRUE(info_.IsLegacyVoltageInfo(0).isSet);
    EXPECT_FALSE(info_.IsLegacyVoltageInfo(0));
    EXPECT_EQ(info_.GetNonLegacyVoltageValue(0), 1.2F);
    EXPECT_EQ(info_.GetLegacyVoltageInfoSize(0), 0U);
    EXPECT_EQ(info_.GetLegacyVoltageInfo(0, 0), nullptr);
}

TEST_F(ProcessorInfoTest, AVoltageListIsNoValue) {
    Load({FullProcessor(kId).Byte(0x11, 0x03)});
    EXPECT_TRUE(info_.IsLegacyVoltageInfo(0));
    ASSERT_EQ(info_.GetLegacyVoltageInfoSize(0), 2U);
    EXPECT_STREQ(info_.GetLegacyVoltageInfo(0, 0), "5V");
    EXPECT_STREQ(info_.GetLegacyVoltageInfo(0, 1), "3.3V");
    EXPECT_EQ(info_.GetLegacyVoltageInfo(0, 2), nullptr);
    EXPECT_EQ(info_.GetNonLegacyVoltageValue(0), 3.4028235e38F);
}

TEST_F(ProcessorInfoTest, AVoltageListMayBeEmpty) {
    Load({FullProcessor(kId).Byte(0x11, 0x00)});
    EXPECT_TRUE(info_.IsLegacyVoltageInfo(0));
    EXPECT_EQ(info_.GetLegacyVoltageInfoSize(0), 0U);
    EXPECT_EQ(info_.GetLegacyVoltageInfo(0, 0), nullptr);
}

TEST_F(ProcessorInfoTest, AVoltageListEndsWithItsLastEntryHoweverManyItHas) {
    Load({FullProcessor(kId)});
    FirstRecord()->supportedVoltages = {"5V", "3.3V", "2.9V", "1.8V"};
    info_.RetrieveInfo();
    EXPECT_EQ(info_.GetLegacyVoltageInfoSize(0), 4U);
    EXPECT_STREQ(info_.GetLegacyVoltageInfo(0, 3), "1.8V");
    EXPECT_EQ(info_.GetLegacyVoltageInfo(0, 4), nullptr);
}

TEST_F(ProcessorInfoTest, TheMaskedVoltageByteShowsInTheRawData) {
    Load({FullProcessor(kId).Byte(0x11, 0x7A)});
    std::size_t size = 0;
    const std::uint8_t* const bytes = info_.DumpRawData(0, size);
    ASSERT_EQ(size, 0x30U);
    EXPECT_EQ(bytes[0x11], 0x02);
    EXPECT_EQ(bytes[0x16], 0xC4);  // 2500 MHz, as the firmware has it
}

TEST_F(ProcessorInfoTest, AnUnpopulatedSocketIsSetToFalse) {
    Load({FullProcessor(kId).Byte(0x18, 0x00)});
    EXPECT_TRUE(info_.IsSocketPopulated(0).isSet);
    EXPECT_FALSE(info_.IsSocketPopulated(0));
    EXPECT_EQ(info_.GetStringifiedStatus(0), nullptr);
}

TEST_F(ProcessorInfoTest, CharacteristicsAreGivenAsNamedFlags) {
    Load({FullProcessor(kId).Word(0x26, 0x0304)});
    const PROCESSOR_CHARACTERISTICS characteristics = info_.GetProcessorCharacteristics(0);
    EXPECT_EQ(characteristics.characteristicsLow, 0x04);
    EXPECT_TRUE(characteristics.capable64bit);
    EXPECT_FALSE(characteristics.multiCore);
    EXPECT_TRUE(characteristics.multiCore.isSet);
    EXPECT_TRUE(characteristics.capable128bit);
    EXPECT_TRUE(characteristics.arm64SoC_ID);
}

TEST_F(ProcessorInfoTest, EachCharacteristicFollowsItsOwnBit) {
    std::vector<StructureBuilder> processors;
    for (std::uint64_t bit = 0; bit < 16; ++bit) {
        processors.push_back(FullProcessor(bit).Word(0x26, static_cast<std::uint16_t>(1U << bit)));
    }
    Load(processors);
    ASSERT_EQ(info_.GetCPUCount(), 16U);
    for (std::size_t bit = 0; bit < 16; ++bit) {
        const PROCESSOR_CHARACTERISTICS each = info_.GetProcessorCharacteristics(bit);
        const EBOOL flags[] = {each.capable64bit,
                               each.multiCore,
                               each.hardwareThread,
                               each.executeProtection,
                               each.enhacedVirtualization,
                               each.powerPerformanceControl,
                               each.capable128bit,
                               each.arm64SoC_ID};
        for (std::size_t flag = 0; flag < std::size(flags); ++flag) {
            EXPECT_EQ(flags[flag].value, flag + 2 == bit) << "bit " << bit << " flag " << flag;
            EXPECT_TRUE(flags[flag].isSet);
        }
    }
}

TEST_F(ProcessorInfoTest, TheLowCharacteristicsAreTheLowByteAsItIs) {
    std::vector<StructureBuilder> processors;
    for (std::uint64_t bit = 0; bit < 16; ++bit) {
        processors.push_back(FullProcessor(bit).Word(0x26, static_cast<std::uint16_t>(1U << bit)));
    }
    Load(processors);
    ASSERT_EQ(info_.GetCPUCount(), 16U);
    for (std::size_t bit = 0; bit < 16; ++bit) {
        EXPECT_EQ(info_.GetProcessorCharacteristics(bit).characteristicsLow, bit < 8 ? 1 << bit : 0);
    }
}

TEST_F(ProcessorInfoTest, CharacteristicsThatAreTooNarrowThrow) {
    Load({FullProcessor(kId)});
    FirstRecord()->characteristicsFlags->Assign(0, 9);
    info_.RetrieveInfo();
    try {
        (void)info_.GetProcessorCharacteristics(0);
        FAIL() << "nothing thrown";
    } catch (const std::out_of_range& failure) {
        EXPECT_STREQ(failure.what(), "Bit index out of range for Dynamic_BitSet");
    }
}

TEST_F(ProcessorInfoTest, CharacteristicsNeedBothFlagsAndWord) {
    Load({FullProcessor(kId)});
    FirstRecord()->processorCharacteristics.reset();
    info_.RetrieveInfo();
    EXPECT_FALSE(info_.GetProcessorCharacteristics(0).capable64bit.isSet);
}

TEST_F(ProcessorInfoTest, StringSessionIsTheStringSet) {
    Load({FullProcessor(kId)});
    ASSERT_EQ(info_.GetStringSessionSize(0), 6U);
    EXPECT_STREQ(info_.DumpStringSession(0, 0), "CPU0");
    EXPECT_STREQ(info_.DumpStringSession(0, 5), "Part");
    EXPECT_EQ(info_.DumpStringSession(0, 6), nullptr);
}

// Caches

TEST_F(ProcessorInfoTest, CacheSizesAreTheMaximumSizesOfTheLinkedCaches) {
    Load({FullProcessor(kId)});
    EXPECT_EQ(info_.GetL1CacheSizeInKB(0), 512U);
    EXPECT_EQ(info_.GetL2CacheSizeInKB(0), 2048U);
    EXPECT_EQ(info_.GetL3CacheSizeInKB(0), 16384U);
}

TEST_F(ProcessorInfoTest, ACacheHandleThatNamesNothingHasNoSize) {
    powershell_.FailToStart();
    Load({FullProcessor(kId).Word(0x1C, 0x0099)});
    EXPECT_EQ(info_.GetL2CacheHandle(0), 0x0099);
    EXPECT_EQ(info_.GetL2CacheSizeInKB(0), 18446744073709551615U);
}

TEST_F(ProcessorInfoTest, ACacheHandleThatNamesNothingIsCompletedFromWmi) {
    powershell_.Answer(R"({"ProcessorId":"BFEBFBFF000906A5","L2CacheSize":1280})");
    Load({FullProcessor(kId).Word(0x1C, 0x0099)});
    EXPECT_EQ(info_.GetL2CacheSizeInKB(0), 1280U);
}

TEST_F(ProcessorInfoTest, ACacheHandleOfFFFFHasNoSize) {
    Load({FullProcessor(kId).Word(0x1A, 0xFFFF)});
    EXPECT_EQ(info_.GetL1CacheHandle(0), 65535);
    EXPECT_EQ(info_.GetL1CacheSizeInKB(0), 18446744073709551615U);
}

TEST_F(ProcessorInfoTest, OfTwoCachesWithOneHandleTheFirstCounts) {
    LoadTable(TableBuilder(3, 0, 0)
                  .Add(FullProcessor(kId))
                  .Add(Cache(0x0071, 100))
                  .Add(Cache(0x0071, 200))
                  .RawTable());
    EXPECT_EQ(info_.GetL1CacheSizeInKB(0), 100U);
}

TEST_F(ProcessorInfoTest, AMalformedCacheTakesPartWithHandleZero) {
    LoadTable(TableBuilder(3, 0, 0)
                  .Add({7, 8, 0x0071})
                  .Add(Cache(0x0000, 100))
                  .Add(FullProcessor(kId).Word(0x1A, 0x0000))
                  .RawTable());
    EXPECT_EQ(info_.GetL1CacheSizeInKB(0), 18446744073709551615U);
}

TEST_F(ProcessorInfoTest, CachesAreLinkedAgainAtEachCall) {
    powershell_.Answer(R"({"ProcessorId":"BFEBFBFF000906A5","L2CacheSize":1280})");
    Load({FullProcessor(kId).Word(0x1C, 0x0099)});
    powershell_.FailToStart();
    info_.RetrieveInfo();
    EXPECT_EQ(info_.GetL2CacheSizeInKB(0), 18446744073709551615U);
}

TEST_F(ProcessorInfoTest, ACacheHandleThatNamesNothingLosesTheSizeOfAnEarlierCall) {
    powershell_.FailToStart();
    Load({FullProcessor(kId).Word(0x1A, 0x0097).Word(0x1C, 0x0098).Word(0x1E, 0x0099)});
    SupplyCacheSizes(*FirstRecord());
    info_.RetrieveInfo();
    EXPECT_EQ(info_.GetL1CacheSizeInKB(0), 18446744073709551615U);
    EXPECT_EQ(info_.GetL2CacheSizeInKB(0), 18446744073709551615U);
    EXPECT_EQ(info_.GetL3CacheSizeInKB(0), 18446744073709551615U);
}

TEST_F(ProcessorInfoTest, AnAbsentCacheHandleLosesTheSizeOfAnEarlierCall) {
    powershell_.FailToStart();
    Load({FullProcessor(kId).Word(0x1A, 0xFFFF).Word(0x1C, 0xFFFF).Word(0x1E, 0xFFFF)});
    SupplyCacheSizes(*FirstRecord());
    info_.RetrieveInfo();
    EXPECT_EQ(info_.GetL1CacheSizeInKB(0), 18446744073709551615U);
    EXPECT_EQ(info_.GetL2CacheSizeInKB(0), 18446744073709551615U);
    EXPECT_EQ(info_.GetL3CacheSizeInKB(0), 18446744073709551615U);
}

TEST_F(ProcessorInfoTest, ACacheSizeThatOnlyWmiKnowsIsAskedForAtEachCall) {
    powershell_.Answer(
        R"({"ProcessorId":"BFEBFBFF000906A5","AddressWidth":64,"Caption":"c","DataWidth":64,"Description":"d",
            "DeviceID":"CPU0","L2CacheSize":1280,"L3CacheSize":8192,"MaxClockSpeed":4700})");
    Load({FullProcessor(kId).Word(0x1C, 0xFFFF).Word(0x1E, 0x0099)});
    info_.RetrieveInfo();
    ASSERT_EQ(powershell_.CommandLines().size(), 2U);
    EXPECT_EQ(powershell_.CommandLines()[1],
              CommandLineOf("SELECT L2CacheSize, L3CacheSize, Manufacturer, ProcessorId FROM Win32_Processor "
                            "WHERE ProcessorId = 'BFEBFBFF000906A5'"));
}

// Filing

TEST_F(ProcessorInfoTest, RowsStandInAscendingProcessorIdOrder) {
    Load({FullProcessor(2), FullProcessor(0xF000000000000000), FullProcessor(1)});
    EXPECT_EQ(Ids(), (std::vector<std::string>{"0000000000000001", "0000000000000002", "F000000000000000"}));
}

TEST_F(ProcessorInfoTest, OfTwoSocketsWithOneProcessorIdTheFirstIsListed) {
    Load({FullProcessor(kId).String(0x04, "first"), FullProcessor(kId).String(0x04, "second")});
    ASSERT_EQ(info_.GetCPUCount(), 1U);
    EXPECT_STREQ(info_.GetSocketDesignation(0), "first");
}

// Queries

TEST_F(ProcessorInfoTest, AFullProcessorIsAskedForWhatOnlyWmiKnowsAndItsManufacturer) {
    Load({FullProcessor(kId)});
    EXPECT_EQ(powershell_.CommandLines(), std::vector<std::string>{CommandLineOf(kQueryOfAFullProcessor)});
}

TEST_F(ProcessorInfoTest, ACompletedProcessorIsStillAskedForItsManufacturer) {
    powershell_.Answer(R"({"ProcessorId":"BFEBFBFF000906A5","AddressWidth":64,"Caption":"c","DataWidth":64,
                           "Description":"d","DeviceID":"CPU0","MaxClockSpeed":4700})");
    Load({FullProcessor(kId)});
    info_.RetrieveInfo();
    ASSERT_EQ(powershell_.CommandLines().size(), 2U);
    EXPECT_EQ(powershell_.CommandLines()[1],
              CommandLineOf("SELECT Manufacturer, ProcessorId FROM Win32_Processor WHERE ProcessorId = "
                            "'BFEBFBFF000906A5'"));
}

TEST_F(ProcessorInfoTest, EveryFiledProcessorIsInTheFilterInTableOrder) {
    Load({FullProcessor(2), FullProcessor(1), FullProcessor(2)});
    EXPECT_EQ(
        powershell_.CommandLines(),
        std::vector<std::string>{CommandLineOf(
            "SELECT AddressWidth, Caption, DataWidth, Description, DeviceID, Manufacturer, MaxClockSpeed, "
            "ProcessorId FROM Win32_Processor WHERE ProcessorId = '0000000000000002' OR ProcessorId = "
            "'0000000000000001' OR ProcessorId = '0000000000000002'")});
}

TEST_F(ProcessorInfoTest, OfOneProcessorIdEachProcessorIsAskedForWhatItLacksItself) {
    Load({FullProcessor(1), FullProcessor(1).Byte(0x10, 0)});
    EXPECT_EQ(
        powershell_.CommandLines(),
        std::vector<std::string>{CommandLineOf(
            "SELECT AddressWidth, Caption, DataWidth, Description, DeviceID, Manufacturer, MaxClockSpeed, "
            "Name, ProcessorId FROM Win32_Processor WHERE ProcessorId = '0000000000000001' OR ProcessorId = "
            "'0000000000000001'")});
}

TEST_F(ProcessorInfoTest, VirtualizationIsAskedForWhereTheTableIsTooOldToTellIt) {
    LoadTable(
        TableBuilder(2, 4, 0).Add(StructureBuilder(4, 0x23).Qword(0x08, kId).String(0x10, "P")).RawTable());
    ASSERT_EQ(powershell_.CommandLines().size(), 1U);
    EXPECT_EQ(powershell_.CommandLines()[0],
              CommandLineOf(
                  "SELECT AddressWidth, Caption, DataWidth, Description, DeviceID, L2CacheSize, L3CacheSize, "
                  "Manufacturer, MaxClockSpeed, NumberOfCores, NumberOfEnabledCore, "
                  "NumberOfLogicalProcessors, ProcessorId, VirtualizationFirmwareEnabled FROM "
                  "Win32_Processor WHERE ProcessorId = 'BFEBFBFF000906A5'"));
}

TEST_F(ProcessorInfoTest, AMalformedProcessorHasNoIdAndWidensTheQuery) {
    powershell_.Answer(R"([{"ProcessorId":"W2","Name":"two"},{"ProcessorId":"W1","Name":"one"}])");
    Load({StructureBuilder(4, 0x10), FullProcessor(kId)});
    EXPECT_EQ(powershell_.CommandLines(), std::vector<std::string>{CommandLineOf(kQueryOfEverything)});
    EXPECT_EQ(Ids(), (std::vector<std::string>{"W1", "W2"}));
}

TEST_F(ProcessorInfoTest, ProcessorsFiledBeforeTheWideningStayAndLaterOnesDoNot) {
    powershell_.FailToStart();
    Load({FullProcessor(1), StructureBuilder(4, 0x10), FullProcessor(3)});
    EXPECT_EQ(powershell_.CommandLines(), std::vector<std::string>{CommandLineOf(kQueryOfEverything)});
    EXPECT_EQ(Ids(), std::vector<std::string>{"0000000000000001"});
}

// Completion

TEST_F(ProcessorInfoTest, EveryPropertyIsStoredInItsField) {
    powershell_.Answer(
        R"({"ProcessorId":"W","DeviceID":"CPU7","Name":"name","Caption":"caption","L2CacheSize":1,
        "L3CacheSize":2,"NumberOfLogicalProcessors":3,"NumberOfEnabledCore":4,"NumberOfCores":5,
        "MaxClockSpeed":6,"Description":"description","AddressWidth":7,"DataWidth":8,
        "VirtualizationFirmwareEnabled":true,"Manufacturer":"manufacturer"})");
    Load({StructureBuilder(4, 0x10)});
    ASSERT_EQ(info_.GetCPUCount(), 1U);
    EXPECT_STREQ(info_.GetProcessorID(0), "W");
    EXPECT_STREQ(info_.GetDeviceId(0), "CPU7");
    EXPECT_STREQ(info_.GetVersion(0), "name");
    EXPECT_STREQ(info_.GetCaption(0), "caption");
    EXPECT_EQ(info_.GetL2CacheSizeInKB(0), 1U);
    EXPECT_EQ(info_.GetL3CacheSizeInKB(0), 2U);
    EXPECT_EQ(info_.GetThreadCount(0), 3);
    EXPECT_EQ(info_.GetEnabledCoreCount(0), 4);
    EXPECT_EQ(info_.GetCoreCount(0), 5);
    EXPECT_EQ(info_.GetMaxSpeedInMHz(0), 6);
    EXPECT_STREQ(info_.GetDescription(0), "description");
    EXPECT_EQ(info_.GetAddrWidth(0), 7);
    EXPECT_EQ(info_.GetDataWidth(0), 8);
    EXPECT_TRUE(info_.GetVirtualizationFirmwareEnabled(0));
    EXPECT_STREQ(info_.GetManufacturer(0), "manufacturer");
}

TEST_F(ProcessorInfoTest, ARowThatOnlyWmiKnowsHasNoStatusAndNoRawData) {
    powershell_.Answer(R"({"ProcessorId":"W"})");
    Load({StructureBuilder(4, 0x10)});
    ASSERT_EQ(info_.GetCPUCount(), 1U);
    EXPECT_FALSE(info_.IsSocketPopulated(0).isSet);
    EXPECT_FALSE(info_.IsLegacyVoltageInfo(0).isSet);
    EXPECT_FALSE(info_.GetVirtualizationFirmwareEnabled(0).isSet);
    EXPECT_FALSE(info_.GetProcessorCharacteristics(0).capable64bit.isSet);
    std::size_t size = 99;
    EXPECT_EQ(info_.DumpRawData(0, size), nullptr);
    EXPECT_EQ(size, 0U);
}

TEST_F(ProcessorInfoTest, AManufacturerFromWmiReplacesTheFirmwares) {
    powershell_.Answer(R"({"ProcessorId":"BFEBFBFF000906A5","Manufacturer":"GenuineMaker"})");
    Load({FullProcessor(kId)});
    EXPECT_STREQ(info_.GetManufacturer(0), "GenuineMaker");
}

TEST_F(ProcessorInfoTest, AnEmptyTextThatWasAskedForIsStored) {
    powershell_.Answer(R"({"ProcessorId":"0000000000000002","Name":""})");
    Load({FullProcessor(1).Byte(0x10, 0), FullProcessor(2)});
    EXPECT_EQ(info_.GetVersion(1), nullptr);
}

TEST_F(ProcessorInfoTest, AnEmptyManufacturerFromWmiIsNotTaken) {
    powershell_.Answer(R"({"ProcessorId":"BFEBFBFF000906A5","Manufacturer":"","MaxClockSpeed":4700})");
    Load({FullProcessor(kId)});
    EXPECT_STREQ(info_.GetManufacturer(0), "Maker");
    EXPECT_EQ(info_.GetMaxSpeedInMHz(0), 4700);
}

TEST_F(ProcessorInfoTest, AManufacturerThatIsNoTextIsPassedOver) {
    powershell_.Answer(R"({"ProcessorId":"BFEBFBFF000906A5","Manufacturer":null,"MaxClockSpeed":4700})");
    Load({FullProcessor(kId)});
    EXPECT_STREQ(info_.GetManufacturer(0), "Maker");
    EXPECT_EQ(info_.GetMaxSpeedInMHz(0), 4700);
}

TEST_F(ProcessorInfoTest, ANullMemberEndsTheCompletionAndKeepsWhatWasStored) {
    powershell_.Answer(
        R"([{"ProcessorId":"0000000000000001","Caption":"kept","DataWidth":null,"DeviceID":"lost"},
                           {"ProcessorId":"0000000000000002","Caption":"lost"}])");
    Load({FullProcessor(1), FullProcessor(2)});
    EXPECT_STREQ(info_.GetCaption(0), "kept");
    EXPECT_EQ(info_.GetDataWidth(0), 65535);
    EXPECT_EQ(info_.GetDeviceId(0), nullptr);
    EXPECT_EQ(info_.GetCaption(1), nullptr);
}

TEST_F(ProcessorInfoTest, ATextWhereANumberIsExpectedEndsTheCompletion) {
    powershell_.Answer(R"({"ProcessorId":"BFEBFBFF000906A5","AddressWidth":"64","Caption":"not reached"})");
    Load({FullProcessor(kId)});
    EXPECT_EQ(info_.GetAddrWidth(0), 65535);
    EXPECT_EQ(info_.GetCaption(0), nullptr);
}

TEST_F(ProcessorInfoTest, ANumberWhereABooleanIsExpectedEndsTheCompletion) {
    powershell_.Answer(R"({"ProcessorId":"W","VirtualizationFirmwareEnabled":1})");
    Load({StructureBuilder(4, 0x10)});
    ASSERT_EQ(info_.GetCPUCount(), 1U);
    EXPECT_FALSE(info_.GetVirtualizationFirmwareEnabled(0).isSet);
}

TEST_F(ProcessorInfoTest, AnAnswerForAnUnknownIdAddsARow) {
    powershell_.Answer(R"([{"ProcessorId":"FFFFFFFFFFFFFFFF","DeviceID":"CPU1"}])");
    Load({FullProcessor(kId)});
    EXPECT_EQ(Ids(), (std::vector<std::string>{kIdText, "FFFFFFFFFFFFFFFF"}));
    EXPECT_STREQ(info_.GetDeviceId(1), "CPU1");
}

TEST_F(ProcessorInfoTest, ProcessorIdsThatDifferInCaseAreDifferent) {
    powershell_.Answer(R"({"ProcessorId":"bfebfbff000906a5","DeviceID":"CPU1"})");
    Load({FullProcessor(kId)});
    EXPECT_EQ(Ids(), (std::vector<std::string>{kIdText, "bfebfbff000906a5"}));
    EXPECT_EQ(info_.GetDeviceId(0), nullptr);
    EXPECT_STREQ(info_.GetDeviceId(1), "CPU1");
}

TEST_F(ProcessorInfoTest, FailuresOfTheCompletionLeaveTheFirmwaresRows) {
    for (const char* const answer : {"", "not JSON", R"([{"ProcessorId":)", "[]"}) {
        powershell_.Answer(answer);
        Load({FullProcessor(kId)});
        EXPECT_EQ(Ids(), std::vector<std::string>{kIdText}) << answer;
        EXPECT_EQ(info_.GetCurrentSpeedInMHz(0), 2500) << answer;
    }
}

TEST(ProcessorInfoLayout, AnObjectIsTwoPointersLarge) {
    EXPECT_EQ(sizeof(ProcessorInfo), 2 * sizeof(void*));
}

}  // namespace
}  // namespace SMBIOS::Tests
