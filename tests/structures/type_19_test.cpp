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

TEST(Type19, RefusesEveryStructureOfA200Table) {
    const auto record = Decode<Type_19>(v2_0_0, MappedAddress(0x0F));
    EXPECT_EQ(record->error, kMalformed);
    EXPECT_EQ(record->handle, 0);
}

TEST(Type19, AcceptsEveryVersionFrom210On) {
    const auto record = Decode<Type_19>(v2_1_0, MappedAddress(0x0F));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->handle, kHandle);
    EXPECT_EQ(Decode<Type_19>(v3_8_0, MappedAddress(0x0F))->error, "");
}

TEST(Type19, AcceptsEveryLengthFromTheHeaderOn) {
    const AcceptanceCase cases[] = {
        {0x03, v2_1_0, kMalformed},
        {0x04, v2_1_0, ""},
        {0x05, v2_1_0, ""},
        {0xFF, v2_1_0, ""},
        {0xFF, v3_8_0, ""},
    };
    ExpectAcceptance<Type_19>(19, cases);
}

TEST(Type19, ReportsAnEmptyFormattedAreaAsAnInvalidPointer) {
    EXPECT_EQ(DecodeBytes<Type_19>(v2_8_0, {})->error, kInvalidPointer);
}

TEST(Type19, ReportsThreeBytesAsMalformed) {
    EXPECT_EQ(DecodeBytes<Type_19>(v2_8_0, {19, 0x1F, 0x13})->error, kMalformed);
}

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

TEST(Type19, AnAcceptedStructureKeepsItsStrings) {
    const auto record = Decode<Type_19>(v2_8_0, MappedAddress(0x1F).String("text"));
    ASSERT_TRUE(record->strings);
    EXPECT_EQ(*record->strings, std::vector<std::string>{"text"});
}

TEST(Type19, AnAcceptedStructureWithoutStringsHasAnEmptyStringSet) {
    const auto record = Decode<Type_19>(v2_8_0, MappedAddress(0x1F));
    ASSERT_TRUE(record->strings);
    EXPECT_TRUE(record->strings->empty());
}

// Addresses

/// A structure that has both extended addresses, whatever its length byte says.
StructureBuilder ExtendedAddresses(std::uint32_t starting, std::uint32_t ending) {
    return MappedAddress(0x0F)
        .Dword(0x04, starting)
        .Dword(0x08, ending)
        .Qword(0x0F, 0x0000000100000000)
        .Qword(0x17, 0x0123456789ABCDEF);
}

TEST(Type19, AddressesAreTextsOfTheDwordsAt04And08) {
    const auto record =
        Decode<Type_19>(v2_1_0, MappedAddress(0x0F).Dword(0x04, 0x00000400).Dword(0x08, 0x12345678));
    EXPECT_EQ(record->startingAddress, "0x0400");
    EXPECT_EQ(record->endingAddress, "0x12345678");
}

TEST(Type19, AddressesOfZeroAreValues) {
    const auto record = Decode<Type_19>(v2_1_0, MappedAddress(0x0F));
    EXPECT_EQ(record->startingAddress, "0x0000");
    EXPECT_EQ(record->endingAddress, "0x0000");
}

TEST(Type19, AddressesOtherThanFFFFFFFFIgnoreTheExtendedOnes) {
    const auto record = Decode<Type_19>(v3_0_0, ExtendedAddresses(0x00000400, 0xFFFFFFFE));
    EXPECT_EQ(record->startingAddress, "0x0400");
    EXPECT_EQ(record->endingAddress, "0xFFFFFFFE");
}

TEST(Type19, AddressesOfFFFFFFFFTakeTheExtendedOnesFrom270On) {
    for (const auto version : {v2_7_0, v2_7_1, v3_0_0}) {
        const auto record = Decode<Type_19>(version, ExtendedAddresses(0xFFFFFFFF, 0xFFFFFFFF));
        EXPECT_EQ(record->startingAddress, "0x100000000");
        EXPECT_EQ(record->endingAddress, "0x123456789ABCDEF");
    }
}

TEST(Type19, AddressesOfFFFFFFFFAreEmptyBefore270) {
    for (const auto version : {v2_6_0, v2_6_1}) {
        const auto record = Decode<Type_19>(version, ExtendedAddresses(0xFFFFFFFF, 0xFFFFFFFF));
        EXPECT_EQ(record->error, "");
        EXPECT_EQ(record->startingAddress, "");
        EXPECT_EQ(record->endingAddress, "");
    }
}

TEST(Type19, EachAddressIsExtendedOnItsOwn) {
    const auto record = Decode<Type_19>(v3_0_0, ExtendedAddresses(0x00000400, 0xFFFFFFFF));
    EXPECT_EQ(record->startingAddress, "0x0400");
    EXPECT_EQ(record->endingAddress, "0x123456789ABCDEF");
}

TEST(Type19, AShortExtendedAddressHasAtLeastEightDigits) {
    const auto record =
        Decode<Type_19>(v2_7_0, MappedAddress(0x1F).Dword(0x04, 0xFFFFFFFF).Qword(0x0F, 0x12));
    EXPECT_EQ(record->startingAddress, "0x00000012");
}

TEST(Type19, ExtendedAddressesOfAllOnesAreValues) {
    const auto record =
        Decode<Type_19>(v2_7_0, MappedAddress(0x1F).Dword(0x08, 0xFFFFFFFF).Qword(0x17, 0xFFFFFFFFFFFFFFFF));
    EXPECT_EQ(record->endingAddress, "0xFFFFFFFFFFFFFFFF");
}

TEST(Type19, ExtendedAddressesPastAShortStructureReadAsZero) {
    const auto record =
        Decode<Type_19>(v2_7_0, MappedAddress(0x0F).Dword(0x04, 0xFFFFFFFF).Dword(0x08, 0xFFFFFFFF));
    EXPECT_EQ(record->startingAddress, "0x00000000");
    EXPECT_EQ(record->endingAddress, "0x00000000");
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
