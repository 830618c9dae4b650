#include "structures/type_17.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/support/decode.h"

namespace SMBIOS::Tests {
namespace {

using Manager::SmbiosVersionIndex;
using Structures::Type_17;

constexpr std::uint16_t kHandle = 0x0011;

StructureBuilder MemoryDevice(std::uint8_t length) {
    return {17, length, kHandle};
}

// What is accepted

TEST(Type17, RefusesEveryStructureOfA200Table) {
    const auto record = Decode<Type_17>(v2_0_0, MemoryDevice(0x15));
    EXPECT_EQ(record->error, kMalformed);
    EXPECT_EQ(record->handle, 0);
}

TEST(Type17, AcceptsTheShortestStructureFrom210On) {
    const auto record = Decode<Type_17>(v2_1_0, MemoryDevice(0x15));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->handle, kHandle);
}

TEST(Type17, RefusesALengthBelow21) {
    EXPECT_EQ(Decode<Type_17>(v2_1_0, MemoryDevice(0x14))->error, kMalformed);
}

TEST(Type17, ReportsAnEmptyFormattedAreaAsAnInvalidPointer) {
    EXPECT_EQ(DecodeBytes<Type_17>(v2_8_0, {})->error, kInvalidPointer);
}

TEST(Type17, ReportsThreeBytesAsMalformed) {
    EXPECT_EQ(DecodeBytes<Type_17>(v2_8_0, {17, 0x28, 0x11})->error, kMalformed);
}

TEST(Type17, GatesRefuseLongerStructuresOfExactlyOneVersion) {
    const AcceptanceCase cases[] = {
        {0x15, v2_1_0, ""}, {0x16, v2_1_0, "v2.3.0 structure or later in a v2.1.0 BIOS"}, {0x16, v2_2_0, ""},
        {0x1B, v2_3_0, ""}, {0x1C, v2_3_0, "v2.6.0 structure or later in a v2.3.0 BIOS"}, {0x1C, v2_4_0, ""},
        {0x1C, v2_6_0, ""}, {0x1D, v2_6_0, "v2.7.0 structure or later in a v2.6.0 BIOS"}, {0x1D, v2_6_1, ""},
        {0x22, v2_7_0, ""}, {0x23, v2_7_0, "v2.8.0 structure or later in a v2.7.0 BIOS"}, {0x23, v2_7_1, ""},
        {0x28, v2_8_0, ""}, {0x29, v2_8_0, "v3.2.0 structure or later in a v2.8.0 BIOS"}, {0x29, v3_0_0, ""},
        {0x54, v3_2_0, ""}, {0x55, v3_2_0, "v3.3.0 structure or later in a v3.2.0 BIOS"}, {0x55, v3_3_0, ""},
        {0x5C, v3_3_0, ""}, {0x5D, v3_3_0, "v3.7.0 structure or later in a v3.3.0 BIOS"}, {0x5D, v3_4_0, ""},
    };
    ExpectAcceptance<Type_17>(17, cases);
}

TEST(Type17, TheFirstGateThatMatchesGivesTheMessage) {
    EXPECT_EQ(Decode<Type_17>(v2_1_0, MemoryDevice(0x64))->error,
              "v2.3.0 structure or later in a v2.1.0 BIOS");
}

TEST(Type17, A28ByteStructurePassesInA240And250TableButNotInA230Table) {
    EXPECT_EQ(Decode<Type_17>(v2_3_0, MemoryDevice(28))->error, "v2.6.0 structure or later in a v2.3.0 BIOS");
    EXPECT_EQ(Decode<Type_17>(v2_4_0, MemoryDevice(28))->error, "");
    EXPECT_EQ(Decode<Type_17>(v2_5_0, MemoryDevice(28))->error, "");
}

TEST(Type17, A34ByteStructurePassesInA240And250Table) {
    EXPECT_EQ(Decode<Type_17>(v2_4_0, MemoryDevice(0x22))->error, "");
    EXPECT_EQ(Decode<Type_17>(v2_5_0, MemoryDevice(0x22))->error, "");
}

TEST(Type17, A40ByteStructurePassesInA280TableButNotInA270Table) {
    EXPECT_EQ(Decode<Type_17>(v2_8_0, MemoryDevice(40))->error, "");
    EXPECT_EQ(Decode<Type_17>(v2_7_0, MemoryDevice(40))->error, "v2.8.0 structure or later in a v2.7.0 BIOS");
}

TEST(Type17, An84ByteStructureFailsInA280TableButPassesInA300Table) {
    EXPECT_EQ(Decode<Type_17>(v2_8_0, MemoryDevice(0x54))->error,
              "v3.2.0 structure or later in a v2.8.0 BIOS");
    EXPECT_EQ(Decode<Type_17>(v3_0_0, MemoryDevice(0x54))->error, "");
}

TEST(Type17, ARefusedStructureKeepsOnlyErrorRawBytesAndStrings) {
    const auto record = Decode<Type_17>(v2_7_0, MemoryDevice(40).Word(0x0C, 0x0400).String(0x10, "DIMM 1"));
    EXPECT_EQ(record->handle, 0);
    EXPECT_FALSE(record->size);
    EXPECT_EQ(record->deviceLocator, "");
    EXPECT_EQ(record->rawBytes.size(), 40U);
    ASSERT_TRUE(record->strings);
    EXPECT_EQ(*record->strings, std::vector<std::string>{"DIMM 1"});
}

TEST(Type17, ARefusedStructureWithoutStringsHasNoStringSet) {
    EXPECT_FALSE(Decode<Type_17>(v2_7_0, MemoryDevice(40))->strings);
}

TEST(Type17, AnAcceptedStructureWithoutStringsHasAnEmptyStringSet) {
    const auto record = Decode<Type_17>(v2_8_0, MemoryDevice(40));
    ASSERT_TRUE(record->strings);
    EXPECT_TRUE(record->strings->empty());
}

// Size

std::optional<std::uint64_t> SizeOf(SmbiosVersionIndex version,
                                    std::uint16_t size,
                                    std::uint32_t extended = 0) {
    return Decode<Type_17>(version, MemoryDevice(0x28).Word(0x0C, size).Dword(0x1C, extended))->size;
}

TEST(Type17, SizeZeroIsAbsent) {
    EXPECT_EQ(SizeOf(v2_8_0, 0x0000), std::nullopt);
}

TEST(Type17, SizeInKilobytesIsNotScaled) {
    EXPECT_EQ(SizeOf(v2_8_0, 0x8400), 1024U);
}

TEST(Type17, SizeOfZeroKilobytesIsAbsent) {
    EXPECT_EQ(SizeOf(v2_8_0, 0x8000), std::nullopt);
}

TEST(Type17, SizeInMegabytesIsInBytes) {
    EXPECT_EQ(SizeOf(v2_8_0, 0x0400), 1073741824U);
}

TEST(Type17, Size7FFFIsASizeLikeAnyOther) {
    EXPECT_EQ(SizeOf(v2_8_0, 0x7FFF, 0x00008000), 34358689792U);
}

TEST(Type17, SizeFFFFTakesTheLowHalfOfTheExtendedSize) {
    EXPECT_EQ(SizeOf(v2_8_0, 0xFFFF, 0x00014000), 17179869184U);  // 0x4000 megabytes
}

TEST(Type17, SizeFFFFWithAnExtendedSizeWhoseLowHalfIsZeroIsAbsent) {
    EXPECT_EQ(SizeOf(v3_0_0, 0xFFFF, 0x00010000), std::nullopt);
}

TEST(Type17, SizeFFFFNeedsA270Table) {
    const StructureBuilder shortDevice = MemoryDevice(0x1B).Word(0x0C, 0xFFFF).Dword(0x1C, 0x4000);
    EXPECT_EQ(Decode<Type_17>(v2_6_0, shortDevice)->size, std::nullopt);
    EXPECT_EQ(Decode<Type_17>(v2_6_1, shortDevice)->size, std::nullopt);
    EXPECT_EQ(Decode<Type_17>(v2_7_0, shortDevice)->size, 17179869184U);
}

TEST(Type17, ALongStructureWithExtendedSizeIsRefusedInA260Table) {
    EXPECT_EQ(Decode<Type_17>(v2_6_0, MemoryDevice(0x22).Word(0x0C, 0xFFFF).Dword(0x1C, 0x4000))->error,
              "v2.7.0 structure or later in a v2.6.0 BIOS");
}

// Fields of every version

TEST(Type17, DeviceSetZeroIsPresent) {
    EXPECT_EQ(Decode<Type_17>(v2_1_0, MemoryDevice(0x15).Byte(0x0F, 0))->deviceSet, 0);
}

TEST(Type17, DeviceSetIsTheByteAt0F) {
    EXPECT_EQ(Decode<Type_17>(v2_1_0, MemoryDevice(0x15).Byte(0x0F, 0x7B))->deviceSet, 0x7B);
}

TEST(Type17, WidthsAreTheWordsAt0AAnd08) {
    const auto record = Decode<Type_17>(v2_1_0, MemoryDevice(0x15).Word(0x0A, 64).Word(0x08, 72));
    EXPECT_EQ(record->dataWidth, 64);
    EXPECT_EQ(record->totalWidth, 72);
}

TEST(Type17, WidthsOfFFFFAreAbsent) {
    const auto record = Decode<Type_17>(v2_1_0, MemoryDevice(0x15).Word(0x0A, 0xFFFF).Word(0x08, 0xFFFF));
    EXPECT_FALSE(record->dataWidth);
    EXPECT_FALSE(record->totalWidth);
}

TEST(Type17, PhysicalMemoryArrayHandleIsTheWordAt04) {
    EXPECT_EQ(Decode<Type_17>(v2_1_0, MemoryDevice(0x15).Word(0x04, 0x1002))->physicalMemoryArrayHandle,
              0x1002);
}

TEST(Type17, ErrorInformationHandleFFFEIsAbsent) {
    EXPECT_FALSE(
        Decode<Type_17>(v2_1_0, MemoryDevice(0x15).Word(0x06, 0xFFFE))->memoryErrorInformationHandle);
}

TEST(Type17, ErrorInformationHandleFFFFIsAValue) {
    EXPECT_EQ(Decode<Type_17>(v2_1_0, MemoryDevice(0x15).Word(0x06, 0xFFFF))->memoryErrorInformationHandle,
              0xFFFF);
}

TEST(Type17, LocatorsAreTheStringsAt10And11) {
    const auto record =
        Decode<Type_17>(v2_1_0, MemoryDevice(0x15).String(0x10, "DIMM_A1").String(0x11, "  BANK 0  "));
    EXPECT_EQ(record->deviceLocator, "DIMM_A1");
    EXPECT_EQ(record->bankLocator, "BANK 0");
}

TEST(Type17, TypeDetailComesAsWordAndAsNamedFlags) {
    const auto record = Decode<Type_17>(v2_1_0, MemoryDevice(0x15).Word(0x13, 0x0080));
    EXPECT_EQ(record->typeDetail, 0x0080);
    ASSERT_TRUE(record->typeDetailFlags);
    EXPECT_EQ(record->typeDetailFlags->GetBitCount(), 16U);
    EXPECT_TRUE(record->typeDetailFlags->Test(7));
    EXPECT_STREQ(record->typeDetailFlags->GetBitName(7), "Synchronous");
}

// Version groups

TEST(Type17, SpeedZeroIsAbsent) {
    EXPECT_FALSE(Decode<Type_17>(v2_8_0, MemoryDevice(0x28).Word(0x15, 0))->speed);
}

TEST(Type17, SpeedIsTheWordAt15) {
    EXPECT_EQ(Decode<Type_17>(v2_8_0, MemoryDevice(0x28).Word(0x15, 3200))->speed, 3200U);
}

TEST(Type17, SpeedNeedsA230Table) {
    EXPECT_FALSE(Decode<Type_17>(v2_2_0, MemoryDevice(0x1B).Word(0x15, 3200))->speed);
    EXPECT_EQ(Decode<Type_17>(v2_3_0, MemoryDevice(0x1B).Word(0x15, 3200))->speed, 3200U);
}

TEST(Type17, SpeedFFFFTakesTheWholeExtendedSpeedFrom330On) {
    const StructureBuilder device = MemoryDevice(0x5C).Word(0x15, 0xFFFF).Dword(0x54, 6400);
    EXPECT_EQ(Decode<Type_17>(v3_3_0, device)->speed, 6400U);
    EXPECT_EQ(Decode<Type_17>(v3_3_0, MemoryDevice(0x5C).Word(0x15, 0xFFFF).Dword(0x54, 0x00012C00))->speed,
              0x00012C00U);
}

TEST(Type17, SpeedFFFFWithAnExtendedSpeedOfZeroIsZero) {
    EXPECT_EQ(Decode<Type_17>(v3_3_0, MemoryDevice(0x5C).Word(0x15, 0xFFFF))->speed, 0U);
}

TEST(Type17, SpeedFFFFInA320TableIsAbsent) {
    const auto record = Decode<Type_17>(v3_2_0, MemoryDevice(0x54).Word(0x15, 0xFFFF).Dword(0x54, 6400));
    EXPECT_EQ(record->error, "");
    EXPECT_FALSE(record->speed);
}

TEST(Type17, ALongStructureWithExtendedSpeedIsRefusedInA320Table) {
    EXPECT_EQ(Decode<Type_17>(v3_2_0, MemoryDevice(0x5C).Word(0x15, 0xFFFF).Dword(0x54, 6400))->error,
              "v3.3.0 structure or later in a v3.2.0 BIOS");
}

TEST(Type17, TextsOfTheModuleNeedA230Table) {
    const StructureBuilder device = MemoryDevice(0x1B)
                                        .String(0x17, "Maker")
                                        .String(0x18, "1A2B3C4D")
                                        .String(0x19, "Asset")
                                        .String(0x1A, "Part");
    const auto modern = Decode<Type_17>(v2_3_0, device);
    EXPECT_EQ(modern->manufacturer, "Maker");
    EXPECT_EQ(modern->serialNumber, "1A2B3C4D");
    EXPECT_EQ(modern->assetTag, "Asset");
    EXPECT_EQ(modern->partNumber, "Part");

    const auto old = Decode<Type_17>(v2_2_0, device);
    EXPECT_EQ(old->error, "");
    EXPECT_EQ(old->manufacturer + old->serialNumber + old->assetTag + old->partNumber, "");
}

TEST(Type17, RankIsTheLowThreeBitsFrom260On) {
    EXPECT_EQ(Decode<Type_17>(v2_6_0, MemoryDevice(0x1C).Byte(0x1B, 0x0A))->rank, 2);
    EXPECT_FALSE(Decode<Type_17>(v2_5_0, MemoryDevice(0x1C).Byte(0x1B, 0x0A))->rank);
}

TEST(Type17, ConfiguredSpeedZeroIsAValue) {
    EXPECT_EQ(Decode<Type_17>(v2_7_0, MemoryDevice(0x22).Word(0x20, 0))->configuredSpeed, 0U);
}

TEST(Type17, ConfiguredSpeedNeedsA270Table) {
    EXPECT_EQ(Decode<Type_17>(v2_7_0, MemoryDevice(0x22).Word(0x20, 2666))->configuredSpeed, 2666U);
    EXPECT_FALSE(Decode<Type_17>(v2_6_1, MemoryDevice(0x22).Word(0x20, 2666))->configuredSpeed);
}

TEST(Type17, ConfiguredSpeedFFFFTakesTheLowHalfOfTheExtendedOneFrom330On) {
    EXPECT_EQ(Decode<Type_17>(v3_3_0, MemoryDevice(0x5C).Word(0x20, 0xFFFF).Dword(0x58, 0x00012C00))
                  ->configuredSpeed,
              0x2C00U);
}

TEST(Type17, ConfiguredSpeedFFFFInA320TableIsAbsent) {
    EXPECT_FALSE(Decode<Type_17>(v3_2_0, MemoryDevice(0x54).Word(0x20, 0xFFFF))->configuredSpeed);
}

TEST(Type17, VoltagesAreStoredAsReadFrom280On) {
    const StructureBuilder device = MemoryDevice(0x28).Word(0x22, 1140).Word(0x24, 0).Word(0x26, 1200);
    const auto record = Decode<Type_17>(v2_8_0, device);
    EXPECT_EQ(record->minimumVoltage, 1140);
    EXPECT_EQ(record->maximumVoltage, 0);
    EXPECT_EQ(record->configuredVoltage, 1200);

    const auto old = Decode<Type_17>(v2_7_1, device);
    EXPECT_EQ(old->error, "");
    EXPECT_FALSE(old->minimumVoltage);
    EXPECT_FALSE(old->maximumVoltage);
    EXPECT_FALSE(old->configuredVoltage);
}

TEST(Type17, TechnologyCodeIsReadAsABitMask) {
    const auto record = Decode<Type_17>(v3_2_0, MemoryDevice(0x54).Byte(0x28, 3));
    EXPECT_EQ(record->memoryTechnology, 3);
    ASSERT_TRUE(record->memoryTechnologyFlags);
    EXPECT_EQ(record->memoryTechnologyFlags->GetBitCount(), 8U);
    EXPECT_TRUE(record->memoryTechnologyFlags->Test(0));
    EXPECT_TRUE(record->memoryTechnologyFlags->Test(1));
    EXPECT_FALSE(record->memoryTechnologyFlags->Test(2));
}

TEST(Type17, OperatingModeCapabilityComesAsWordAndAsFlags) {
    const auto record = Decode<Type_17>(v3_2_0, MemoryDevice(0x54).Word(0x29, 0x0008));
    EXPECT_EQ(record->operatingModeCapability, 0x0008);
    ASSERT_TRUE(record->operatingModeCapabilityFlags);
    EXPECT_EQ(record->operatingModeCapabilityFlags->GetBitCount(), 16U);
    EXPECT_STREQ(record->operatingModeCapabilityFlags->GetBitName(3), "Volatile Memory");
    EXPECT_EQ(record->operatingModeCapabilityFlags->GetBitName(6), nullptr);
}

TEST(Type17, FirmwareVersionIsTheStringAt2B) {
    EXPECT_EQ(Decode<Type_17>(v3_2_0, MemoryDevice(0x54).String(0x2B, "1.2.3"))->firmwareVersion, "1.2.3");
}

TEST(Type17, PartialSizesAreQwordsAndZeroIsAValue) {
    const auto record = Decode<Type_17>(v3_2_0,
                                        MemoryDevice(0x54)
                                            .Qword(0x34, 0x0000000100000000)
                                            .Qword(0x3C, 0)
                                            .Qword(0x44, 0x0102030405060708)
                                            .Qword(0x4C, 5));
    EXPECT_EQ(record->nonVolatileSize, 0x0000000100000000U);
    EXPECT_EQ(record->volatileSize, 0U);
    EXPECT_EQ(record->cacheSize, 0x0102030405060708U);
    EXPECT_EQ(record->logicalSize, 5U);
}

TEST(Type17, PartialSizesOfAllOnesAreAbsent) {
    constexpr std::uint64_t kAllOnes = 0xFFFFFFFFFFFFFFFF;
    const auto record = Decode<Type_17>(v3_2_0,
                                        MemoryDevice(0x54)
                                            .Qword(0x34, kAllOnes)
                                            .Qword(0x3C, kAllOnes)
                                            .Qword(0x44, kAllOnes)
                                            .Qword(0x4C, kAllOnes));
    EXPECT_FALSE(record->nonVolatileSize);
    EXPECT_FALSE(record->volatileSize);
    EXPECT_FALSE(record->cacheSize);
    EXPECT_FALSE(record->logicalSize);
}

TEST(Type17, ModuleIdentifiersArePresentWithValueZero) {
    const auto record = Decode<Type_17>(
        v3_2_0,
        MemoryDevice(0x54).Word(0x2C, 0x2C80).Word(0x2E, 0xFFFF).Word(0x30, 0x0102).Word(0x32, 0x8000));
    EXPECT_EQ(record->moduleManufacturerId, 0);
    EXPECT_EQ(record->moduleProductId, 0);
    EXPECT_EQ(record->memorySubsystemControllerManufacturerId, 0);
    EXPECT_EQ(record->memorySubsystemControllerProductId, 0);
}

TEST(Type17, FieldsOf320AreAbsentBefore) {
    const auto record = Decode<Type_17>(v3_1_1, MemoryDevice(0x54).Byte(0x28, 3).Word(0x2C, 0x2C80));
    EXPECT_EQ(record->error, "");
    EXPECT_FALSE(record->memoryTechnology);
    EXPECT_FALSE(record->memoryTechnologyFlags);
    EXPECT_FALSE(record->operatingModeCapability);
    EXPECT_FALSE(record->operatingModeCapabilityFlags);
    EXPECT_FALSE(record->cacheSize);
    EXPECT_FALSE(record->logicalSize);
    EXPECT_FALSE(record->volatileSize);
    EXPECT_FALSE(record->nonVolatileSize);
    EXPECT_FALSE(record->moduleManufacturerId);
    EXPECT_FALSE(record->moduleProductId);
    EXPECT_FALSE(record->memorySubsystemControllerManufacturerId);
    EXPECT_FALSE(record->memorySubsystemControllerProductId);
}

TEST(Type17, RevisionNumbersAreReadAndIdentifiersAreZeroFrom370On) {
    const StructureBuilder device =
        MemoryDevice(0x64).Word(0x5C, 0x8A85).Word(0x5E, 0x0031).Word(0x60, 0x8632).Word(0x62, 0x0041);
    const auto record = Decode<Type_17>(v3_7_0, device);
    EXPECT_EQ(record->pmic0ManufacturerId, 0);
    EXPECT_EQ(record->pmic0RevisionNumber, 0x0031);
    EXPECT_EQ(record->rcdManufacturerId, 0);
    EXPECT_EQ(record->rcdRevisionNumber, 0x0041);

    const auto old = Decode<Type_17>(v3_6_0, device);
    EXPECT_EQ(old->error, "");
    EXPECT_FALSE(old->pmic0ManufacturerId);
    EXPECT_FALSE(old->pmic0RevisionNumber);
    EXPECT_FALSE(old->rcdManufacturerId);
    EXPECT_FALSE(old->rcdRevisionNumber);
}

TEST(Type17, FieldsPastAShortStructureReadAsZero) {
    const auto record = Decode<Type_17>(v3_8_0, MemoryDevice(0x15));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->rank, 0);
    EXPECT_EQ(record->configuredVoltage, 0);
    EXPECT_EQ(record->cacheSize, 0U);
    EXPECT_EQ(record->rcdRevisionNumber, 0);
    EXPECT_FALSE(record->speed);
}

TEST(Type17, PositionInRowIsNeverDecoded) {
    EXPECT_FALSE(Decode<Type_17>(v3_8_0, MemoryDevice(0x64))->positionInRow);
}

// Tables

TEST(Type17, EveryFormFactorHasItsName) {
    const std::pair<int, const char*> rows[] = {
        {0x03, "SIMM"},
        {0x04, "SIP"},
        {0x05, "Chip"},
        {0x06, "DIP"},
        {0x07, "ZIP"},
        {0x08, "Proprietary Card"},
        {0x09, "DIMM"},
        {0x0A, "TSOP"},
        {0x0B, "Row of chips"},
        {0x0C, "RIMM"},
        {0x0D, "SODIMM"},
        {0x0E, "SRIMM"},
        {0x0F, "FB-DIMM"},
        {0x10, "Die"},
        {0x11, "CAMM"},
    };
    ExpectNames(rows, [](std::uint8_t code) {
        const auto record = Decode<Type_17>(v2_1_0, MemoryDevice(0x15).Byte(0x0E, code));
        EXPECT_EQ(record->formFactor, code);
        return record->formFactorName;
    });
}

TEST(Type17, EveryMemoryTypeHasItsName) {
    const std::pair<int, const char*> rows[] = {
        {0x03, "DRAM"},
        {0x04, "EDRAM"},
        {0x05, "VRAM"},
        {0x06, "SRAM"},
        {0x07, "RAM"},
        {0x08, "ROM"},
        {0x09, "FLASH"},
        {0x0A, "EEPROM"},
        {0x0B, "FEPROM"},
        {0x0C, "EPROM"},
        {0x0D, "CDRAM"},
        {0x0E, "3DRAM"},
        {0x0F, "SDRAM"},
        {0x10, "SGRAM"},
        {0x11, "RDRAM"},
        {0x12, "DDR"},
        {0x13, "DDR2"},
        {0x14, "DDR2 FB-DIMM"},
        {0x18, "DDR3"},
        {0x19, "FBD2"},
        {0x1A, "DDR4"},
        {0x1B, "LPDDR"},
        {0x1C, "LPDDR2"},
        {0x1D, "LPDDR3"},
        {0x1E, "LPDDR4"},
        {0x1F, "Logical non-volatile device"},
        {0x20, "HBM (High Bandwidth Memory)"},
        {0x21, "HBM2 (High Bandwidth Memory Generation 2)"},
        {0x22, "DDR5"},
        {0x23, "LPDDR5"},
        {0x24, "HBM3 (High Bandwidth Memory Generation 3)"},
    };
    ExpectNames(rows, [](std::uint8_t code) {
        const auto record = Decode<Type_17>(v2_1_0, MemoryDevice(0x15).Byte(0x12, code));
        EXPECT_EQ(record->memoryType, code);
        return record->memoryTypeName;
    });
}

TEST(Type17, EveryTypeDetailBitHasItsName) {
    ExpectBitNames(*Decode<Type_17>(v2_1_0, MemoryDevice(0x15))->typeDetailFlags,
                   {"dontCare",
                    "dontCare",
                    "dontCare",
                    "Fast-paged",
                    "Static column",
                    "Pseudo-static",
                    "RAMBUS",
                    "Synchronous",
                    "CMOS",
                    "EDO",
                    "Window DRAM",
                    "Cache DRAM",
                    "Non-volatile",
                    "Registered (Buffered)",
                    "Unbuffered (Unregistered)",
                    "LRDIMM"});
}

TEST(Type17, EveryOperatingModeBitHasItsName) {
    ExpectBitNames(*Decode<Type_17>(v3_2_0, MemoryDevice(0x54))->operatingModeCapabilityFlags,
                   {"dontCare",
                    "dontCare",
                    "dontCare",
                    "Volatile Memory",
                    "Byte-accessible persistent memory",
                    "Block-accessible persistent memory"});
}

TEST(Type17, EveryMemoryTechnologyBitHasItsName) {
    ExpectBitNames(*Decode<Type_17>(v3_2_0, MemoryDevice(0x54))->memoryTechnologyFlags,
                   {"dontCare",
                    "dontCare",
                    "DRAM",
                    "NVDIMM-N",
                    "NVDIMM-F",
                    "NVDIMM-P",
                    "Intel(R) Optane(TM) persistent memory",
                    "MRDIMM"});
}

}  // namespace
}  // namespace SMBIOS::Tests
