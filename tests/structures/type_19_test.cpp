#include "structures/type_19.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "tests/support/decode.h"

namespace SMBIOS::Tests {
namespace {

using Structures::Type_19;

constexpr std::uint16_t kHandle = 0x0213;

StructureBuilder MappedAddress(std::uint8_t length) {
    return {19, length, kHandle};
}

// What is accepted

TEST(Type19, RefusesOnlyALengthOf31Before270) {
    const char* const kNewerStructure = "v2.7.0 structure or later in a v2.6.1 BIOS or older";
    const AcceptanceCase cases[] = {
        {0x1E, v2_1_0, ""},
        {0x1F, v2_1_0, kNewerStructure},
        {0x20, v2_1_0, ""},
        {0x1E, v2_6_1, ""},
        {0x1F, v2_6_1, kNewerStructure},
        {0x20, v2_6_1, ""},
        {0x1E, v2_7_0, ""},
        {0x1F, v2_7_0, ""},
        {0x20, v2_7_0, ""},
        {0x1E, v2_7_1, ""},
        {0x1F, v2_7_1, ""},
        {0x20, v2_7_1, ""},
        {0x1F, v2_0_0, kMalformed},
    };
    ExpectAcceptance<Type_19>(19, cases);
}

TEST(Type19, ARefusedStructureKeepsOnlyErrorAndRawBytes) {
    const auto record = Decode<Type_19>(v2_6_1, MappedAddress(0x1F).Dword(0x04, 0x400).String("text"));
    EXPECT_EQ(record->handle, 0);
    EXPECT_EQ(record->startingAddress + record->endingAddress, "");
    EXPECT_FALSE(record->memoryArrayHandle);
    EXPECT_EQ(record->rawBytes.size(), 31U);
    EXPECT_FALSE(record->strings);
}

// Other fields

TEST(Type19, MemoryArrayHandleIsTheWordAt0C) {
    EXPECT_EQ(Decode<Type_19>(v2_1_0, MappedAddress(0x0F).Word(0x0C, 0x1002))->memoryArrayHandle, 0x1002);
}

TEST(Type19, MemoryArrayHandleFFFFIsAValue) {
    EXPECT_EQ(Decode<Type_19>(v2_1_0, MappedAddress(0x0F).Word(0x0C, 0xFFFF))->memoryArrayHandle, 0xFFFF);
}

TEST(Type19, PartitionWidthIsTheByteAt0E) {
    EXPECT_EQ(Decode<Type_19>(v2_1_0, MappedAddress(0x0F).Byte(0x0E, 0x7B))->partitionWidth, 0x7B);
}

TEST(Type19, PartitionWidthIsStoredAsRead) {
    EXPECT_EQ(Decode<Type_19>(v2_1_0, MappedAddress(0x0F).Byte(0x0E, 0x00))->partitionWidth, 0x00);
    EXPECT_EQ(Decode<Type_19>(v2_1_0, MappedAddress(0x0F).Byte(0x0E, 0xFF))->partitionWidth, 0xFF);
}

TEST(Type19, FieldsPastAShortStructureReadAsZero) {
    const auto record = Decode<Type_19>(v3_8_0, MappedAddress(0x04));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->handle, kHandle);
    EXPECT_EQ(record->partitionWidth, 0);
    EXPECT_EQ(record->memoryArrayHandle, 0);
    EXPECT_EQ(record->startingAddress, "0x0000");
    EXPECT_EQ(record->endingAddress, "0x0000");
}

}  // namespace
}  // namespace SMBIOS::Tests
