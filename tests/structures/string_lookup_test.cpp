#include "structures/string_lookup.h"

#include <gtest/gtest.h>

namespace SMBIOS::Tests {
namespace {

using Structures::GetStringByIndex;

const std::vector<std::string> kThree = {"first", "  second  ", " \t\n\v\f\r"};

TEST(GetStringByIndex, CountsFromOne) {
    EXPECT_EQ(GetStringByIndex(1, kThree), "first");
}

TEST(GetStringByIndex, NumberZeroIsEmpty) {
    EXPECT_EQ(GetStringByIndex(0, kThree), "");
}

TEST(GetStringByIndex, NumberFiveOfThreeIsEmpty) {
    EXPECT_EQ(GetStringByIndex(5, kThree), "");
    EXPECT_EQ(GetStringByIndex(4, kThree), "");
}

TEST(GetStringByIndex, WhiteSpaceAroundAWordIsRemoved) {
    EXPECT_EQ(GetStringByIndex(2, kThree), "second");
}

TEST(GetStringByIndex, WhiteSpaceWithinIsKept) {
    EXPECT_EQ(GetStringByIndex(1, {"\r\n two words\t"}), "two words");
}

TEST(GetStringByIndex, NothingButWhiteSpaceIsEmpty) {
    EXPECT_EQ(GetStringByIndex(3, kThree), "");
}

TEST(GetStringByIndex, BytesAbove7FAreNoWhiteSpace) {
    EXPECT_EQ(GetStringByIndex(1, {"\xA0x\x85"}), "\xA0x\x85");
}

TEST(GetStringByIndex, String255OfALongSetIsFound) {
    std::vector<std::string> strings(255, "other");
    strings[254] = "last";
    EXPECT_EQ(GetStringByIndex(255, strings), "last");
}

}  // namespace
}  // namespace SMBIOS::Tests
