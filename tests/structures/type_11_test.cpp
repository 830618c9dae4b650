#include "structures/type_11.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "tests/support/decode.h"

namespace SMBIOS::Tests {
namespace {

using Structures::Type_11;

constexpr std::uint16_t kHandle = 0x00B1;

StructureBuilder OemStrings(std::uint8_t length) {
    return {11, length, kHandle};
}

// What is accepted

TEST(Type11, AcceptsEveryVersion) {
    const AcceptanceCase cases[] = {{0x05, v2_0_0, ""}, {0x05, v2_1_0, ""}, {0x05, v3_8_0, ""}};
    ExpectAcceptance<Type_11>(11, cases);
}

TEST(Type11, AcceptsEveryLengthFromTheHeaderOn) {
    const AcceptanceCase cases[] = {
        {0x03, v2_8_0, kMalformed}, {0x04, v2_8_0, ""}, {0x05, v2_8_0, ""}, {0xFF, v2_8_0, ""}};
    ExpectAcceptance<Type_11>(11, cases);
}

TEST(Type11, DoesNotLookAtTheLengthByte) {
    const auto record = DecodeBytes<Type_11>(v2_8_0, {11, 0x00, 0xB1, 0x00});
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->handle, kHandle);
}

TEST(Type11, ReportsAnEmptyFormattedAreaAsAnInvalidPointer) {
    EXPECT_EQ(DecodeBytes<Type_11>(v2_8_0, {})->error, kInvalidPointer);
}

TEST(Type11, ReportsThreeBytesAsMalformed) {
    const auto record = DecodeBytes<Type_11>(v2_8_0, {11, 0x05, 0xB1});
    EXPECT_EQ(record->error, kMalformed);
    EXPECT_EQ(record->handle, 0);
}

TEST(Type11, ARefusedStructureKeepsItsRawBytesButNotItsStrings) {
    const auto record = DecodeBytes<Type_11>(v2_8_0, {11, 0x05, 0xB1}, {"first"});
    EXPECT_EQ(record->rawBytes, (std::vector<std::uint8_t>{11, 0x05, 0xB1}));
    EXPECT_FALSE(record->strings);
}

// What is kept

TEST(Type11, KeepsHandleAndRawBytes) {
    const auto record = Decode<Type_11>(v2_8_0, OemStrings(0x05).Byte(0x04, 2));
    EXPECT_EQ(record->handle, kHandle);
    EXPECT_EQ(record->rawBytes, (std::vector<std::uint8_t>{11, 0x05, 0xB1, 0x00, 2}));
}

TEST(Type11, TheStringsAreTheStringSetAsItStands) {
    const auto record =
        Decode<Type_11>(v2_8_0, OemStrings(0x05).Byte(0x04, 2).String("first").String("  second  "));
    ASSERT_TRUE(record->strings);
    EXPECT_EQ(*record->strings, (std::vector<std::string>{"first", "  second  "}));
}

TEST(Type11, TheCountDoesNotLimitTheStrings) {
    const auto record = Decode<Type_11>(v2_8_0, OemStrings(0x05).Byte(0x04, 1).String("a").String("b"));
    EXPECT_EQ(*record->strings, (std::vector<std::string>{"a", "b"}));
}

TEST(Type11, TheCountAddsNoStrings) {
    const auto record = Decode<Type_11>(v2_8_0, OemStrings(0x05).Byte(0x04, 9).String("a"));
    EXPECT_EQ(*record->strings, std::vector<std::string>{"a"});
}

TEST(Type11, AStructureWithoutStringsHasAnEmptyStringSet) {
    const auto record = Decode<Type_11>(v2_8_0, OemStrings(0x05));
    ASSERT_TRUE(record->strings);
    EXPECT_TRUE(record->strings->empty());
}

}  // namespace
}  // namespace SMBIOS::Tests
