#include "structures/type_2.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/decode.h"

namespace SMBIOS::Tests {
namespace {

using Structures::Type_2;
using Structures::Type2::Types::BoardFeatureFlags;

constexpr std::uint16_t kHandle = 0x00C1;

StructureBuilder Baseboard(std::uint8_t length) {
    return {2, length, kHandle};
}

// What is accepted

TEST(Type2, AcceptsTheShortestStructureInA200Table) {
    const auto record = Decode<Type_2>(v2_0_0, Baseboard(8));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->handle, kHandle);
}

TEST(Type2, AcceptsLengthsOf8OrMoreInEveryVersion) {
    for (const Manager::VersionRow& row : Manager::versionMap) {
        const AcceptanceCase cases[] = {
            {0, row.index, kMalformed},
            {7, row.index, kMalformed},
            {8, row.index, ""},
            {9, row.index, ""},
            {15, row.index, ""},
            {255, row.index, ""},
        };
        ExpectAcceptance<Type_2>(2, cases);
    }
}

TEST(Type2, ReportsAnEmptyFormattedAreaAsAnInvalidPointer) {
    EXPECT_EQ(DecodeBytes<Type_2>(v2_8_0, {})->error, kInvalidPointer);
}

TEST(Type2, ReportsThreeBytesAsMalformed) {
    EXPECT_EQ(DecodeBytes<Type_2>(v2_8_0, {2, 0x0F, 0x11})->error, kMalformed);
}

TEST(Type2, ARefusedStructureKeepsOnlyErrorRawBytesAndStrings) {
    const auto record = Decode<Type_2>(v2_4_0, Baseboard(7).String(0x04, "Maker"));
    EXPECT_EQ(record->handle, 0);
    EXPECT_EQ(record->manufacturer, "");
    EXPECT_FALSE(record->featureFlags);
    EXPECT_FALSE(record->chassisHandle);
    EXPECT_FALSE(record->boardTypeValue);
    EXPECT_EQ(record->rawBytes.size(), 7U);
    ASSERT_TRUE(record->strings);
    EXPECT_EQ(*record->strings, std::vector<std::string>{"Maker"});
}

TEST(Type2, ARefusedStructureWithoutStringsHasNoStringSet) {
    EXPECT_FALSE(Decode<Type_2>(v2_4_0, Baseboard(7))->strings);
}

TEST(Type2, AnAcceptedStructureWithoutStringsHasAnEmptyStringSet) {
    const auto record = Decode<Type_2>(v2_4_0, Baseboard(15));
    ASSERT_TRUE(record->strings);
    EXPECT_TRUE(record->strings->empty());
}

// Fields

TEST(Type2, TextsAreTheStringsFrom04To08AndAt0A) {
    const auto record = Decode<Type_2>(v2_0_0,
                                       Baseboard(15)
                                           .String(0x0A, "Location")
                                           .String(0x08, "Asset")
                                           .String(0x07, "Serial")
                                           .String(0x06, "Version")
                                           .String(0x05, "Product")
                                           .String(0x04, "  Maker  "));
    EXPECT_EQ(record->manufacturer, "Maker");
    EXPECT_EQ(record->product, "Product");
    EXPECT_EQ(record->version, "Version");
    EXPECT_EQ(record->serialNumber, "Serial");
    EXPECT_EQ(record->assetTag, "Asset");
    EXPECT_EQ(record->locationInChassis, "Location");
}

TEST(Type2, AStringNumberBeyondTheStringSetGivesAnEmptyText) {
    const auto record = Decode<Type_2>(v2_0_0, Baseboard(15).String("only").Byte(0x04, 2).Byte(0x0A, 9));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->manufacturer, "");
    EXPECT_EQ(record->locationInChassis, "");
}

TEST(Type2, ChassisHandleIsTheWordAt0B) {
    EXPECT_EQ(Decode<Type_2>(v2_0_0, Baseboard(15).Word(0x0B, 0x1234))->chassisHandle, 0x1234);
}

TEST(Type2, BoardTypeIsTheByteAt0D) {
    const auto record = Decode<Type_2>(v2_0_0, Baseboard(15).Byte(0x0D, 10));
    EXPECT_EQ(record->boardTypeValue, 10);
    EXPECT_EQ(record->boardType, "Motherboard");
}

TEST(Type2, BoardTypeWithoutANameHasAValueButNoText) {
    const auto record = Decode<Type_2>(v2_0_0, Baseboard(15).Byte(0x0D, 2));
    EXPECT_EQ(record->boardTypeValue, 2);
    EXPECT_EQ(record->boardType, "");
}

TEST(Type2, FieldsPastAShortStructureReadAsZero) {
    const auto record = Decode<Type_2>(v3_8_0, Baseboard(8).String("only"));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->assetTag, "");
    EXPECT_EQ(record->locationInChassis, "");
    EXPECT_EQ(record->chassisHandle, 0);
    EXPECT_EQ(record->boardTypeValue, 0);
    EXPECT_EQ(record->boardType, "");
    ASSERT_TRUE(record->featureFlags);
    EXPECT_EQ(record->featureFlags->raw, 0);
    EXPECT_FALSE(record->containedObjectHandles);
}

// Feature flags

BoardFeatureFlags FeatureFlagsOf(std::uint8_t flags) {
    return Decode<Type_2>(v2_0_0, Baseboard(15).Byte(0x09, flags))->featureFlags.value();
}

void ExpectFeatureFlags(std::uint8_t flags, const BoardFeatureFlags& expected) {
    const BoardFeatureFlags actual = FeatureFlagsOf(flags);
    EXPECT_EQ(actual.hotSwappable, expected.hotSwappable) << int{flags};
    EXPECT_EQ(actual.removable, expected.removable) << int{flags};
    EXPECT_EQ(actual.replaceable, expected.replaceable) << int{flags};
    EXPECT_EQ(actual.hostingBoard, expected.hostingBoard) << int{flags};
    EXPECT_EQ(actual.requiresDaughterBoard, expected.requiresDaughterBoard) << int{flags};
    EXPECT_EQ(actual.raw, flags);
}

TEST(Type2, NoFeatureBitMeansNoFeature) {
    ExpectFeatureFlags(0x00, {});
}

TEST(Type2, FeatureBit0MeansHostingBoard) {
    ExpectFeatureFlags(0x01, {.hostingBoard = true});
}

TEST(Type2, FeatureBit1MeansThatADaughterBoardIsRequired) {
    ExpectFeatureFlags(0x02, {.requiresDaughterBoard = true});
}

TEST(Type2, FeatureBit2MeansOnlyRemovable) {
    ExpectFeatureFlags(0x04, {.removable = true});
}

TEST(Type2, FeatureBit3MeansReplaceableAndRemovable) {
    ExpectFeatureFlags(0x08, {.removable = true, .replaceable = true});
}

TEST(Type2, FeatureBit4MeansHotSwappableReplaceableAndRemovable) {
    ExpectFeatureFlags(0x10, {.hotSwappable = true, .removable = true, .replaceable = true});
}

TEST(Type2, ReservedFeatureBitsStandOnlyInTheRawByte) {
    ExpectFeatureFlags(0xE0, {});
}

TEST(Type2, AllFeatureBitsMeanEveryFeature) {
    ExpectFeatureFlags(0xFF,
                       {.hotSwappable = true,
                        .removable = true,
                        .replaceable = true,
                        .hostingBoard = true,
                        .requiresDaughterBoard = true});
}

// Contained object handles

using Handles = std::vector<std::uint16_t>;

std::optional<Handles> HandlesOf(std::uint8_t count, std::uint8_t length = 0x13) {
    StructureBuilder board = Baseboard(length).Byte(0x0E, count);
    board.Word(0x0F, 0x0102).Word(0x11, 0x0304);
    return Decode<Type_2>(v2_0_0, board)->containedObjectHandles;
}

TEST(Type2, NoContainedObjectLeavesTheHandlesAbsent) {
    EXPECT_EQ(HandlesOf(0), std::nullopt);
}

TEST(Type2, ThreeContainedObjectsGiveNoHandles) {
    EXPECT_EQ(HandlesOf(3), Handles{});
}

TEST(Type2, UpToSevenContainedObjectsGiveNoHandles) {
    EXPECT_EQ(HandlesOf(1), Handles{});
    EXPECT_EQ(HandlesOf(7), Handles{});
}

TEST(Type2, EightContainedObjectsGiveTheHandleAt0F) {
    EXPECT_EQ(HandlesOf(8), Handles{0x0102});
}

TEST(Type2, NineContainedObjectsGiveTheHandlesAt0FAnd11) {
    EXPECT_EQ(HandlesOf(9), (Handles{0x0102, 0x0304}));
}

TEST(Type2, ContainedObjectHandlesPastTheStructureReadAsZero) {
    EXPECT_EQ(HandlesOf(11), (Handles{0x0102, 0x0304, 0, 0}));
}

TEST(Type2, AHandleCutShortIsCompletedWithZero) {
    EXPECT_EQ(DecodeBytes<Type_2>(v2_0_0, {2, 16, 0xC1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 8, 0x5A})
                  ->containedObjectHandles,
              Handles{0x005A});
}

TEST(Type2, TheMostContainedObjectsGive248Handles) {
    EXPECT_EQ(HandlesOf(255)->size(), 248U);
}

TEST(Type2, ContainedObjectHandlesAreReadWhateverTheLengthByteSays) {
    EXPECT_EQ(HandlesOf(9, 8), (Handles{0x0102, 0x0304}));
}

// Tables

TEST(Type2, EveryBoardTypeHasItsName) {
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
    ExpectNames(rows, [](std::uint8_t code) {
        const auto record = Decode<Type_2>(v2_0_0, Baseboard(15).Byte(0x0D, code));
        EXPECT_EQ(record->boardTypeValue, code);
        return record->boardType;
    });
}

}  // namespace
}  // namespace SMBIOS::Tests
