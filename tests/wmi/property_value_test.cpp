#include "wmi/property_value.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>

namespace SMBIOS::Wmi {
namespace {

constexpr std::uint64_t kOne = 1;
constexpr std::int64_t kMinusTwo = -2;

TEST(PropertyValue, ANumberWrapsToTheFieldsWidth) {
    constexpr std::uint64_t number = 0x1122334455667788;
    EXPECT_EQ(ValueAs<std::uint8_t>(number), 0x88);
    EXPECT_EQ(ValueAs<std::uint16_t>(number), 0x7788);
    EXPECT_EQ(ValueAs<std::uint32_t>(number), 0x55667788U);
    EXPECT_EQ(ValueAs<std::uint64_t>(number), number);
}

TEST(PropertyValue, ANegativeNumberIsTakenInTwosComplement) {
    EXPECT_EQ(ValueAs<std::uint8_t>(kMinusTwo), 0xFE);
    EXPECT_EQ(ValueAs<std::uint64_t>(kMinusTwo), 0xFFFFFFFFFFFFFFFE);
}

TEST(PropertyValue, AFractionIsCutOff) {
    EXPECT_EQ(ValueAs<std::uint8_t>(2.9), 2);
    EXPECT_EQ(ValueAs<std::uint8_t>(258.9), 2);
    EXPECT_EQ(ValueAs<std::uint8_t>(-2.9), 0xFE);
    EXPECT_EQ(ValueAs<std::uint8_t>(-0.5), 0);
}

TEST(PropertyValue, AFractionMayBeAsLargeAs64Bits) {
    EXPECT_EQ(ValueAs<std::uint64_t>(18446744073709549568.0), 18446744073709549568U);
    EXPECT_EQ(ValueAs<std::uint64_t>(-9223372036854775808.0), 9223372036854775808U);
}

TEST(PropertyValue, AFractionOfMoreThan64BitsIsRefused) {
    for (const double number : {1e300, 18446744073709551616.0, -9223372036854777856.0, -1e300}) {
        EXPECT_THROW((void)ValueAs<std::uint8_t>(number), std::out_of_range) << number;
        EXPECT_THROW((void)ValueAs<std::uint64_t>(number), std::out_of_range) << number;
    }
}

TEST(PropertyValue, AFractionThatIsNoNumberIsRefused) {
    EXPECT_THROW((void)ValueAs<std::uint8_t>(std::numeric_limits<double>::quiet_NaN()), std::out_of_range);
}

TEST(PropertyValue, ATruthValueIsANumberOfLessThan64Bits) {
    EXPECT_EQ(ValueAs<std::uint8_t>(true), 1);
    EXPECT_EQ(ValueAs<std::uint16_t>(false), 0);
    EXPECT_EQ(ValueAs<std::uint32_t>(true), 1U);
    EXPECT_THROW((void)ValueAs<std::uint64_t>(true), std::bad_variant_access);
}

TEST(PropertyValue, OnlyATruthValueIsOne) {
    EXPECT_TRUE(ValueAs<bool>(true));
    for (const PropertyValue& other : {PropertyValue(nullptr), PropertyValue(kOne), PropertyValue("true")}) {
        EXPECT_THROW((void)ValueAs<bool>(other), std::bad_variant_access);
    }
}

TEST(PropertyValue, OnlyATextIsOne) {
    EXPECT_EQ(ValueAs<std::string>("text"), "text");
    for (const PropertyValue& other : {PropertyValue(nullptr), PropertyValue(kOne), PropertyValue(true)}) {
        EXPECT_THROW((void)ValueAs<std::string>(other), std::bad_variant_access);
    }
}

TEST(PropertyValue, WhatIsNoNumberIsRefusedAsOne) {
    for (const PropertyValue& other :
         {PropertyValue(nullptr), PropertyValue("1"), PropertyValue(Container::array)}) {
        EXPECT_THROW((void)ValueAs<std::uint8_t>(other), std::bad_variant_access);
    }
}

}  // namespace
}  // namespace SMBIOS::Wmi
