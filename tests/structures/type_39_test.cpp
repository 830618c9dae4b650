#include "structures/type_39.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/support/decode.h"
namespace SMBIOS::Tests {
namespace {

using Structures::Type_39;

constexpr std::uint16_t kHandle = 0x0039;

StructureBuilder PowerSupply(std::uint8_t length) {
    return {39, length, kHandle};
}

// What is accepted

TEST(Type39, ReportsAnEmptyFormattedAreaAsAnInvalidPointer) {
    EXPECT_EQ(DecodeBytes<Type_39>(v2_1_0, {})->error, kInvalidPointer);
}

TEST(Type39, ReportsThreeBytesAsMalformed) {
    EXPECT_EQ(DecodeBytes<Type_39>(v2_4_0, {39, 0x16, 0x11})->error, kMalformed);
}

TEST(Type39, KeepsTheHandle) {
    EXPECT_EQ(Decode<Type_39>(v2_4_0, PowerSupply(0x16))->handle, kHandle);
}

TEST(Type39, NeedsATableAbove230) {
    const AcceptanceCase cases[] = {
        {0x16, v2_2_0, kMalformed},
        {0x16, v2_3_0, kMalformed},
        {0x16, v2_4_0, ""},
        {0x16, v2_4_0, ""},
        {0x16, v2_5_0, ""},
        {0x16, v3_8_0, ""},
    };
    ExpectAcceptance<Type_39>(39, cases);
}

TEST(Type39, AcceptsEveryLength) {
    const AcceptanceCase cases[] = {
        {0x04, v2_4_0, ""},
        {0x0F, v2_4_0, ""},
        {0x10, v2_4_0, ""},
        {0x16, v2_4_0, ""},
        {0xFF, v2_4_0, ""},
    };
    ExpectAcceptance<Type_39>(39, cases);
}

TEST(Type39, ARefusedStructureKeepsOnlyErrorRawBytesAndStrings) {
    const auto record = Decode<Type_39>(v2_3_0, PowerSupply(0x16).Byte(0x04, 1).String(0x05, "Rear"));
    EXPECT_EQ(record->handle, 0);
    EXPECT_FALSE(record->powerUnitGroup);
    EXPECT_FALSE(record->characteristics);
    EXPECT_EQ(record->location, "");
    EXPECT_EQ(record->rawBytes.size(), 0x16U);
    ASSERT_TRUE(record->strings);
    EXPECT_EQ(*record->strings, std::vector<std::string>{"Rear"});
}

TEST(Type39, AStructureOf4BytesReadsAsZeros) {
    const auto record = Decode<Type_39>(v2_4_0, PowerSupply(0x04));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->powerUnitGroup, 0);
    EXPECT_EQ(record->maxPowerCapacity, 0);
    EXPECT_EQ(record->characteristics, 0);
    EXPECT_EQ(record->dmtfType + record->status + record->inputVoltageRangeSwitching, "");
    EXPECT_EQ(record->isUnplugged, false);
    EXPECT_EQ(record->isPresent, false);
    EXPECT_EQ(record->isHotReplaceable, false);
    EXPECT_EQ(record->location + record->deviceName + record->manufacturer + record->serialNumber, "");
    EXPECT_EQ(record->assetTagNumber + record->revisionLevel + record->modelPartNumber, "");
}

// Fields

TEST(Type39, PowerUnitGroupIsTheByteAt04) {
    EXPECT_EQ(Decode<Type_39>(v2_4_0, PowerSupply(0x16).Byte(0x04, 0x7B))->powerUnitGroup, 0x7B);
}

TEST(Type39, TextsAreTheStringsAt05To0B) {
    const auto record = Decode<Type_39>(v2_4_0,
                                        PowerSupply(0x16)
                                            .String(0x05, "Rear")
                                            .String(0x06, "PSU 1")
                                            .String(0x07, "Maker")
                                            .String(0x08, "SN-1")
                                            .String(0x09, "Asset")
                                            .String(0x0A, "Part")
                                            .String(0x0B, "Rev 2"));
    EXPECT_EQ(record->location, "Rear");
    EXPECT_EQ(record->deviceName, "PSU 1");
    EXPECT_EQ(record->manufacturer, "Maker");
    EXPECT_EQ(record->serialNumber, "SN-1");
    EXPECT_EQ(record->assetTagNumber, "Asset");
    EXPECT_EQ(record->modelPartNumber, "Part");
    EXPECT_EQ(record->revisionLevel, "Rev 2");
}

TEST(Type39, AStringThatIsNotThereIsEmpty) {
    const auto record = Decode<Type_39>(v2_4_0, PowerSupply(0x16).Byte(0x05, 7));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->location, "");
}

TEST(Type39, MaxPowerCapacityIsTheWordAt0D) {
    EXPECT_EQ(Decode<Type_39>(v2_4_0, PowerSupply(0x16).Word(0x0D, 0x02EE))->maxPowerCapacity, 0x02EE);
}

TEST(Type39, MaxPowerCapacity8000IsAbsent) {
    EXPECT_FALSE(Decode<Type_39>(v2_4_0, PowerSupply(0x16).Word(0x0D, 0x8000))->maxPowerCapacity);
}

TEST(Type39, CharacteristicsAreTheWordAt0F) {
    EXPECT_EQ(Decode<Type_39>(v2_4_0, PowerSupply(0x16).Word(0x0F, 0x1234))->characteristics, 0x1234);
}

TEST(Type39, HotReplaceableIsBit0) {
    const auto record = Decode<Type_39>(v2_4_0, PowerSupply(0x16).Word(0x0F, 0x0001));
    EXPECT_EQ(record->isHotReplaceable, true);
    EXPECT_EQ(record->isPresent, false);
    EXPECT_EQ(record->isUnplugged, false);
}

TEST(Type39, PresentIsBit1) {
    const auto record = Decode<Type_39>(v2_4_0, PowerSupply(0x16).Word(0x0F, 0x0002));
    EXPECT_EQ(record->isHotReplaceable, false);
    EXPECT_EQ(record->isPresent, true);
    EXPECT_EQ(record->isUnplugged, false);
}

TEST(Type39, UnpluggedIsBit2) {
    const auto record = Decode<Type_39>(v2_4_0, PowerSupply(0x16).Word(0x0F, 0x0004));
    EXPECT_EQ(record->isHotReplaceable, false);
    EXPECT_EQ(record->isPresent, false);
    EXPECT_EQ(record->isUnplugged, true);
}

TEST(Type39, TheBitsOfTheThreeCodesDoNotMix) {
    // Bits 13:10 are 4, bits 9:7 are 3, bits 6:3 are 5; bits 15:14 and 2:0 are set.
    const std::uint16_t word = 0xC000 | (4 << 10) | (3 << 7) | (5 << 3) | 7;
    const auto record = Decode<Type_39>(v2_4_0, PowerSupply(0x16).Word(0x0F, word));
    EXPECT_EQ(record->dmtfType, "Switching");
    EXPECT_EQ(record->status, "OK");
    EXPECT_EQ(record->inputVoltageRangeSwitching, "Wide range");
}

TEST(Type39, AStructureOfTheStandardLayoutGivesFlagsFromTheHighByteAndTheNextField) {
    // Capacity 0x02EE at 0C, characteristics 0x1986 at 0E, a handle 0x0016 at 10: the word at 0F is 0x1619,
    // whose bits 13:10 are 5, 9:7 are 4, 6:3 are 3 and 2:0 are 001.
    const auto record =
        Decode<Type_39>(v2_4_0, PowerSupply(0x16).Word(0x0C, 0x02EE).Word(0x0E, 0x1986).Word(0x10, 0x0016));
    EXPECT_EQ(record->maxPowerCapacity, 0x8602);
    EXPECT_EQ(record->characteristics, 0x1619);
    EXPECT_EQ(record->isHotReplaceable, true);
    EXPECT_EQ(record->isPresent, false);
    EXPECT_EQ(record->isUnplugged, false);
    EXPECT_EQ(record->dmtfType, "Battery");
    EXPECT_EQ(record->status, "Non-critical");
    EXPECT_EQ(record->inputVoltageRangeSwitching, "Manual");
}

TEST(Type39, TheHighByteOfTheCharacteristicsReadsAsZeroInAStructureOf16Bytes) {
    const auto record = Decode<Type_39>(v2_4_0, PowerSupply(0x10).Byte(0x0F, 0x9F));
    EXPECT_EQ(record->characteristics, 0x009F);
}

// Tables

StructureBuilder WithCharacteristics(std::uint8_t code, int shift) {
    return PowerSupply(0x16).Word(0x0F, static_cast<std::uint16_t>(code << shift));
}

TEST(Type39, EveryTypeHasItsName) {
    const std::pair<int, const char*> rows[] = {
        {3, "Linear"},
        {4, "Switching"},
        {5, "Battery"},
        {6, "UPS"},
        {7, "Converter"},
        {8, "Regulator"},
    };
    ExpectNarrowNames(4, rows, [](std::uint8_t code) {
        return Decode<Type_39>(v2_4_0, WithCharacteristics(code, 10))->dmtfType;
    });
}

TEST(Type39, EveryStatusHasItsName) {
    const std::pair<int, const char*> rows[] = {
        {3, "OK"},
        {4, "Non-critical"},
        {5, "Critical; power supply has failed and has been taken off-line."},
    };
    ExpectNarrowNames(3, rows, [](std::uint8_t code) {
        return Decode<Type_39>(v2_4_0, WithCharacteristics(code, 7))->status;
    });
}

TEST(Type39, EveryInputVoltageRangeSwitchingHasItsName) {
    const std::pair<int, const char*> rows[] = {
        {3, "Manual"},
        {4, "Auto-switch"},
        {5, "Wide range"},
        {6, "Not applicable"},
    };
    ExpectNarrowNames(4, rows, [](std::uint8_t code) {
        return Decode<Type_39>(v2_4_0, WithCharacteristics(code, 3))->inputVoltageRangeSwitching;
    });
}

}  // namespace
}  // namespace SMBIOS::Tests
