#include "smbios/value_types.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <utility>

namespace SMBIOS::Tests {
namespace {

using Parsers::EBOOL;
using Parsers::MEMORY_TYPE_DETAILS;
using Parsers::PROCESSOR_CHARACTERISTICS;

template <class Struct>
bool IsAllZero(const Struct& value) {
    const unsigned char zeros[sizeof(Struct)] = {};
    return std::memcmp(static_cast<const void*>(&value), zeros, sizeof(Struct)) == 0;
}

TEST(ValueTypes, SizesAre2And17And26Bytes) {
    EXPECT_EQ(sizeof(EBOOL), 2U);
    EXPECT_EQ(sizeof(PROCESSOR_CHARACTERISTICS), 17U);
    EXPECT_EQ(sizeof(MEMORY_TYPE_DETAILS), 26U);
}

TEST(ValueTypes, FlagsFollowTheirWordWithoutAGap) {
    EXPECT_EQ(offsetof(PROCESSOR_CHARACTERISTICS, characteristicsLow), 0U);
    EXPECT_EQ(offsetof(PROCESSOR_CHARACTERISTICS, capable64bit), 1U);
    EXPECT_EQ(offsetof(MEMORY_TYPE_DETAILS, typeDetailWord), 0U);
    EXPECT_EQ(offsetof(MEMORY_TYPE_DETAILS, fastPaged), 2U);
}

TEST(ValueTypes, DefaultsAreAllZero) {
    EXPECT_TRUE(IsAllZero(EBOOL()));
    EXPECT_TRUE(IsAllZero(PROCESSOR_CHARACTERISTICS()));
    EXPECT_TRUE(IsAllZero(MEMORY_TYPE_DETAILS()));
}

TEST(Ebool, DefaultIsFalseAndNotSet) {
    const EBOOL flag;
    EXPECT_FALSE(flag);
    EXPECT_FALSE(flag.isSet);
}

TEST(Ebool, AssigningFalseSetsIt) {
    EBOOL flag;
    flag = false;
    EXPECT_FALSE(flag);
    EXPECT_TRUE(flag.isSet);
}

TEST(Ebool, AssigningTrueSetsIt) {
    EBOOL flag;
    flag = true;
    EXPECT_TRUE(flag);
    EXPECT_TRUE(flag.isSet);
}

TEST(Ebool, ConversionIgnoresWhetherItIsSet) {
    EBOOL flag;
    flag.value = true;
    EXPECT_TRUE(flag);
}

TEST(Ebool, CopyAssignmentCopiesBothBytes) {
    EBOOL source;
    source = true;
    EBOOL target;
    target = source;
    EXPECT_TRUE(target.value);
    EXPECT_TRUE(target.isSet);
    target = EBOOL();
    EXPECT_FALSE(target.value);
    EXPECT_FALSE(target.isSet);
}

TEST(ValueTypes, AssignmentCopiesEveryByte) {
    MEMORY_TYPE_DETAILS details;
    details.typeDetailWord = 0x1234;
    details.unbuffered = true;
    MEMORY_TYPE_DETAILS copy;
    copy = details;
    EXPECT_EQ(std::memcmp(static_cast<void*>(&copy), static_cast<void*>(&details), sizeof(copy)), 0);

    PROCESSOR_CHARACTERISTICS characteristics;
    characteristics.characteristicsLow = 0xFC;
    characteristics.arm64SoC_ID = true;
    PROCESSOR_CHARACTERISTICS moved;
    moved = std::move(characteristics);
    EXPECT_EQ(moved.characteristicsLow, 0xFC);
    EXPECT_TRUE(moved.arm64SoC_ID.isSet);
}

}  // namespace
}  // namespace SMBIOS::Tests
