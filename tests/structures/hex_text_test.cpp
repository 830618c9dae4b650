#include "structures/hex_text.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace SMBIOS::Tests {
namespace {

using Structures::HexText;
using Structures::PaddedHexText;

TEST(HexText, HasLeadingZerosUpToTheLeastDigits) {
    EXPECT_EQ(PaddedHexText(0x0A, 4), "0x000A");
    EXPECT_EQ(PaddedHexText(0, 8), "0x00000000");
}

TEST(HexText, HasAllDigitsOfALongerNumber) {
    EXPECT_EQ(PaddedHexText(0x12345, 4), "0x12345");
    EXPECT_EQ(PaddedHexText(0xFEDCBA9876543210, 11), "0xFEDCBA9876543210");
}

TEST(HexText, HasADigitAtLeast) {
    EXPECT_EQ(PaddedHexText(0, 0), "0x0");
}

TEST(HexText, IsInUpperCase) {
    EXPECT_EQ(PaddedHexText(0xABCDEF, 1), "0xABCDEF");
}

TEST(HexText, OfAFieldHasADigitAByteAtLeast) {
    EXPECT_EQ(HexText(std::uint8_t{0x0F}), "0xF");
    EXPECT_EQ(HexText(std::uint16_t{0x0F}), "0x0F");
    EXPECT_EQ(HexText(std::uint64_t{0}), "0x00000000");
}

}  // namespace
}  // namespace SMBIOS::Tests
