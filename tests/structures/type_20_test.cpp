#include "structures/type_20.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "tests/support/decode.h"

namespace SMBIOS::Tests {
namespace {

using Structures::Type_20;

constexpr std::uint16_t kHandle = 0x0213;

StructureBuilder MappedAddress(std::uint8_t length) {
    return {20, length, kHandle};
}

// What is accepted

TEST(Type20, RefusesOnlyALengthOf35Before270) {
    const char* const kNewerStructure = "v2.7.0 structure or later in a v2.6.1 BIOS or older";
    const AcceptanceCase cases[] = {
        {0x22, v2_1_0, ""},
        {0x23, v2_1_0, kNewerStructure},
        {0x24, v2_1_0, ""},
        {0x22, v2_6_1, ""},
        {0x23, v2_6_1, kNewerStructure},
        {0x24, v2_6_1, ""},
        {0x22, v2_7_0, ""},
        {0x23, v2_7_0, ""},
        {0x24, v2_7_0, ""},
        {0x22, v2_7_1, ""},
        {0x23, v2_7_1, ""},
        {0x24, v2_7_1, ""},
        {0x23, v2_0_0, kMalformed},
    };
    ExpectAcceptance<Type_20>(20, cases);
}

TEST(Type20, ARefusedStructureKeepsOnlyErrorAndRawBytes) {
    const auto record = Decode<Type_20>(v2_6_1, MappedAddress(0x23).Dword(0x04, 0x400).String("text"));
    EXPECT_EQ(record->handle, 0);
    EXPECT_EQ(record->startingAddress + record->endingAddress, "");
    EXPECT_FALSE(record->memoryDeviceHandle);
    EXPECT_EQ(record->rawBytes.size(), 35U);
    EXPECT_FALSE(record->strings);
}

// Other fields

TEST(Type20, HandlesAreTheWordsAt0CAnd0E) {
    const auto record = Decode<Type_20>(v2_1_0, MappedAddress(0x13).Word(0x0C, 0x1002).Word(0x0E, 0x2103));
    EXPECT_EQ(record->memoryDeviceHandle, 0x1002);
    EXPECT_EQ(record->memoryArrayMappedAddressHandle, 0x2103);
}

TEST(Type20, HandlesOfFFFFAreValues) {
    const auto record = Decode<Type_20>(v2_1_0, MappedAddress(0x13).Word(0x0C, 0xFFFF).Word(0x0E, 0xFFFF));
    EXPECT_EQ(record->memoryDeviceHandle, 0xFFFF);
    EXPECT_EQ(record->memoryArrayMappedAddressHandle, 0xFFFF);
}

TEST(Type20, PartitionRowPositionIsTheByteAt10) {
    for (const std::uint8_t position : std::to_array<std::uint8_t>({0x01, 0x02, 0x7B, 0xFE})) {
        EXPECT_EQ(Decode<Type_20>(v2_1_0, MappedAddress(0x13).Byte(0x10, position))->partitionRowPosition,
                  position);
    }
}

TEST(Type20, PartitionRowPositionsZeroAndFFAreAbsent) {
    EXPECT_FALSE(Decode<Type_20>(v2_1_0, MappedAddress(0x13).Byte(0x10, 0x00))->partitionRowPosition);
    EXPECT_FALSE(Decode<Type_20>(v2_1_0, MappedAddress(0x13).Byte(0x10, 0xFF))->partitionRowPosition);
}

TEST(Type20, InterleavePositionIsTheByteAt11) {
    for (const std::uint8_t position : std::to_array<std::uint8_t>({0x00, 0x01, 0x7B, 0xFE})) {
        EXPECT_EQ(Decode<Type_20>(v2_1_0, MappedAddress(0x13).Byte(0x11, position))->interleavePosition,
                  position);
    }
}

TEST(Type20, InterleavePositionFFIsAbsent) {
    EXPECT_FALSE(Decode<Type_20>(v2_1_0, MappedAddress(0x13).Byte(0x11, 0xFF))->interleavePosition);
}

TEST(Type20, InterleavedDataDepthIsTheByteAt12) {
    for (const std::uint8_t depth : std::to_array<std::uint8_t>({0x00, 0x01, 0x7B, 0xFE})) {
        EXPECT_EQ(Decode<Type_20>(v2_1_0, MappedAddress(0x13).Byte(0x12, depth))->interleavedDataDepth,
                  depth);
    }
}

TEST(Type20, InterleavedDataDepthFFIsAbsent) {
    EXPECT_FALSE(Decode<Type_20>(v2_1_0, MappedAddress(0x13).Byte(0x12, 0xFF))->interleavedDataDepth);
}

TEST(Type20, FieldsPastAShortStructureReadAsZero) {
    const auto record = Decode<Type_20>(v3_8_0, MappedAddress(0x04));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->handle, kHandle);
    EXPECT_EQ(record->memoryDeviceHandle, 0);
    EXPECT_EQ(record->memoryArrayMappedAddressHandle, 0);
    EXPECT_FALSE(record->partitionRowPosition);
    EXPECT_EQ(record->interleavePosition, 0);
    EXPECT_EQ(record->interleavedDataDepth, 0);
    EXPECT_EQ(record->startingAddress, "0x0000");
    EXPECT_EQ(record->endingAddress, "0x0000");
}

}  // namespace
}  // namespace SMBIOS::Tests
