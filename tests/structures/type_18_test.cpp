#include "structures/type_18.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "tests/support/decode.h"
#include "tests/support/memory_error_names.h"

namespace SMBIOS::Tests {
namespace {

using Structures::Type_18;

constexpr std::uint16_t kHandle = 0x0021;

StructureBuilder MemoryError(std::uint8_t length = 0x17) {
    return {18, length, kHandle};
}

// What is accepted

TEST(Type18, RefusesEveryStructureOfA200Table) {
    const auto record = Decode<Type_18>(v2_0_0, MemoryError());
    EXPECT_EQ(record->error, kMalformed);
    EXPECT_EQ(record->handle, 0);
}

TEST(Type18, AcceptsEveryVersionFrom210On) {
    const auto record = Decode<Type_18>(v2_1_0, MemoryError());
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->handle, kHandle);
    EXPECT_EQ(Decode<Type_18>(v3_8_0, MemoryError())->error, "");
}

TEST(Type18, AcceptsOnlyALengthOf23) {
    const AcceptanceCase cases[] = {
        {0x16, v2_1_0, kMalformed},
        {0x17, v2_1_0, ""},
        {0x18, v2_1_0, kMalformed},
        {0x16, v3_8_0, kMalformed},
        {0x17, v3_8_0, ""},
        {0x18, v3_8_0, kMalformed},
    };
    ExpectAcceptance<Type_18>(18, cases);
}

TEST(Type18, ReportsAnEmptyFormattedAreaAsAnInvalidPointer) {
    EXPECT_EQ(DecodeBytes<Type_18>(v2_8_0, {})->error, kInvalidPointer);
}

TEST(Type18, ReportsThreeBytesAsMalformed) {
    EXPECT_EQ(DecodeBytes<Type_18>(v2_8_0, {18, 0x17, 0x21})->error, kMalformed);
}

TEST(Type18, ARefusedStructureKeepsOnlyErrorAndRawBytes) {
    const auto record =
        Decode<Type_18>(v2_8_0, MemoryError(0x18).Byte(0x04, 3).Dword(0x07, 0x1234).String("text"));
    EXPECT_EQ(record->handle, 0);
    EXPECT_FALSE(record->errorType);
    EXPECT_EQ(record->errorTypeName + record->vendorSyndrome, "");
    EXPECT_EQ(record->rawBytes.size(), 24U);
    EXPECT_FALSE(record->strings);
}

TEST(Type18, AnAcceptedStructureKeepsItsStrings) {
    const auto record = Decode<Type_18>(v2_8_0, MemoryError().String("text"));
    ASSERT_TRUE(record->strings);
    EXPECT_EQ(*record->strings, std::vector<std::string>{"text"});
}

TEST(Type18, AnAcceptedStructureWithoutStringsHasAnEmptyStringSet) {
    const auto record = Decode<Type_18>(v2_8_0, MemoryError());
    ASSERT_TRUE(record->strings);
    EXPECT_TRUE(record->strings->empty());
}

// Fields

TEST(Type18, TypeGranularityAndOperationAreTheBytesAt04To06) {
    const auto record =
        Decode<Type_18>(v2_1_0, MemoryError().Byte(0x04, 0x0E).Byte(0x05, 0x04).Byte(0x06, 0x05));
    EXPECT_EQ(record->errorType, 0x0E);
    EXPECT_EQ(record->errorGranularity, 0x04);
    EXPECT_EQ(record->errorOperation, 0x05);
}

TEST(Type18, CodesOfZeroArePresentWithoutAName) {
    const auto record = Decode<Type_18>(v2_1_0, MemoryError());
    EXPECT_EQ(record->errorType, 0);
    EXPECT_EQ(record->errorGranularity, 0);
    EXPECT_EQ(record->errorOperation, 0);
    EXPECT_EQ(record->errorTypeName + record->errorGranularityName + record->errorOperationName, "");
}

TEST(Type18, SyndromeAddressesAndResolutionAreTextsOfTheDwordsFrom07On) {
    const auto record = Decode<Type_18>(v2_1_0,
                                        MemoryError()
                                            .Dword(0x07, 0x12345678)
                                            .Dword(0x0B, 0x9ABCDEF0)
                                            .Dword(0x0F, 0x000000AB)
                                            .Dword(0x13, 0x00010000));
    EXPECT_EQ(record->vendorSyndrome, "0x12345678");
    EXPECT_EQ(record->memoryArrayErrorAddress, "0x9ABCDEF0");
    EXPECT_EQ(record->deviceErrorAddress, "0x00AB");
    EXPECT_EQ(record->errorResolution, "0x10000");
}

TEST(Type18, ASyndromeOfZeroIsAbsent) {
    EXPECT_EQ(Decode<Type_18>(v2_1_0, MemoryError().Dword(0x07, 0))->vendorSyndrome, "");
}

TEST(Type18, ASyndromeOfFFFFFFFFIsAValue) {
    EXPECT_EQ(Decode<Type_18>(v2_1_0, MemoryError().Dword(0x07, 0xFFFFFFFF))->vendorSyndrome, "0xFFFFFFFF");
}

TEST(Type18, AddressesAndResolutionOfFFFFFFFFAreAbsent) {
    const auto record = Decode<Type_18>(
        v2_1_0, MemoryError().Dword(0x0B, 0xFFFFFFFF).Dword(0x0F, 0xFFFFFFFF).Dword(0x13, 0xFFFFFFFF));
    EXPECT_EQ(record->memoryArrayErrorAddress, "");
    EXPECT_EQ(record->deviceErrorAddress, "");
    EXPECT_EQ(record->errorResolution, "");
}

TEST(Type18, AddressesAndResolutionOf80000000AreValues) {
    const auto record = Decode<Type_18>(
        v2_1_0, MemoryError().Dword(0x0B, 0x80000000).Dword(0x0F, 0x80000000).Dword(0x13, 0x80000000));
    EXPECT_EQ(record->memoryArrayErrorAddress, "0x80000000");
    EXPECT_EQ(record->deviceErrorAddress, "0x80000000");
    EXPECT_EQ(record->errorResolution, "0x80000000");
}

TEST(Type18, AddressesAndResolutionOfZeroAreValues) {
    const auto record = Decode<Type_18>(v2_1_0, MemoryError());
    EXPECT_EQ(record->memoryArrayErrorAddress, "0x0000");
    EXPECT_EQ(record->deviceErrorAddress, "0x0000");
    EXPECT_EQ(record->errorResolution, "0x0000");
}

TEST(Type18, FieldsPastAShortStructureReadAsZero) {
    const auto record = DecodeBytes<Type_18>(v2_1_0, {18, 0x17, 0x21, 0x00});
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->handle, kHandle);
    EXPECT_EQ(record->errorType, 0);
    EXPECT_EQ(record->vendorSyndrome, "");
    EXPECT_EQ(record->errorResolution, "0x0000");
}

// Tables

TEST(Type18, EveryErrorTypeHasItsName) {
    ExpectNames(kErrorTypes, [](std::uint8_t code) {
        const auto record = Decode<Type_18>(v2_1_0, MemoryError().Byte(0x04, code));
        EXPECT_EQ(record->errorType, code);
        return record->errorTypeName;
    });
}

TEST(Type18, EveryErrorGranularityHasItsName) {
    ExpectNames(kErrorGranularities, [](std::uint8_t code) {
        const auto record = Decode<Type_18>(v2_1_0, MemoryError().Byte(0x05, code));
        EXPECT_EQ(record->errorGranularity, code);
        return record->errorGranularityName;
    });
}

TEST(Type18, EveryErrorOperationHasItsName) {
    ExpectNames(kErrorOperations, [](std::uint8_t code) {
        const auto record = Decode<Type_18>(v2_1_0, MemoryError().Byte(0x06, code));
        EXPECT_EQ(record->errorOperation, code);
        return record->errorOperationName;
    });
}

}  // namespace
}  // namespace SMBIOS::Tests
