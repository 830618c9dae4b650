#include "structures/type_3.h"

#include <gtest/gtest.h>

#include <iterator>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/decode.h"

namespace SMBIOS::Tests {
namespace {

using Manager::SmbiosVersionIndex;
using Structures::Type_3;
using Structures::Type3::Types::ContainedElements;

constexpr std::uint16_t kHandle = 0x00D1;
constexpr const char* kNewerThan200 = "v2.1.0 structure or later in a v2.0.0 BIOS";
constexpr const char* kNewerThan220 = "v2.3.0 structure or later in a v2.2.0 BIOS or older";

StructureBuilder Chassis(std::uint8_t length) {
    return {3, length, kHandle};
}

/// A chassis with the element count and record length in their places.
StructureBuilder ChassisWithElements(std::uint8_t length, std::uint8_t count, std::uint8_t recordLength) {
    return Chassis(length).Byte(0x13, count).Byte(0x14, recordLength);
}

// What is accepted

TEST(Type3, AcceptsTheShortestStructureInA200Table) {
    const auto record = Decode<Type_3>(v2_0_0, Chassis(9));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->handle, kHandle);
}

TEST(Type3, RefusesLengthsBelow9InEveryVersion) {
    for (const Manager::VersionRow& row : Manager::versionMap) {
        const AcceptanceCase cases[] = {
            {0, row.index, kMalformed}, {8, row.index, kMalformed}, {9, row.index, ""}};
        ExpectAcceptance<Type_3>(3, cases);
    }
}

TEST(Type3, HasNoUpperBoundOnTheLength) {
    EXPECT_EQ(Decode<Type_3>(v2_3_0, Chassis(255))->error, "");
}

TEST(Type3, ReportsAnEmptyFormattedAreaAsAnInvalidPointer) {
    EXPECT_EQ(DecodeBytes<Type_3>(v2_8_0, {})->error, kInvalidPointer);
}

TEST(Type3, ReportsThreeBytesAsMalformed) {
    EXPECT_EQ(DecodeBytes<Type_3>(v2_8_0, {3, 0x15, 0x11})->error, kMalformed);
}

TEST(Type3, A200TableRefusesLengthsOf10OrMore) {
    const AcceptanceCase cases[] = {
        {9, v2_0_0, ""}, {10, v2_0_0, kNewerThan200}, {11, v2_0_0, kNewerThan200}, {10, v2_1_0, ""}};
    ExpectAcceptance<Type_3>(3, cases);
}

TEST(Type3, TablesBelow230RefuseLengthsOf14OrMore) {
    const AcceptanceCase cases[] = {
        {13, v2_1_0, ""},
        {14, v2_1_0, kNewerThan220},
        {13, v2_2_0, ""},
        {14, v2_2_0, kNewerThan220},
        {15, v2_2_0, kNewerThan220},
        {14, v2_3_0, ""},
        {14, v2_4_0, ""},
    };
    ExpectAcceptance<Type_3>(3, cases);
}

TEST(Type3, TheFirstGateThatMatchesGivesTheMessage) {
    EXPECT_EQ(Decode<Type_3>(v2_0_0, Chassis(14))->error, kNewerThan200);
}

TEST(Type3, ARefusedStructureKeepsOnlyErrorRawBytesAndStrings) {
    const auto record = Decode<Type_3>(v2_2_0, Chassis(14).Byte(0x05, 0x8A).String(0x04, "Maker"));
    EXPECT_EQ(record->handle, 0);
    EXPECT_EQ(record->manufacturer, "");
    EXPECT_EQ(record->chassisType, "");
    EXPECT_FALSE(record->chassisTypeValue);
    EXPECT_FALSE(record->chassisLock);
    EXPECT_FALSE(record->bootUpStateValue);
    EXPECT_EQ(record->rawBytes.size(), 14U);
    ASSERT_TRUE(record->strings);
    EXPECT_EQ(*record->strings, std::vector<std::string>{"Maker"});
}

TEST(Type3, ARefusedStructureWithoutStringsHasNoStringSet) {
    EXPECT_FALSE(Decode<Type_3>(v2_2_0, Chassis(14))->strings);
}

TEST(Type3, AnAcceptedStructureWithoutStringsHasAnEmptyStringSet) {
    const auto record = Decode<Type_3>(v2_3_0, Chassis(14));
    ASSERT_TRUE(record->strings);
    EXPECT_TRUE(record->strings->empty());
}

// Fields of every version

TEST(Type3, TextsAreTheStringsAt04AndFrom06To08) {
    const auto record = Decode<Type_3>(v2_0_0,
                                       Chassis(9)
                                           .String(0x08, "Asset")
                                           .String(0x07, "Serial")
                                           .String(0x06, "Version")
                                           .String(0x04, "  Maker  "));
    EXPECT_EQ(record->manufacturer, "Maker");
    EXPECT_EQ(record->version, "Version");
    EXPECT_EQ(record->serialNumber, "Serial");
    EXPECT_EQ(record->assetTag, "Asset");
}

TEST(Type3, AStringNumberBeyondTheStringSetGivesAnEmptyText) {
    const auto record = Decode<Type_3>(v2_0_0, Chassis(9).String("only").Byte(0x04, 2));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->manufacturer, "");
}

TEST(Type3, TypeByte8AIsALockedNotebook) {
    const auto record = Decode<Type_3>(v2_0_0, Chassis(9).Byte(0x05, 0x8A));
    EXPECT_EQ(record->chassisLock, true);
    EXPECT_EQ(record->chassisTypeValue, 10);
    EXPECT_EQ(record->chassisType, "Notebook");
}

TEST(Type3, TypeByte7FIsUnlockedAndHasNoName) {
    const auto record = Decode<Type_3>(v2_0_0, Chassis(9).Byte(0x05, 0x7F));
    EXPECT_EQ(record->chassisLock, false);
    EXPECT_EQ(record->chassisTypeValue, 0x7F);
    EXPECT_EQ(record->chassisType, "");
}

// Version groups

TEST(Type3, StatesAreTheBytesFrom09To0CFrom210On) {
    const StructureBuilder structure = Chassis(9).Bytes(0x09, {3, 4, 5, 5});
    const auto record = Decode<Type_3>(v2_1_0, structure);
    EXPECT_EQ(record->bootUpStateValue, 3);
    EXPECT_EQ(record->bootUpState, "Safe");
    EXPECT_EQ(record->powerSupplyStateValue, 4);
    EXPECT_EQ(record->powerSupplyState, "Warning");
    EXPECT_EQ(record->thermalStateValue, 5);
    EXPECT_EQ(record->thermalState, "Critical");
    EXPECT_EQ(record->securityStatusValue, 5);
    EXPECT_EQ(record->securityStatus, "External interface enabled");

    const auto old = Decode<Type_3>(v2_0_0, structure);
    EXPECT_EQ(old->error, "");
    EXPECT_FALSE(old->bootUpStateValue);
    EXPECT_FALSE(old->powerSupplyStateValue);
    EXPECT_FALSE(old->thermalStateValue);
    EXPECT_FALSE(old->securityStatusValue);
    EXPECT_EQ(old->bootUpState + old->powerSupplyState + old->thermalState + old->securityStatus, "");
}

TEST(Type3, OemDefinedHeightAndPowerCordsAreReadFrom230On) {
    const StructureBuilder structure = Chassis(13).Dword(0x0D, 0x12345678).Byte(0x11, 4).Byte(0x12, 2);
    const auto record = Decode<Type_3>(v2_3_0, structure);
    EXPECT_EQ(record->oemDefined, 0x12345678U);
    EXPECT_EQ(record->height, 4);
    EXPECT_EQ(record->numberOfPowerCords, 2);

    const auto old = Decode<Type_3>(v2_2_0, structure);
    EXPECT_EQ(old->error, "");
    EXPECT_FALSE(old->oemDefined);
    EXPECT_FALSE(old->height);
    EXPECT_FALSE(old->numberOfPowerCords);
}

TEST(Type3, FieldsPastAShortStructureReadAsZero) {
    const auto record = Decode<Type_3>(v3_8_0, Chassis(9).String("only"));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->bootUpStateValue, 0);
    EXPECT_EQ(record->powerSupplyStateValue, 0);
    EXPECT_EQ(record->thermalStateValue, 0);
    EXPECT_EQ(record->securityStatusValue, 0);
    EXPECT_EQ(record->oemDefined, 0U);
    EXPECT_EQ(record->height, 0);
    EXPECT_EQ(record->numberOfPowerCords, 0);
    EXPECT_FALSE(record->containedElements);
    EXPECT_EQ(record->skuNumber, "");
}

// Contained elements

std::optional<ContainedElements> ElementsOf(const StructureBuilder& structure,
                                            SmbiosVersionIndex version = v2_3_0) {
    return Decode<Type_3>(version, structure)->containedElements;
}

std::size_t ElementCountOf(std::uint8_t count, std::uint8_t recordLength) {
    return ElementsOf(ChassisWithElements(24, count, recordLength)).value_or(ContainedElements{}).Count();
}

TEST(Type3, TwoElementsOf3BytesStandFrom15To1A) {
    const auto elements =
        ElementsOf(ChassisWithElements(28, 2, 3).Bytes(0x15, {0x0A, 1, 2, 0x08, 3, 4}), v2_7_0);
    ASSERT_TRUE(elements);
    ASSERT_EQ(elements->Count(), 2U);
    EXPECT_EQ(elements->At(0).typeValue, 10);
    EXPECT_EQ(elements->At(0).typeSelect, "Baseboard");
    EXPECT_EQ(elements->At(0).typeName, "Motherboard");
    EXPECT_EQ(elements->At(0).minimum, 1);
    EXPECT_EQ(elements->At(0).maximum, 2);
    EXPECT_EQ(elements->At(1).typeValue, 8);
    EXPECT_EQ(elements->At(1).typeSelect, "Baseboard");
    EXPECT_EQ(elements->At(1).typeName, "Memory Module");
    EXPECT_EQ(elements->At(1).minimum, 3);
    EXPECT_EQ(elements->At(1).maximum, 4);
}

TEST(Type3, ElementByte83IsAStructureWithABoardTypeName) {
    const auto elements = ElementsOf(ChassisWithElements(24, 1, 3).Byte(0x15, 0x83));
    ASSERT_TRUE(elements);
    EXPECT_EQ(elements->At(0).typeSelect, "Structure");
    EXPECT_EQ(elements->At(0).typeValue, 3);
    EXPECT_EQ(elements->At(0).typeName, "Server Blade");
}

TEST(Type3, AStructureWithElementsIsRefusedInA220Table) {
    const auto record = Decode<Type_3>(v2_2_0, ChassisWithElements(24, 1, 3));
    EXPECT_EQ(record->error, kNewerThan220);
    EXPECT_FALSE(record->containedElements);
}

TEST(Type3, ElementsNeedALengthOf24) {
    EXPECT_FALSE(ElementsOf(ChassisWithElements(23, 1, 3)));
    EXPECT_TRUE(ElementsOf(ChassisWithElements(24, 1, 3)));
    EXPECT_TRUE(ElementsOf(ChassisWithElements(25, 1, 3)));
}

TEST(Type3, TheLengthByteAndNotTheSizeDecidesAboutElements) {
    EXPECT_FALSE(ElementsOf(ChassisWithElements(23, 1, 3).Bytes(0x15, {3, 1, 2, 0})));
}

TEST(Type3, CountAndRecordLengthOfZeroGiveTheElementFrom15To17) {
    const auto elements = ElementsOf(ChassisWithElements(24, 0, 0).Bytes(0x15, {0x86, 7, 9}));
    ASSERT_TRUE(elements);
    ASSERT_EQ(elements->Count(), 1U);
    EXPECT_EQ(elements->At(0).typeValue, 6);
    EXPECT_EQ(elements->At(0).typeSelect, "Structure");
    EXPECT_EQ(elements->At(0).typeName, "Processor Module");
    EXPECT_EQ(elements->At(0).minimum, 7);
    EXPECT_EQ(elements->At(0).maximum, 9);
}

TEST(Type3, ARecordLengthOfZeroStandsFor3) {
    EXPECT_EQ(ElementCountOf(5, 0), 5U);
}

TEST(Type3, ACountOfZeroStandsFor1) {
    EXPECT_EQ(ElementCountOf(0, 6), 2U);
}

TEST(Type3, RecordsAre3BytesEachWhateverTheRecordLength) {
    const auto elements =
        ElementsOf(ChassisWithElements(29, 2, 4).Bytes(0x15, {3, 11, 12, 4, 21, 22, 5, 31}));
    ASSERT_TRUE(elements);
    ASSERT_EQ(elements->Count(), 2U);  // 8 bytes, the last two dropped
    EXPECT_EQ(elements->At(0).typeValue, 3);
    EXPECT_EQ(elements->At(1).typeValue, 4);
    EXPECT_EQ(elements->At(1).minimum, 21);
    EXPECT_EQ(elements->At(1).maximum, 22);
}

TEST(Type3, LongRecordsGiveMoreElementsThanTheCount) {
    EXPECT_EQ(ElementCountOf(2, 6), 4U);
}

TEST(Type3, ShortRecordsGiveFewerElementsThanTheCount) {
    EXPECT_EQ(ElementCountOf(6, 1), 2U);
}

TEST(Type3, ElementsWithoutAWholeRecordAreAbsent) {
    EXPECT_FALSE(ElementsOf(ChassisWithElements(24, 1, 1)));
    EXPECT_FALSE(ElementsOf(ChassisWithElements(24, 1, 2)));
    EXPECT_FALSE(ElementsOf(ChassisWithElements(24, 2, 1)));
}

TEST(Type3, ElementsPastTheStructureReadAsZero) {
    const auto elements = ElementsOf(ChassisWithElements(24, 2, 3).Bytes(0x15, {10, 1, 2}));
    ASSERT_TRUE(elements);
    ASSERT_EQ(elements->Count(), 2U);
    EXPECT_EQ(elements->At(1).typeValue, 0);
    EXPECT_EQ(elements->At(1).typeSelect, "Baseboard");
    EXPECT_EQ(elements->At(1).typeName, "");
    EXPECT_EQ(elements->At(1).minimum, 0);
    EXPECT_EQ(elements->At(1).maximum, 0);
}

TEST(Type3, AllTheElementsAskedForAreCounted) {
    EXPECT_EQ(ElementCountOf(255, 255), 21675U);  // 65025 bytes
}

TEST(Type3, OnlyElementsWithAByteWithinTheStructureAreKept) {
    const auto count = [](std::uint8_t length) {
        return ElementsOf(ChassisWithElements(length, 255, 255))->CountWithinStructure();
    };
    EXPECT_EQ(count(24), 1U);
    EXPECT_EQ(count(25), 2U);
    EXPECT_EQ(count(27), 2U);
    EXPECT_EQ(count(255), 78U);  // 234 bytes
}

TEST(Type3, NoMoreElementsAreKeptThanTheCount) {
    EXPECT_EQ(ElementsOf(ChassisWithElements(255, 2, 3))->CountWithinStructure(), 2U);
}

TEST(Type3, AnElementCutShortByTheStructuresEndReadsOnAsZeros) {
    const auto elements = ElementsOf(ChassisWithElements(25, 2, 3).Bytes(0x15, {10, 1, 2, 0x88}));
    ASSERT_TRUE(elements);
    EXPECT_EQ(elements->At(1).typeValue, 8);
    EXPECT_EQ(elements->At(1).typeSelect, "Structure");
    EXPECT_EQ(elements->At(1).minimum, 0);
    EXPECT_EQ(elements->At(1).maximum, 0);
}

// SKU number

std::string SkuNumberOf(SmbiosVersionIndex version, const StructureBuilder& structure) {
    return Decode<Type_3>(version, structure)->skuNumber;
}

TEST(Type3, SkuNumberIsTheStringAfterTheElements) {
    EXPECT_EQ(SkuNumberOf(v2_7_0, ChassisWithElements(28, 2, 3).String("one").String(0x1B, "Sku")), "Sku");
}

TEST(Type3, AnAreaOfOneByteMoreHasNoSkuNumber) {
    EXPECT_EQ(SkuNumberOf(v2_7_0, ChassisWithElements(29, 2, 3).String(0x1B, "Sku")), "");
}

TEST(Type3, AnAreaOfOneByteLessHasNoSkuNumber) {
    EXPECT_EQ(SkuNumberOf(v2_7_0, ChassisWithElements(27, 2, 3).String("Sku")), "");
}

TEST(Type3, SkuNumberNeedsA270Table) {
    const StructureBuilder structure = ChassisWithElements(28, 2, 3).String(0x1B, "Sku");
    EXPECT_EQ(SkuNumberOf(v2_6_1, structure), "");
    EXPECT_EQ(SkuNumberOf(v2_7_0, structure), "Sku");
    EXPECT_EQ(SkuNumberOf(v2_7_1, structure), "Sku");
}

TEST(Type3, TheSizeAndNotTheLengthByteDecidesAboutTheSkuNumber) {
    const StructureBuilder fitting = ChassisWithElements(24, 2, 3).String(0x1B, "Sku");
    EXPECT_EQ(SkuNumberOf(v2_7_0, fitting), "Sku");

    const StructureBuilder oneTooLong = ChassisWithElements(28, 2, 3).String(0x1B, "Sku").Byte(0x1C, 0);
    EXPECT_EQ(SkuNumberOf(v2_7_0, oneTooLong), "");
}

TEST(Type3, SkuNumberNeedsALengthOf24) {
    EXPECT_EQ(SkuNumberOf(v2_7_0, ChassisWithElements(23, 1, 1).String(0x16, "Sku")), "");
    EXPECT_EQ(SkuNumberOf(v2_7_0, ChassisWithElements(24, 1, 2).String(0x17, "Sku")), "Sku");
}

TEST(Type3, CountAndRecordLengthOfZeroPutTheSkuNumberAt18) {
    EXPECT_EQ(SkuNumberOf(v2_7_0, ChassisWithElements(25, 0, 0).String(0x18, "Sku")), "Sku");
}

TEST(Type3, TheRecordLengthMovesTheSkuNumber) {
    EXPECT_EQ(SkuNumberOf(v2_7_0, ChassisWithElements(30, 2, 4).String(0x1D, "Sku")), "Sku");
}

TEST(Type3, ASkuNumberBeyondTheStringSetIsAnEmptyText) {
    const auto record = Decode<Type_3>(v2_7_0, ChassisWithElements(28, 2, 3).String("only").Byte(0x1B, 2));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->skuNumber, "");
}

// Tables

/// Expects the names of the rows for the low seven bits of a byte, whatever its top bit.
template <std::size_t Count, class NameOf>
void ExpectSevenBitNames(const std::pair<int, const char*> (&rows)[Count], NameOf nameOf) {
    std::map<int, std::string> expected(std::begin(rows), std::end(rows));
    EXPECT_EQ(expected.size(), Count) << "a row stands twice in the expectation";
    for (int code = 0; code <= 0xFF; ++code) {
        EXPECT_EQ(nameOf(static_cast<std::uint8_t>(code)), expected[code & 0x7F]) << "code " << code;
    }
}

constexpr std::pair<int, const char*> kChassisStates[] = {
    {3, "Safe"},
    {4, "Warning"},
    {5, "Critical"},
    {6, "Non-recoverable"},
};

TEST(Type3, EveryChassisTypeHasItsName) {
    const std::pair<int, const char*> rows[] = {
        {3, "Desktop"},
        {4, "Low Profile Desktop"},
        {5, "Pizza Box"},
        {6, "Mini Tower"},
        {7, "Tower"},
        {8, "Portable"},
        {9, "Laptop"},
        {10, "Notebook"},
        {11, "Hand Held"},
        {12, "Docking Station"},
        {13, "All in One"},
        {14, "Sub Notebook"},
        {15, "Space-saving"},
        {16, "Lunch Box"},
        {17, "Main Server Chassis"},
        {18, "Expansion Chassis"},
        {19, "SubChassis"},
        {20, "Bus Expansion Chassis"},
        {21, "Peripheral Chassis"},
        {22, "RAID Chassis"},
        {23, "Rack Mount Chassis"},
        {24, "Sealed-case PC"},
        {25, "Multi-system chassis"},
        {26, "Compact PCI"},
        {27, "Advanced TCA"},
        {28, "Blade"},
        {29, "Blade Enclosure"},
        {30, "Tablet"},
        {31, "Convertible"},
        {32, "Detachable"},
        {33, "IoT Gateway"},
        {34, "Embedded PC"},
        {35, "Mini PC"},
        {36, "Stick PC"},
    };
    EXPECT_EQ(std::size(rows), 34U);
    ExpectSevenBitNames(rows, [](std::uint8_t code) {
        const auto record = Decode<Type_3>(v2_0_0, Chassis(9).Byte(0x05, code));
        EXPECT_EQ(record->chassisTypeValue, code & 0x7F);
        EXPECT_EQ(record->chassisLock, code >= 0x80);
        return record->chassisType;
    });
}

TEST(Type3, EveryBootUpStateHasItsName) {
    ExpectNames(kChassisStates, [](std::uint8_t code) {
        const auto record = Decode<Type_3>(v2_1_0, Chassis(13).Byte(0x09, code));
        EXPECT_EQ(record->bootUpStateValue, code);
        return record->bootUpState;
    });
}

TEST(Type3, EveryPowerSupplyStateHasItsName) {
    ExpectNames(kChassisStates, [](std::uint8_t code) {
        const auto record = Decode<Type_3>(v2_1_0, Chassis(13).Byte(0x0A, code));
        EXPECT_EQ(record->powerSupplyStateValue, code);
        return record->powerSupplyState;
    });
}

TEST(Type3, EveryThermalStateHasItsName) {
    ExpectNames(kChassisStates, [](std::uint8_t code) {
        const auto record = Decode<Type_3>(v2_1_0, Chassis(13).Byte(0x0B, code));
        EXPECT_EQ(record->thermalStateValue, code);
        return record->thermalState;
    });
}

TEST(Type3, EverySecurityStatusHasItsName) {
    const std::pair<int, const char*> rows[] = {
        {3, "None"},
        {4, "External interface locked out"},
        {5, "External interface enabled"},
    };
    ExpectNames(rows, [](std::uint8_t code) {
        const auto record = Decode<Type_3>(v2_1_0, Chassis(13).Byte(0x0C, code));
        EXPECT_EQ(record->securityStatusValue, code);
        return record->securityStatus;
    });
}

TEST(Type3, EveryElementTypeHasItsBoardTypeName) {
    const std::pair<int, const char*> rows[] = {
        {3, "Server Blade"},
        {4, "Connectivity Switch"},
        {5, "System Management Module"},
        {6, "Processor Module"},
        {7, "I/O Module"},
        {8, "Memory Module"},
        {9, "Daughter Board"},
        {10, "Motherboard"},
        {11, "Processor/Memory Module"},
        {12, "Processor/IO Module"},
        {13, "Interconnect Board"},
    };
    ExpectSevenBitNames(rows, [](std::uint8_t code) {
        const auto elements = ElementsOf(ChassisWithElements(24, 1, 3).Byte(0x15, code));
        EXPECT_EQ(elements->At(0).typeValue, code & 0x7F);
        EXPECT_EQ(elements->At(0).typeSelect, code >= 0x80 ? "Structure" : "Baseboard");
        return elements->At(0).typeName;
    });
}

}  // namespace
}  // namespace SMBIOS::Tests
