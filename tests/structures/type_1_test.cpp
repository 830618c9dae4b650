#include "structures/type_1.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/support/decode.h"

namespace SMBIOS::Tests {
namespace {

using Manager::SmbiosVersionIndex;
using Structures::Type_1;

constexpr std::uint16_t kHandle = 0x00B1;
constexpr const char* kNewerThan200 = "v2.1.0 structure or later in a v2.0.0 BIOS";
constexpr const char* kNewerThan234 = "v2.4.0 structure or later in a v2.3.4 BIOS or older";

StructureBuilder SystemInformation(std::uint8_t length) {
    return {1, length, kHandle};
}

// What is accepted

TEST(Type1, AcceptsTheShortestStructureInA200Table) {
    const auto record = Decode<Type_1>(v2_0_0, SystemInformation(8));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->handle, kHandle);
}

TEST(Type1, AcceptsLengthsFrom8To27) {
    const AcceptanceCase cases[] = {
        {0, v2_4_0, kMalformed},
        {7, v2_0_0, kMalformed},
        {7, v2_4_0, kMalformed},
        {8, v2_4_0, ""},
        {9, v2_4_0, ""},
        {26, v2_4_0, ""},
        {27, v2_4_0, ""},
        {27, v3_8_0, ""},
        {28, v2_4_0, kMalformed},
        {28, v3_8_0, kMalformed},
        {255, v3_8_0, kMalformed},
    };
    ExpectAcceptance<Type_1>(1, cases);
}

TEST(Type1, RefusesALengthOf28AsMalformedBeforeAnyGate) {
    EXPECT_EQ(Decode<Type_1>(v2_3_0, SystemInformation(28))->error, kMalformed);
    EXPECT_EQ(Decode<Type_1>(v2_0_0, SystemInformation(28))->error, kMalformed);
}

TEST(Type1, ReportsAnEmptyFormattedAreaAsAnInvalidPointer) {
    EXPECT_EQ(DecodeBytes<Type_1>(v2_8_0, {})->error, kInvalidPointer);
}

TEST(Type1, ReportsThreeBytesAsMalformed) {
    EXPECT_EQ(DecodeBytes<Type_1>(v2_8_0, {1, 0x1B, 0x11})->error, kMalformed);
}

TEST(Type1, A200TableRefusesLengthsOf25OrMore) {
    const AcceptanceCase cases[] = {
        {24, v2_0_0, ""}, {25, v2_0_0, kNewerThan200}, {26, v2_0_0, kNewerThan200}, {25, v2_1_0, ""}};
    ExpectAcceptance<Type_1>(1, cases);
}

TEST(Type1, TablesBelow240RefuseLengthsOf26OrMore) {
    const AcceptanceCase cases[] = {
        {25, v2_1_0, ""},
        {26, v2_1_0, kNewerThan234},
        {26, v2_2_0, kNewerThan234},
        {25, v2_3_0, ""},
        {26, v2_3_0, kNewerThan234},
        {27, v2_3_0, kNewerThan234},
        {26, v2_4_0, ""},
        {26, v2_5_0, ""},
    };
    ExpectAcceptance<Type_1>(1, cases);
}

TEST(Type1, TheLastGateEndsBelowTheLastReservedVersion) {
    const AcceptanceCase cases[] = {{26, v2_3_0, kNewerThan234}, {26, v2_4_0, ""}};
    ExpectAcceptance<Type_1>(1, cases);
}

TEST(Type1, TheFirstGateThatMatchesGivesTheMessage) {
    EXPECT_EQ(Decode<Type_1>(v2_0_0, SystemInformation(27))->error, kNewerThan200);
}

TEST(Type1, ARefusedStructureKeepsOnlyErrorRawBytesAndStrings) {
    const auto record = Decode<Type_1>(v2_3_0, SystemInformation(27).String(0x04, "Maker"));
    EXPECT_EQ(record->handle, 0);
    EXPECT_EQ(record->manufacturer, "");
    EXPECT_EQ(record->uuid, "");
    EXPECT_FALSE(record->wakeUpTypeValue);
    EXPECT_EQ(record->rawBytes.size(), 27U);
    ASSERT_TRUE(record->strings);
    EXPECT_EQ(*record->strings, std::vector<std::string>{"Maker"});
}

TEST(Type1, ARefusedStructureWithoutStringsHasNoStringSet) {
    EXPECT_FALSE(Decode<Type_1>(v2_3_0, SystemInformation(27))->strings);
}

TEST(Type1, AnAcceptedStructureWithoutStringsHasAnEmptyStringSet) {
    const auto record = Decode<Type_1>(v2_4_0, SystemInformation(27));
    ASSERT_TRUE(record->strings);
    EXPECT_TRUE(record->strings->empty());
}

// Texts of every version

TEST(Type1, TextsAreTheStringsFrom04To07) {
    const auto record = Decode<Type_1>(v2_0_0,
                                       SystemInformation(8)
                                           .String(0x07, "Serial")
                                           .String(0x06, "Version")
                                           .String(0x05, "Product")
                                           .String(0x04, "  Maker  "));
    EXPECT_EQ(record->manufacturer, "Maker");
    EXPECT_EQ(record->productName, "Product");
    EXPECT_EQ(record->version, "Version");
    EXPECT_EQ(record->serialNumber, "Serial");
}

TEST(Type1, AStringNumberBeyondTheStringSetGivesAnEmptyText) {
    const auto record = Decode<Type_1>(v2_0_0, SystemInformation(8).String("only").Byte(0x04, 2));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->manufacturer, "");
}

// UUID

std::string UuidOf(const std::vector<std::uint8_t>& bytes, SmbiosVersionIndex version = v2_1_0) {
    return Decode<Type_1>(version, SystemInformation(0x18).Bytes(0x08, bytes))->uuid;
}

const std::vector<std::uint8_t> kMixedUuid = {
    0x00, 0x11, 0x22, 0x33, 0x44, 0x55, 0x66, 0x77, 0x88, 0x99, 0xAA, 0xBB, 0xCC, 0xDD, 0xEE, 0xFF};

TEST(Type1, UuidFieldsAreByteReversedUpToTheThird) {
    EXPECT_EQ(UuidOf(kMixedUuid), "33221100-5544-7766-8899-AABBCCDDEEFF");
}

TEST(Type1, UuidIsByteReversedInEveryVersion) {
    for (const Manager::VersionRow& row : Manager::versionMap) {
        EXPECT_EQ(UuidOf(kMixedUuid, row.index), "33221100-5544-7766-8899-AABBCCDDEEFF");
    }
}

TEST(Type1, UuidWithoutAnyByteOf00OrFFIsEmpty) {
    EXPECT_EQ(UuidOf({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}), "");
}

TEST(Type1, UuidOfAllFFIsAText) {
    EXPECT_EQ(UuidOf(std::vector<std::uint8_t>(16, 0xFF)), "FFFFFFFF-FFFF-FFFF-FFFF-FFFFFFFFFFFF");
}

TEST(Type1, UuidOfAll00IsAText) {
    EXPECT_EQ(UuidOf(std::vector<std::uint8_t>(16, 0x00)), "00000000-0000-0000-0000-000000000000");
}

TEST(Type1, OneUuidByteOf00OrFFIsEnoughForAText) {
    for (const std::uint8_t byte : {std::uint8_t{0x00}, std::uint8_t{0xFF}}) {
        for (std::size_t position = 0; position < 16; ++position) {
            std::vector<std::uint8_t> bytes(16, 0x11);
            bytes[position] = byte;
            EXPECT_NE(UuidOf(bytes), "") << "byte " << int{byte} << " at " << position;
        }
    }
}

TEST(Type1, BytesAroundTheUuidDoNotCount) {
    const auto record = Decode<Type_1>(v2_1_0,
                                       SystemInformation(0x19)
                                           .Byte(0x07, 0x00)
                                           .Bytes(0x08, std::vector<std::uint8_t>(16, 0x11))
                                           .Byte(0x18, 0x00));
    EXPECT_EQ(record->uuid, "");
}

TEST(Type1, UuidPastTheStructureReadsAsZeros) {
    EXPECT_EQ(Decode<Type_1>(v2_0_0, SystemInformation(8))->uuid, "00000000-0000-0000-0000-000000000000");
}

TEST(Type1, AUuidCutShortIsCompletedWithZeros) {
    const StructureBuilder structure =
        SystemInformation(0x12).Bytes(0x08, {0x1A, 0x1B, 0x1C, 0x1D, 0x1E, 0x2A, 0x2B, 0x2C, 0x2D, 0x2E});
    EXPECT_EQ(Decode<Type_1>(v2_0_0, structure)->uuid, "1D1C1B1A-2A1E-2C2B-2D2E-000000000000");
}

TEST(Type1, UuidIsReadWhateverTheLengthByteSays) {
    const auto record = Decode<Type_1>(v2_0_0, SystemInformation(8).Bytes(0x08, kMixedUuid));
    EXPECT_EQ(record->uuid, "33221100-5544-7766-8899-AABBCCDDEEFF");
}

// Version groups

TEST(Type1, WakeUpTypeIsTheByteAt18From210On) {
    const StructureBuilder structure = SystemInformation(0x18).Byte(0x18, 6);
    const auto record = Decode<Type_1>(v2_1_0, structure);
    EXPECT_EQ(record->wakeUpTypeValue, 6);
    EXPECT_EQ(record->wakeUpType, "Power Switch");

    const auto old = Decode<Type_1>(v2_0_0, structure);
    EXPECT_EQ(old->error, "");
    EXPECT_FALSE(old->wakeUpTypeValue);
    EXPECT_EQ(old->wakeUpType, "");
}

TEST(Type1, WakeUpTypeTwoHasAValueButNoText) {
    const auto record = Decode<Type_1>(v2_1_0, SystemInformation(0x19).Byte(0x18, 2));
    EXPECT_EQ(record->wakeUpTypeValue, 2);
    EXPECT_EQ(record->wakeUpType, "");
}

TEST(Type1, SkuNumberAndFamilyAreTheStringsAt19And1AFrom240On) {
    const StructureBuilder structure = SystemInformation(0x19).String(0x1A, "Family").String(0x19, "Sku");
    const auto record = Decode<Type_1>(v2_4_0, structure);
    EXPECT_EQ(record->skuNumber, "Sku");
    EXPECT_EQ(record->family, "Family");

    const auto old = Decode<Type_1>(v2_3_0, structure);
    EXPECT_EQ(old->error, "");
    EXPECT_EQ(old->skuNumber, "");
    EXPECT_EQ(old->family, "");
}

TEST(Type1, AWholeStructureOf27BytesHasSkuNumberAndFamily) {
    const auto record =
        Decode<Type_1>(v2_4_0, SystemInformation(0x1B).String(0x19, "Sku").String(0x1A, "Family"));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->skuNumber, "Sku");
    EXPECT_EQ(record->family, "Family");
}

TEST(Type1, FieldsPastAShortStructureReadAsZero) {
    const auto record = Decode<Type_1>(v3_8_0, SystemInformation(8).String("only"));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->wakeUpTypeValue, 0);
    EXPECT_EQ(record->wakeUpType, "");
    EXPECT_EQ(record->skuNumber, "");
    EXPECT_EQ(record->family, "");
}

// Tables

TEST(Type1, EveryWakeUpTypeHasItsName) {
    const std::pair<int, const char*> rows[] = {
        {3, "APM Timer"},
        {4, "Modern Ring"},
        {5, "LAN Remote"},
        {6, "Power Switch"},
        {7, "PCI PME#"},
        {8, "AC Power Restored"},
    };
    ExpectNames(rows, [](std::uint8_t code) {
        const auto record = Decode<Type_1>(v2_1_0, SystemInformation(0x19).Byte(0x18, code));
        EXPECT_EQ(record->wakeUpTypeValue, code);
        return record->wakeUpType;
    });
}

}  // namespace
}  // namespace SMBIOS::Tests
