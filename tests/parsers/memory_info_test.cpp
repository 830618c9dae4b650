#include "smbios/memory_info.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "manager/smbios_manager.h"
#include "structures/type_17.h"
#include "tests/support/counted_allocations.h"
#include "tests/support/decode.h"
#include "tests/support/fake_platform.h"

// The manager is once per process: every test here needs a process of its own.
namespace SMBIOS::Tests {
namespace {

using Manager::SmbiosManager;
using Manager::Types::StructureTypes;
using Parsers::MEMORY_TYPE_DETAILS;
using Parsers::MemoryInfo;
using Structures::Type_17;

constexpr std::size_t kDepth = 1'000'000;
constexpr std::size_t kFarIndex = std::numeric_limits<std::size_t>::max();

/// A device of a 2.8.0 table that lacks nothing the firmware can give.
StructureBuilder FullDevice(const std::string& serialNumber) {
    return StructureBuilder(17, 0x28, 0x0011)
        .Word(0x04, 0x0010)
        .Word(0x06, 0xFFFE)
        .Word(0x08, 72)
        .Word(0x0A, 64)
        .Word(0x0C, 0x4000)
        .Byte(0x0E, 0x09)
        .Byte(0x0F, 0x01)
        .String(0x10, "DIMM_A1")
        .String(0x11, "BANK 0")
        .Byte(0x12, 0x1A)
        .Word(0x13, 0x2080)
        .Word(0x15, 3200)
        .String(0x17, "Maker")
        .String(0x18, serialNumber)
        .String(0x19, "Asset")
        .String(0x1A, "Part")
        .Byte(0x1B, 2)
        .Word(0x20, 2933)
        .Word(0x22, 1140)
        .Word(0x24, 1260)
        .Word(0x26, 1200);
}

/// The same with string number 0, none, for its serial number; an empty text would end the string set.
StructureBuilder DeviceWithoutSerialNumber() {
    return FullDevice("not referred to").Byte(0x18, 0);
}

std::vector<std::uint8_t> TableOf(const std::vector<StructureBuilder>& devices) {
    TableBuilder table(2, 8, 0);
    for (const StructureBuilder& device : devices) {
        table.Add(device);
    }
    return table.RawTable();
}

/// A MemoryInfo over a firmware table and a PowerShell of our own.
class MemoryInfoTest : public testing::Test {
protected:
    void Load(const std::vector<StructureBuilder>& devices) {
        firmware_.Supply(TableOf(devices));
        info_.RetrieveInfo();
        EXPECT_EQ(FirmwareDevices().size(), devices.size()) << "a string set of the table ended early";
    }

    static std::vector<std::shared_ptr<Structures::BaseStructure>> FirmwareDevices() {
        return SmbiosManager::GetInstance()->GetStructuresByType(StructureTypes::MemoryDevice);
    }

    std::vector<std::string> SerialNumbers() const {
        std::vector<std::string> serials;
        for (std::size_t i = 0; i < info_.GetMemoryDeviceCount(); ++i) {
            const char* const serial = info_.GetSerialNumber(i);
            serials.emplace_back(serial == nullptr ? "(none)" : serial);
        }
        return serials;
    }

    FakeFirmwareTable firmware_;
    FakeCommandRunner powershell_;
    MemoryInfo info_;
};

std::string CommandLineOf(const std::string& query) {
    return R"(powershell.exe -ExecutionPolicy Unrestricted -Command "Get-WmiObject -Namespace 'root\cimv2' -Query \")" +
           query + R"(\" | ConvertTo-Json")";
}

constexpr const char* kAllProperties =
    "SELECT Attributes, BankLabel, Capacity, DataWidth, DeviceLocator, FormFactor, Manufacturer, PartNumber, "
    "PositionInRow, SMBIOSMemoryType, SerialNumber, Speed, Tag, TotalWidth, TypeDetail FROM "
    "Win32_PhysicalMemory";

// Without rows

TEST_F(MemoryInfoTest, BeforeRetrieveInfoThereAreNoRows) {
    EXPECT_EQ(info_.GetMemoryDeviceCount(), 0U);
}

TEST_F(MemoryInfoTest, EveryGetterGivesItsSentinelOutOfRange) {
    Load({FullDevice("S")});
    for (const std::size_t index : {std::size_t{1}, kFarIndex}) {
        EXPECT_EQ(info_.GetDeviceSet(index), 255);
        EXPECT_EQ(info_.GetDataWidth(index), 65535);
        EXPECT_EQ(info_.GetTotalWidth(index), 65535);
        EXPECT_EQ(info_.GetMemoryType(index), 255);
        EXPECT_EQ(info_.GetStringifiedMemoryType(index), nullptr);
        EXPECT_EQ(info_.GetPhysicalMemoryArrayHandle(index), 65535);
        EXPECT_EQ(info_.GetMemoryErrorInformationHandle(index), 65535);
        EXPECT_EQ(info_.GetFormFactor(index), 255);
        EXPECT_EQ(info_.GetStringifiedFormFactor(index), nullptr);
        EXPECT_EQ(info_.GetDeviceLocator(index), nullptr);
        EXPECT_EQ(info_.GetTypeDetail(index), 65535);
        EXPECT_FALSE(info_.GetBitsetTypeDetail(index).fastPaged.isSet);
        EXPECT_EQ(info_.GetBitsetTypeDetail(index).typeDetailWord, 0);
        EXPECT_EQ(info_.GetSpeed(index), 4294967295U);
        EXPECT_EQ(info_.GetManufacturer(index), nullptr);
        EXPECT_EQ(info_.GetSerialNumber(index), nullptr);
        EXPECT_EQ(info_.GetAssetTag(index), nullptr);
        EXPECT_EQ(info_.GetPartNumber(index), nullptr);
        EXPECT_EQ(info_.GetRank(index), 255);
        EXPECT_EQ(info_.GetConfiguredSpeed(index), 4294967295U);
        EXPECT_EQ(info_.GetMinVoltageInmV(index), 65535);
        EXPECT_EQ(info_.GetMaxVoltageInmV(index), 65535);
        EXPECT_EQ(info_.GetConfiguredVoltageInmV(index), 65535);
        EXPECT_EQ(info_.GetMemoryTechnology(index), 255);
        EXPECT_EQ(info_.GetStringifiedMemoryTechnology(index), nullptr);
        EXPECT_EQ(info_.GetMemoryOperatingModeCapability(index), 65535);
        EXPECT_EQ(info_.GetStringifiedMemoryOperatingModeCapability(index), nullptr);
        EXPECT_EQ(info_.GetFirmwareVersion(index), nullptr);
        EXPECT_EQ(info_.GetCacheSize(index), 18446744073709551615U);
        EXPECT_EQ(info_.GetLogicalSize(index), 18446744073709551615U);
        EXPECT_EQ(info_.GetVolatileSize(index), 18446744073709551615U);
        EXPECT_EQ(info_.GetNonVolatileSize(index), 18446744073709551615U);
        EXPECT_EQ(info_.GetModuleProductId(index), 65535);
        EXPECT_EQ(info_.GetModuleManufacturerId(index), 65535);
        EXPECT_EQ(info_.GetMemorySubsystemControllerManufacturerId(index), 65535);
        EXPECT_EQ(info_.GetMemorySubsystemControllerProductId(index), 65535);
        EXPECT_EQ(info_.GetRCDManufacturerId(index), 65535);
        EXPECT_EQ(info_.GetRCDRevisionNumber(index), 65535);
        EXPECT_EQ(info_.GetPMIC0ManufacturerId(index), 65535);
        EXPECT_EQ(info_.GetPMIC0RevisionNumber(index), 65535);
        EXPECT_EQ(info_.GetBankLocator(index), nullptr);
        EXPECT_EQ(info_.GetPositionInRow(index), 255);
        EXPECT_EQ(info_.GetSizeInKB(index), 18446744073709551615U);
        std::size_t size = 99;
        EXPECT_EQ(info_.DumpRawData(index, size), nullptr);
        EXPECT_EQ(size, 0U);
        EXPECT_EQ(info_.GetStringSessionSize(index), 0U);
        EXPECT_EQ(info_.DumpStringSession(index, 0), nullptr);
        EXPECT_FALSE(info_.HasError(index));
        EXPECT_EQ(info_.GetErrorMessage(index), nullptr);
    }
}

TEST_F(MemoryInfoTest, ATableWithoutMemoryDevicesGivesNoRowAndNoQuery) {
    firmware_.Supply(TableBuilder(2, 8, 0).Add({1, 8}).RawTable());
    info_.RetrieveInfo();
    EXPECT_EQ(info_.GetMemoryDeviceCount(), 0U);
    EXPECT_TRUE(powershell_.CommandLines().empty());
}

TEST_F(MemoryInfoTest, ATableThatCannotBeReadThrowsAndKeepsTheRows) {
    firmware_.Supply({0, 2, 8, 0, 0, 0, 0, 0});
    EXPECT_THROW(info_.RetrieveInfo(), std::exception);
    EXPECT_EQ(info_.GetMemoryDeviceCount(), 0U);
    Load({FullDevice("S")});
    EXPECT_EQ(info_.GetMemoryDeviceCount(), 1U);
}

// Getters

TEST_F(MemoryInfoTest, GettersGiveWhatTheFirmwareSays) {
    Load({FullDevice("S-1")});
    ASSERT_EQ(info_.GetMemoryDeviceCount(), 1U);
    EXPECT_EQ(info_.GetDeviceSet(0), 1);
    EXPECT_EQ(info_.GetDataWidth(0), 64);
    EXPECT_EQ(info_.GetTotalWidth(0), 72);
    EXPECT_EQ(info_.GetMemoryType(0), 0x1A);
    EXPECT_STREQ(info_.GetStringifiedMemoryType(0), "DDR4");
    EXPECT_EQ(info_.GetPhysicalMemoryArrayHandle(0), 0x0010);
    EXPECT_EQ(info_.GetMemoryErrorInformationHandle(0), 65535);
    EXPECT_EQ(info_.GetFormFactor(0), 0x09);
    EXPECT_STREQ(info_.GetStringifiedFormFactor(0), "DIMM");
    EXPECT_STREQ(info_.GetDeviceLocator(0), "DIMM_A1");
    EXPECT_EQ(info_.GetTypeDetail(0), 0x2080);
    EXPECT_EQ(info_.GetSpeed(0), 3200U);
    EXPECT_STREQ(info_.GetManufacturer(0), "Maker");
    EXPECT_STREQ(info_.GetSerialNumber(0), "S-1");
    EXPECT_STREQ(info_.GetAssetTag(0), "Asset");
    EXPECT_STREQ(info_.GetPartNumber(0), "Part");
    EXPECT_EQ(info_.GetRank(0), 2);
    EXPECT_EQ(info_.GetConfiguredSpeed(0), 2933U);
    EXPECT_EQ(info_.GetMinVoltageInmV(0), 1140);
    EXPECT_EQ(info_.GetMaxVoltageInmV(0), 1260);
    EXPECT_EQ(info_.GetConfiguredVoltageInmV(0), 1200);
    EXPECT_STREQ(info_.GetBankLocator(0), "BANK 0");
    EXPECT_EQ(info_.GetSizeInKB(0), 17179869184U);  // 0x4000 megabytes in bytes
    EXPECT_FALSE(info_.HasError(0));
    EXPECT_EQ(info_.GetErrorMessage(0), nullptr);
}

TEST_F(MemoryInfoTest, GettersGiveTheFieldsOfA370Table) {
    const StructureBuilder device = StructureBuilder(17, 0x64)
                                        .String(0x18, "S")
                                        .Byte(0x28, 0x24)
                                        .Word(0x29, 0x0030)
                                        .String(0x2B, "FW 7")
                                        .Qword(0x34, 0x0A00000000)
                                        .Qword(0x3C, 0x0B00000000)
                                        .Qword(0x44, 0x0C00000000)
                                        .Qword(0x4C, 0x0D00000000)
                                        .Word(0x5E, 0x1234)
                                        .Word(0x62, 0x5678);
    firmware_.Supply(TableBuilder(3, 7, 0).Add(device).RawTable());
    info_.RetrieveInfo();
    EXPECT_EQ(info_.GetMemoryTechnology(0), 0x24);
    EXPECT_STREQ(info_.GetStringifiedMemoryTechnology(0), "DRAM");
    EXPECT_EQ(info_.GetMemoryOperatingModeCapability(0), 0x0030);
    EXPECT_STREQ(info_.GetStringifiedMemoryOperatingModeCapability(0), "Byte-accessible persistent memory");
    EXPECT_STREQ(info_.GetFirmwareVersion(0), "FW 7");
    EXPECT_EQ(info_.GetNonVolatileSize(0), 0x0A00000000U);
    EXPECT_EQ(info_.GetVolatileSize(0), 0x0B00000000U);
    EXPECT_EQ(info_.GetCacheSize(0), 0x0C00000000U);
    EXPECT_EQ(info_.GetLogicalSize(0), 0x0D00000000U);
    EXPECT_EQ(info_.GetModuleProductId(0), 0);
    EXPECT_EQ(info_.GetModuleManufacturerId(0), 0);
    EXPECT_EQ(info_.GetMemorySubsystemControllerManufacturerId(0), 0);
    EXPECT_EQ(info_.GetMemorySubsystemControllerProductId(0), 0);
    EXPECT_EQ(info_.GetRCDManufacturerId(0), 0);
    EXPECT_EQ(info_.GetRCDRevisionNumber(0), 0x5678);
    EXPECT_EQ(info_.GetPMIC0ManufacturerId(0), 0);
    EXPECT_EQ(info_.GetPMIC0RevisionNumber(0), 0x1234);
}

TEST_F(MemoryInfoTest, AFlagWordWhoseLowestSetBitIsReservedHasNoName) {
    const StructureBuilder device =
        StructureBuilder(17, 0x54).String(0x18, "S").Byte(0x28, 0x06).Word(0x29, 0x40);
    firmware_.Supply(TableBuilder(3, 2, 0).Add(device).RawTable());
    info_.RetrieveInfo();
    EXPECT_EQ(info_.GetStringifiedMemoryTechnology(0), nullptr);               // bit 1 is "dontCare"
    EXPECT_EQ(info_.GetStringifiedMemoryOperatingModeCapability(0), nullptr);  // bit 6 has no name
}

TEST_F(MemoryInfoTest, SizeInKilobytesIsGivenAsRecorded) {
    Load({FullDevice("S").Word(0x0C, 0x8400)});
    EXPECT_EQ(info_.GetSizeInKB(0), 1024U);
}

TEST_F(MemoryInfoTest, TypeDetailIsGivenAsNamedFlags) {
    Load({FullDevice("S").Word(0x13, 0x2080)});
    const MEMORY_TYPE_DETAILS details = info_.GetBitsetTypeDetail(0);
    EXPECT_EQ(details.typeDetailWord, 0x2080);
    EXPECT_TRUE(details.synchronous);
    EXPECT_TRUE(details.registered);
    EXPECT_FALSE(details.unbuffered);
    EXPECT_TRUE(details.fastPaged.isSet);
    EXPECT_TRUE(details.unbuffered.isSet);
}

TEST_F(MemoryInfoTest, EachTypeDetailFlagFollowsItsOwnBit) {
    std::vector<StructureBuilder> devices;
    for (int bit = 0; bit < 16; ++bit) {
        devices.push_back(FullDevice(std::string(1, static_cast<char>('A' + bit)))
                              .Word(0x13, static_cast<std::uint16_t>(1U << bit)));
    }
    Load(devices);
    ASSERT_EQ(info_.GetMemoryDeviceCount(), 16U);
    for (std::size_t bit = 0; bit < 16; ++bit) {
        const MEMORY_TYPE_DETAILS details = info_.GetBitsetTypeDetail(bit);
        const Parsers::EBOOL flags[] = {details.fastPaged,
                                        details.staticColumn,
                                        details.pseudoStatic,
                                        details.rambus,
                                        details.synchronous,
                                        details.cmos,
                                        details.edo,
                                        details.windowDram,
                                        details.cacheDram,
                                        details.nonVolatile,
                                        details.registered,
                                        details.unbuffered};
        for (std::size_t flag = 0; flag < std::size(flags); ++flag) {
            EXPECT_EQ(flags[flag].value, flag + 3 == bit) << "bit " << bit << " flag " << flag;
            EXPECT_TRUE(flags[flag].isSet);
        }
    }
}

TEST_F(MemoryInfoTest, TypeDetailFlagsWithoutTheWordGive65535) {
    Load({FullDevice("S")});
    std::dynamic_pointer_cast<Type_17>(FirmwareDevices().at(0))->GetRecord()->typeDetail.reset();
    info_.RetrieveInfo();
    EXPECT_EQ(info_.GetBitsetTypeDetail(0).typeDetailWord, 65535);
}

TEST_F(MemoryInfoTest, ATypeDetailThatIsTooNarrowThrows) {
    Load({FullDevice("S")});
    std::dynamic_pointer_cast<Type_17>(FirmwareDevices().at(0))->GetRecord()->typeDetailFlags->Assign(0, 14);
    info_.RetrieveInfo();
    try {
        (void)info_.GetBitsetTypeDetail(0);
        FAIL() << "nothing thrown";
    } catch (const std::out_of_range& failure) {
        EXPECT_STREQ(failure.what(), "Bit index out of range for Dynamic_BitSet");
    }
}

TEST_F(MemoryInfoTest, RawDataIsTheFormattedArea) {
    Load({FullDevice("S")});
    std::size_t size = 0;
    const std::uint8_t* const bytes = info_.DumpRawData(0, size);
    const std::vector<std::uint8_t> expected = FullDevice("S").FormattedBytes();
    ASSERT_EQ(size, expected.size());
    EXPECT_EQ(std::vector<std::uint8_t>(bytes, bytes + size), expected);
}

TEST_F(MemoryInfoTest, StringSessionIsTheStringSetInNumberOrder) {
    Load({FullDevice("S")});
    ASSERT_EQ(info_.GetStringSessionSize(0), 6U);
    EXPECT_STREQ(info_.DumpStringSession(0, 0), "DIMM_A1");
    EXPECT_STREQ(info_.DumpStringSession(0, 5), "Part");
    EXPECT_EQ(info_.DumpStringSession(0, 6), nullptr);
    EXPECT_EQ(info_.DumpStringSession(1, 0), nullptr);
}

TEST_F(MemoryInfoTest, AnEmptyStringOfTheSetIsNotNull) {
    const StructureBuilder device = StructureBuilder(17, 0x1B).Byte(0x18, 2).String("").String("S");
    Load({device});
    ASSERT_EQ(info_.GetStringSessionSize(0), 2U);
    EXPECT_STREQ(info_.DumpStringSession(0, 0), "");
    EXPECT_STREQ(info_.DumpStringSession(0, 1), "S");
}

TEST_F(MemoryInfoTest, StringsOfTheSetAreNotTrimmed) {
    Load({FullDevice("  S  ")});
    EXPECT_STREQ(info_.GetSerialNumber(0), "S");
    EXPECT_STREQ(info_.DumpStringSession(0, 3), "  S  ");
}

// Filing

TEST_F(MemoryInfoTest, RowsStandInAscendingSerialNumberOrder) {
    Load({FullDevice("B2"), FullDevice("a"), FullDevice("B10"), FullDevice("B")});
    EXPECT_EQ(SerialNumbers(), (std::vector<std::string>{"B", "B10", "B2", "a"}));
}

TEST_F(MemoryInfoTest, SerialNumbersAreOrderedByUnsignedBytes) {
    Load({FullDevice("\x80"), FullDevice("z")});
    EXPECT_EQ(SerialNumbers(), (std::vector<std::string>{"z", "\x80"}));
}

TEST_F(MemoryInfoTest, OfTwoDevicesWithOneSerialNumberTheFirstIsListed) {
    Load({FullDevice("S").String(0x10, "first"), FullDevice("S").String(0x10, "second")});
    ASSERT_EQ(info_.GetMemoryDeviceCount(), 1U);
    EXPECT_STREQ(info_.GetDeviceLocator(0), "first");
}

TEST_F(MemoryInfoTest, ASecondObjectSeesTheSameDevices) {
    Load({FullDevice("S")});
    MemoryInfo second;
    second.RetrieveInfo();
    EXPECT_EQ(second.GetMemoryDeviceCount(), 1U);
    EXPECT_EQ(firmware_.SizeQueries(), 1);
}

// Queries

TEST_F(MemoryInfoTest, AFullDeviceIsAskedForItsPositionInRowOnly) {
    Load({FullDevice("1A2B3C4D")});
    EXPECT_EQ(
        powershell_.CommandLines(),
        std::vector<std::string>{CommandLineOf("SELECT PositionInRow, SerialNumber FROM Win32_PhysicalMemory "
                                               "WHERE SerialNumber = '1A2B3C4D'")});
}

TEST_F(MemoryInfoTest, OnceCompletedADeviceIsNotAskedForAgain) {
    powershell_.Answer(R"([{"SerialNumber":"B","PositionInRow":2},{"SerialNumber":"A","PositionInRow":1}])");
    Load({FullDevice("B"), FullDevice("A")});
    EXPECT_EQ(info_.GetPositionInRow(0), 1);
    EXPECT_EQ(info_.GetPositionInRow(1), 2);
    info_.RetrieveInfo();
    EXPECT_EQ(powershell_.CommandLines().size(), 1U);
    EXPECT_EQ(SerialNumbers(), (std::vector<std::string>{"A", "B"}));
}

TEST_F(MemoryInfoTest, SeveralDevicesAreFilteredInTableOrderWithDuplicates) {
    Load({FullDevice("B"), FullDevice("A"), FullDevice("B")});
    EXPECT_EQ(powershell_.CommandLines(),
              std::vector<std::string>{
                  CommandLineOf("SELECT PositionInRow, SerialNumber FROM Win32_PhysicalMemory WHERE "
                                "SerialNumber = 'B' OR SerialNumber = 'A' OR SerialNumber = 'B'")});
}

TEST_F(MemoryInfoTest, ACompleteDeviceBesideAnIncompleteOneIsNotAskedFor) {
    powershell_.Answer(R"({"SerialNumber":"A","PositionInRow":1})");
    Load({FullDevice("A"), FullDevice("B")});
    info_.RetrieveInfo();
    ASSERT_EQ(powershell_.CommandLines().size(), 2U);
    EXPECT_EQ(powershell_.CommandLines()[1],
              CommandLineOf(
                  "SELECT PositionInRow, SerialNumber FROM Win32_PhysicalMemory WHERE SerialNumber = 'B'"));
}

TEST_F(MemoryInfoTest, OfOneSerialNumberEachDeviceIsAskedForWhatItLacksItself) {
    Load({FullDevice("S"), FullDevice("S").Byte(0x19, 0)});
    EXPECT_EQ(powershell_.CommandLines(),
              std::vector<std::string>{
                  CommandLineOf("SELECT PositionInRow, SerialNumber, Tag FROM Win32_PhysicalMemory WHERE "
                                "SerialNumber = 'S' OR SerialNumber = 'S'")});
}

TEST_F(MemoryInfoTest, EveryMissingFieldIsAskedForByItsProperty) {
    // The codes and the detail word are present whatever their value.
    const StructureBuilder bare =
        StructureBuilder(17, 0x1C).Word(0x08, 0xFFFF).Word(0x0A, 0xFFFF).String(0x18, "S");
    firmware_.Supply(TableBuilder(2, 4, 0).Add(bare).RawTable());
    info_.RetrieveInfo();
    EXPECT_EQ(
        powershell_.CommandLines(),
        std::vector<std::string>{CommandLineOf(
            "SELECT Attributes, BankLabel, Capacity, DataWidth, DeviceLocator, Manufacturer, PartNumber, "
            "PositionInRow, SerialNumber, Speed, Tag, TotalWidth FROM Win32_PhysicalMemory WHERE "
            "SerialNumber = 'S'")});
}

TEST_F(MemoryInfoTest, AFirstDeviceWithoutSerialNumberWidensTheQueryToEverything) {
    powershell_.Answer(R"([{"SerialNumber":"W2","Capacity":8589934592},{"SerialNumber":"W1","Speed":2400}])");
    Load({DeviceWithoutSerialNumber(), FullDevice("A")});
    EXPECT_EQ(powershell_.CommandLines(), std::vector<std::string>{CommandLineOf(kAllProperties)});
    EXPECT_EQ(SerialNumbers(), (std::vector<std::string>{"W1", "W2"}));
}

TEST_F(MemoryInfoTest, ARowThatOnlyWmiKnowsHoldsOnlyItsValues) {
    powershell_.Answer(
        R"({"SerialNumber":"W","Capacity":8589934592,"TypeDetail":128,"FormFactor":8,"Speed":2400,
                           "SMBIOSMemoryType":26,"Tag":"Physical Memory 0","DeviceLocator":"DIMM 1"})");
    Load({DeviceWithoutSerialNumber()});
    ASSERT_EQ(info_.GetMemoryDeviceCount(), 1U);
    EXPECT_EQ(info_.GetSizeInKB(0), 8589934592U);
    EXPECT_EQ(info_.GetSpeed(0), 2400U);
    EXPECT_EQ(info_.GetTypeDetail(0), 128);
    EXPECT_EQ(info_.GetFormFactor(0), 8);
    EXPECT_EQ(info_.GetMemoryType(0), 26);
    EXPECT_STREQ(info_.GetAssetTag(0), "Physical Memory 0");
    EXPECT_STREQ(info_.GetDeviceLocator(0), "DIMM 1");

    EXPECT_EQ(info_.GetStringifiedFormFactor(0), nullptr);
    EXPECT_EQ(info_.GetStringifiedMemoryType(0), nullptr);
    EXPECT_FALSE(info_.GetBitsetTypeDetail(0).synchronous.isSet);
    EXPECT_EQ(info_.GetBitsetTypeDetail(0).typeDetailWord, 0);
    std::size_t size = 99;
    EXPECT_EQ(info_.DumpRawData(0, size), nullptr);
    EXPECT_EQ(size, 0U);
    EXPECT_EQ(info_.GetStringSessionSize(0), 0U);
}

TEST_F(MemoryInfoTest, ARowThatOnlyWmiKnowsHasNoHandleAndNoVoltage) {
    powershell_.Answer(R"({"SerialNumber":"W"})");
    Load({DeviceWithoutSerialNumber()});
    ASSERT_EQ(info_.GetMemoryDeviceCount(), 1U);
    EXPECT_EQ(info_.GetPhysicalMemoryArrayHandle(0), 65535);
    EXPECT_EQ(info_.GetMemoryErrorInformationHandle(0), 65535);
    EXPECT_EQ(info_.GetMinVoltageInmV(0), 65535);
    EXPECT_EQ(info_.GetMaxVoltageInmV(0), 65535);
    EXPECT_EQ(info_.GetConfiguredVoltageInmV(0), 65535);
}

TEST_F(MemoryInfoTest, AWidenedQueryGivesOneRowForEachSerialNumber) {
    powershell_.Answer(
        R"([{"SerialNumber":"W2","Speed":1},{"SerialNumber":"W1","Speed":2},{"SerialNumber":"W2","Speed":3},
            {"SerialNumber":"W1","Speed":4}])");
    Load({DeviceWithoutSerialNumber(), DeviceWithoutSerialNumber()});
    EXPECT_EQ(SerialNumbers(), (std::vector<std::string>{"W1", "W2"}));
    EXPECT_EQ(info_.GetSpeed(0), 2U);
    EXPECT_EQ(info_.GetSpeed(1), 1U);
}

TEST_F(MemoryInfoTest, DevicesFiledBeforeTheWideningStayAndLaterOnesDoNot) {
    powershell_.FailToStart();
    Load({FullDevice("A"), DeviceWithoutSerialNumber(), FullDevice("C")});
    EXPECT_EQ(powershell_.CommandLines(), std::vector<std::string>{CommandLineOf(kAllProperties)});
    EXPECT_EQ(SerialNumbers(), std::vector<std::string>{"A"});
}

TEST_F(MemoryInfoTest, ManyDevicesWithoutSerialNumberCostHardlyMoreThanOne) {
    constexpr std::size_t kDevices = 300;
    Load(std::vector<StructureBuilder>(kDevices, DeviceWithoutSerialNumber()));
    const CountedAllocations counted;
    info_.RetrieveInfo();
    EXPECT_LT(counted.Count(), kDevices);
}

TEST_F(MemoryInfoTest, AMalformedDeviceWidensTheQuery) {
    Load({StructureBuilder(17, 0x10).String(0x08, "S")});
    EXPECT_EQ(powershell_.CommandLines(), std::vector<std::string>{CommandLineOf(kAllProperties)});
}

TEST_F(MemoryInfoTest, ATableOlderThan230WidensTheQuery) {
    firmware_.Supply(TableBuilder(2, 2, 0).Add(FullDevice("S")).RawTable());
    info_.RetrieveInfo();
    EXPECT_EQ(powershell_.CommandLines(), std::vector<std::string>{CommandLineOf(kAllProperties)});
}

// Completion

TEST_F(MemoryInfoTest, EveryPropertyIsStoredInItsField) {
    powershell_.Answer(
        R"({"SerialNumber":"S","DataWidth":1,"TotalWidth":2,"FormFactor":3,"DeviceLocator":"loc",
        "TypeDetail":4,"Speed":70000,"Manufacturer":"man","Tag":"tag","PartNumber":"part","Attributes":9,
        "BankLabel":"bank","BankLocator":"bank","PositionInRow":5,"Capacity":68719476736,"SMBIOSMemoryType":6})");
    Load({DeviceWithoutSerialNumber()});
    EXPECT_EQ(info_.GetDataWidth(0), 1);
    EXPECT_EQ(info_.GetTotalWidth(0), 2);
    EXPECT_EQ(info_.GetFormFactor(0), 3);
    EXPECT_STREQ(info_.GetDeviceLocator(0), "loc");
    EXPECT_EQ(info_.GetTypeDetail(0), 4);
    EXPECT_EQ(info_.GetSpeed(0), 70000U);
    EXPECT_STREQ(info_.GetManufacturer(0), "man");
    EXPECT_STREQ(info_.GetSerialNumber(0), "S");
    EXPECT_STREQ(info_.GetAssetTag(0), "tag");
    EXPECT_STREQ(info_.GetPartNumber(0), "part");
    EXPECT_EQ(info_.GetRank(0), 9);
    EXPECT_EQ(info_.GetPositionInRow(0), 5);
    EXPECT_EQ(info_.GetSizeInKB(0), 68719476736U);
    EXPECT_EQ(info_.GetMemoryType(0), 6);
    EXPECT_EQ(info_.GetBankLocator(0), nullptr);
}

TEST_F(MemoryInfoTest, AnEmptyBankLocatorStaysEmpty) {
    powershell_.Answer(R"({"SerialNumber":"S","BankLabel":"BANK 7","BankLocator":"BANK 7"})");
    Load({FullDevice("S").Byte(0x11, 0)});
    EXPECT_EQ(powershell_.CommandLines(),
              std::vector<std::string>{CommandLineOf("SELECT BankLabel, PositionInRow, SerialNumber FROM "
                                                     "Win32_PhysicalMemory WHERE SerialNumber = 'S'")});
    EXPECT_EQ(info_.GetBankLocator(0), nullptr);
}

TEST_F(MemoryInfoTest, WhatIsAskedForOneDeviceOverwritesTheOthers) {
    powershell_.Answer(R"([{"SerialNumber":"A","Tag":"from WMI","PositionInRow":1},
                           {"SerialNumber":"B","Tag":"from WMI","PositionInRow":1}])");
    Load({FullDevice("A").Byte(0x19, 0), FullDevice("B")});
    EXPECT_STREQ(info_.GetAssetTag(0), "from WMI");
    EXPECT_STREQ(info_.GetAssetTag(1), "from WMI");
}

TEST_F(MemoryInfoTest, WhatWasNotAskedForIsNotStored) {
    powershell_.Answer(R"({"SerialNumber":"A","PositionInRow":1,"Speed":1})");
    Load({FullDevice("A")});
    EXPECT_EQ(info_.GetSpeed(0), 3200U);
}

TEST_F(MemoryInfoTest, AnEmptyTextThatWasAskedForIsStored) {
    powershell_.Answer(R"({"SerialNumber":"B","Tag":"","PositionInRow":1})");
    Load({FullDevice("A").Byte(0x19, 0), FullDevice("B")});
    EXPECT_EQ(info_.GetAssetTag(1), nullptr);
}

TEST_F(MemoryInfoTest, ANullMemberEndsTheCompletionAndKeepsWhatWasStored) {
    powershell_.Answer(
        R"([{"SerialNumber":"A","Manufacturer":"kept","PositionInRow":null,"Tag":"not reached"},
                           {"SerialNumber":"B","Manufacturer":"not reached","PositionInRow":1}])");
    Load({FullDevice("A").Byte(0x17, 0).Byte(0x19, 0), FullDevice("B").Byte(0x17, 0)});
    EXPECT_STREQ(info_.GetManufacturer(0), "kept");
    EXPECT_EQ(info_.GetPositionInRow(0), 255);
    EXPECT_EQ(info_.GetAssetTag(0), nullptr);
    EXPECT_EQ(info_.GetManufacturer(1), nullptr);
}

TEST_F(MemoryInfoTest, ANewRowWhoseFirstMemberHasTheWrongTypeIsListedAllTheSame) {
    powershell_.Answer(R"({"SerialNumber":"N","Attributes":"text","Speed":1})");
    Load({DeviceWithoutSerialNumber()});
    ASSERT_EQ(info_.GetMemoryDeviceCount(), 1U);
    EXPECT_EQ(info_.GetSerialNumber(0), nullptr);
    EXPECT_EQ(info_.GetSpeed(0), 4294967295U);
}

TEST_F(MemoryInfoTest, NumbersWrapToTheFieldsWidth) {
    powershell_.Answer(R"({"SerialNumber":"A","PositionInRow":258})");
    Load({FullDevice("A")});
    EXPECT_EQ(info_.GetPositionInRow(0), 2);
}

TEST_F(MemoryInfoTest, ABooleanIsTakenByAnEightBitField) {
    powershell_.Answer(R"({"SerialNumber":"A","PositionInRow":true})");
    Load({FullDevice("A")});
    EXPECT_EQ(info_.GetPositionInRow(0), 1);
}

TEST_F(MemoryInfoTest, ABooleanIsRefusedByA64BitField) {
    powershell_.Answer(R"({"SerialNumber":"A","Capacity":true,"PositionInRow":1})");
    Load({FullDevice("A").Word(0x0C, 0)});
    EXPECT_EQ(info_.GetSizeInKB(0), 18446744073709551615U);
    EXPECT_EQ(info_.GetPositionInRow(0), 255);
}

TEST_F(MemoryInfoTest, ANumberOfMoreThan64BitsEndsTheCompletion) {
    for (const char* const number : {"1e300", "-1e300", "18446744073709551616", "-1e19"}) {
        powershell_.Answer(std::string(R"({"SerialNumber":"A","Manufacturer":"kept","PositionInRow":)") +
                           number + R"(,"Tag":"not reached"})");
        Load({FullDevice("A").Byte(0x17, 0).Byte(0x19, 0)});
        EXPECT_STREQ(info_.GetManufacturer(0), "kept") << number;
        EXPECT_EQ(info_.GetPositionInRow(0), 255) << number;
        EXPECT_EQ(info_.GetAssetTag(0), nullptr) << number;
    }
}

TEST_F(MemoryInfoTest, ADeepMemberThatIsAskedForEndsTheCompletion) {
    powershell_.Answer(R"({"SerialNumber":"A","Manufacturer":"kept","Tag":"not reached","PositionInRow":)" +
                       std::string(kDepth, '[') + std::string(kDepth, ']') + "}");
    Load({FullDevice("A").Byte(0x17, 0).Byte(0x19, 0)});
    EXPECT_STREQ(info_.GetManufacturer(0), "kept");
    EXPECT_EQ(info_.GetPositionInRow(0), 255);
    EXPECT_EQ(info_.GetAssetTag(0), nullptr);
}

TEST_F(MemoryInfoTest, ADeepMemberThatIsNotAskedForIsPassedOver) {
    powershell_.Answer(R"({"__PATH":)" + std::string(kDepth, '[') + std::string(kDepth, ']') +
                       R"(,"SerialNumber":"A","PositionInRow":4})");
    Load({FullDevice("A")});
    EXPECT_EQ(info_.GetPositionInRow(0), 4);
}

TEST_F(MemoryInfoTest, AnAnswerForAnUnknownSerialNumberAddsARow) {
    powershell_.Answer(R"({"SerialNumber":"Z","PositionInRow":4})");
    Load({FullDevice("A")});
    EXPECT_EQ(SerialNumbers(), (std::vector<std::string>{"A", "Z"}));
    EXPECT_EQ(info_.GetPositionInRow(1), 4);
}

TEST_F(MemoryInfoTest, SerialNumbersThatDifferInCaseAreOfDifferentDevices) {
    powershell_.Answer(R"({"SerialNumber":"ab","PositionInRow":4})");
    Load({FullDevice("AB")});
    EXPECT_EQ(SerialNumbers(), (std::vector<std::string>{"AB", "ab"}));
    EXPECT_EQ(info_.GetPositionInRow(0), 255);
    EXPECT_EQ(info_.GetPositionInRow(1), 4);
}

TEST_F(MemoryInfoTest, FailuresOfTheCompletionLeaveTheFirmwaresRows) {
    for (const char* const answer :
         {"", "Get-WmiObject : Invalid class", R"([{"SerialNumber":"A",)", "[]", "null"}) {
        powershell_.Answer(answer);
        Load({FullDevice("A")});
        EXPECT_EQ(SerialNumbers(), std::vector<std::string>{"A"}) << answer;
        EXPECT_EQ(info_.GetSpeed(0), 3200U) << answer;
    }
}

TEST_F(MemoryInfoTest, WithoutPowerShellTheFirmwaresRowsStand) {
    powershell_.FailToStart();
    Load({FullDevice("A")});
    EXPECT_EQ(SerialNumbers(), std::vector<std::string>{"A"});
}

TEST_F(MemoryInfoTest, RowsOfEarlierCallsStay) {
    powershell_.Answer(R"({"SerialNumber":"W","Speed":2400})");
    Load({DeviceWithoutSerialNumber()});
    powershell_.Answer("");
    info_.RetrieveInfo();
    EXPECT_EQ(SerialNumbers(), std::vector<std::string>{"W"});
}

TEST_F(MemoryInfoTest, CompletionWritesIntoTheDecodersRecord) {
    powershell_.Answer(R"({"SerialNumber":"A","PositionInRow":3})");
    Load({FullDevice("A")});
    EXPECT_EQ(std::dynamic_pointer_cast<Type_17>(FirmwareDevices().at(0))->GetRecord()->positionInRow, 3);
}

TEST_F(MemoryInfoTest, FirmwareTextsStayNullWhenEmpty) {
    powershell_.FailToStart();
    Load({StructureBuilder(17, 0x28).String(0x18, "S")});
    EXPECT_EQ(info_.GetDeviceLocator(0), nullptr);
    EXPECT_EQ(info_.GetManufacturer(0), nullptr);
    EXPECT_EQ(info_.GetStringifiedMemoryType(0), nullptr);
    EXPECT_EQ(info_.GetSizeInKB(0), 18446744073709551615U);
}

TEST(MemoryInfoLayout, AnObjectIsTwoPointersLarge) {
    EXPECT_EQ(sizeof(MemoryInfo), 2 * sizeof(void*));
}

}  // namespace
}  // namespace SMBIOS::Tests
