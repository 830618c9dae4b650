#include "structures/type_33.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "tests/support/decode.h"
#include "tests/support/memory_error_names.h"

namespace SMBIOS::Tests {
namespace {

using Structures::Type_33;

constexpr std::uint16_t kHandle = 0x0033;

StructureBuilder MemoryError(std::uint8_t length = 0x1F) {
    return {33, length, kHandle};
}

// What is accepted

TEST(Type33, RefusesEveryStructureBefore230) {
    const AcceptanceCase cases[] = {
        {0x1F, v2_0_0, kMalformed}, {0x1F, v2_1_0, kMalformed}, {0x1F, v2_2_0, kMalformed}};
    ExpectAcceptance<Type_33>(33, cases);
}

TEST(Type33, AcceptsEveryVersionFrom230On) {
    const AcceptanceCase cases[] = {{0x1F, v2_3_0, ""}, {0x1F, v2_4_0, ""}, {0x1F, v3_8_0, ""}};
    ExpectAcceptance<Type_33>(33, cases);
}

TEST(Type33, KeepsTheHandle) {
    EXPECT_EQ(Decode<Type_33>(v2_3_0, MemoryError())->handle, kHandle);
}

TEST(Type33, AcceptsEveryLengthFromTheHeaderOn) {
    const AcceptanceCase cases[] = {
        {0x03, v2_3_0, kMalformed},
        {0x04, v2_3_0, ""},
        {0x05, v2_3_0, ""},
        {0x1E, v2_3_0, ""},
        {0x20, v2_3_0, ""},
        {0xFF, v2_3_0, ""},
    };
    ExpectAcceptance<Type_33>(33, cases);
}

TEST(Type33, ReportsAnEmptyFormattedAreaAsAnInvalidPointer) {
    EXPECT_EQ(DecodeBytes<Type_33>(v2_8_0, {})->error, kInvalidPointer);
}

TEST(Type33, ReportsThreeBytesAsMalformed) {
    EXPECT_EQ(DecodeBytes<Type_33>(v2_8_0, {33, 0x1F, 0x33})->error, kMalformed);
}

TEST(Type33, ARefusedStructureKeepsOnlyErrorAndRawBytes) {
    const auto record = Decode<Type_33>(v2_2_0, MemoryError().Byte(0x04, 3).String("text"));
    EXPECT_EQ(record->handle, 0);
    EXPECT_FALSE(record->errorType);
    EXPECT_EQ(record->errorTypeName + record->vendorSyndrome, "");
    EXPECT_EQ(record->rawBytes.size(), 31U);
    EXPECT_FALSE(record->strings);
}

TEST(Type33, AnAcceptedStructureKeepsItsStrings) {
    const auto record = Decode<Type_33>(v2_8_0, MemoryError().String("text"));
    ASSERT_TRUE(record->strings);
    EXPECT_EQ(*record->strings, std::vector<std::string>{"text"});
}

TEST(Type33, AnAcceptedStructureWithoutStringsHasAnEmptyStringSet) {
    const auto record = Decode<Type_33>(v2_8_0, MemoryError());
    ASSERT_TRUE(record->strings);
    EXPECT_TRUE(record->strings->empty());
}

// Fields

TEST(Type33, TypeGranularityAndOperationAreTheBytesAt04To06) {
    const auto record =
        Decode<Type_33>(v2_3_0, MemoryError().Byte(0x04, 0x0E).Byte(0x05, 0x04).Byte(0x06, 0x05));
    EXPECT_EQ(record->errorType, 0x0E);
    EXPECT_EQ(record->errorGranularity, 0x04);
    EXPECT_EQ(record->errorOperation, 0x05);
}

TEST(Type33, CodesOfZeroArePresentWithoutAName) {
    const auto record = Decode<Type_33>(v2_3_0, MemoryError());
    EXPECT_EQ(record->errorType, 0);
    EXPECT_EQ(record->errorGranularity, 0);
    EXPECT_EQ(record->errorOperation, 0);
    EXPECT_EQ(record->errorTypeName + record->errorGranularityName + record->errorOperationName, "");
}

TEST(Type33, SyndromeAndResolutionAreTextsOfTheDwordsAt07And1B) {
    const auto record =
        Decode<Type_33>(v2_3_0, MemoryError().Dword(0x07, 0x12345678).Dword(0x1B, 0x000000AB));
    EXPECT_EQ(record->vendorSyndrome, "0x12345678");
    EXPECT_EQ(record->errorResolution, "0x00AB");
}

TEST(Type33, AddressesAreTextsOfTheQwordsAt0BAnd13) {
    const auto record =
        Decode<Type_33>(v2_3_0, MemoryError().Qword(0x0B, 0x0123456789ABCDEF).Qword(0x13, 0x12));
    EXPECT_EQ(record->memoryArrayErrorAddress, "0x123456789ABCDEF");
    EXPECT_EQ(record->deviceErrorAddress, "0x00000012");
}

TEST(Type33, ASyndromeOfZeroIsAValue) {
    EXPECT_EQ(Decode<Type_33>(v2_3_0, MemoryError().Dword(0x07, 0))->vendorSyndrome, "0x0000");
}

TEST(Type33, ASyndromeOf80000000IsAValue) {
    EXPECT_EQ(Decode<Type_33>(v2_3_0, MemoryError().Dword(0x07, 0x80000000))->vendorSyndrome, "0x80000000");
}

TEST(Type33, AResolutionOf80000000IsAbsent) {
    EXPECT_EQ(Decode<Type_33>(v2_3_0, MemoryError().Dword(0x1B, 0x80000000))->errorResolution, "");
}

TEST(Type33, AResolutionOfFFFFFFFFIsAValue) {
    EXPECT_EQ(Decode<Type_33>(v2_3_0, MemoryError().Dword(0x1B, 0xFFFFFFFF))->errorResolution, "0xFFFFFFFF");
}

TEST(Type33, AddressesOf8000000000000000AreAbsent) {
    const auto record = Decode<Type_33>(
        v2_3_0, MemoryError().Qword(0x0B, 0x8000000000000000).Qword(0x13, 0x8000000000000000));
    EXPECT_EQ(record->memoryArrayErrorAddress, "");
    EXPECT_EQ(record->deviceErrorAddress, "");
}

TEST(Type33, AddressesOf80000000AndOfAllOnesAreValues) {
    const auto record =
        Decode<Type_33>(v2_3_0, MemoryError().Qword(0x0B, 0x80000000).Qword(0x13, 0xFFFFFFFFFFFFFFFF));
    EXPECT_EQ(record->memoryArrayErrorAddress, "0x80000000");
    EXPECT_EQ(record->deviceErrorAddress, "0xFFFFFFFFFFFFFFFF");
}

TEST(Type33, FieldsPastAShortStructureReadAsZero) {
    const auto record = Decode<Type_33>(v2_3_0, MemoryError(0x04));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->handle, kHandle);
    EXPECT_EQ(record->errorType, 0);
    EXPECT_EQ(record->errorGranularity, 0);
    EXPECT_EQ(record->errorOperation, 0);
    EXPECT_EQ(record->vendorSyndrome, "0x0000");
    EXPECT_EQ(record->memoryArrayErrorAddress, "0x00000000");
    EXPECT_EQ(record->deviceErrorAddress, "0x00000000");
    EXPECT_EQ(record->errorResolution, "0x0000");
}

// Tables

TEST(Type33, EveryErrorTypeHasItsName) {
    ExpectNames(kErrorTypes, [](std::uint8_t code) {
        const auto record = Decode<Type_33>(v2_3_0, MemoryError().Byte(0x04, code));
        EXPECT_EQ(record->errorType, code);
        return record->errorTypeName;
    });
}

TEST(Type33, EveryErrorGranularityHasItsName) {
    ExpectNames(kErrorGranularities, [](std::uint8_t code) {
        const auto record = Decode<Type_33>(v2_3_0, MemoryError().Byte(0x05, code));
        EXPECT_EQ(record->errorGranularity, code);
        return record->errorGranularityName;
    });
}

TEST(Type33, EveryErrorOperationHasItsName) {
    ExpectNames(kErrorOperations, [](std::uint8_t code) {
        const auto record = Decode<Type_33>(v2_3_0, MemoryError().Byte(0x06, code));
        EXPECT_EQ(record->errorOperation, code);
        return record->errorOperationName;
    });
}

}  // namespace
}  // namespace SMBIOS::Tests
