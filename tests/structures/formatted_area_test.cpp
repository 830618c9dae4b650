#include "structures/formatted_area.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace SMBIOS::Tests {
namespace {

using Structures::FormattedArea;

const std::vector<std::uint8_t> kBytes = {0x11, 0x0A, 0x34, 0x12, 0x78, 0x56, 0xEF, 0xBE, 0xAD, 0xDE};

TEST(FormattedArea, HeaderFieldsAreTypeLengthAndHandle) {
    const FormattedArea area(kBytes);
    EXPECT_EQ(area.Type(), 0x11);
    EXPECT_EQ(area.Length(), 10);
    EXPECT_EQ(area.Handle(), 0x1234);
    EXPECT_EQ(area.Size(), 10U);
}

TEST(FormattedArea, NumbersAreLittleEndian) {
    const FormattedArea area(kBytes);
    EXPECT_EQ(area.Byte(4), 0x78);
    EXPECT_EQ(area.Word(4), 0x5678);
    EXPECT_EQ(area.Dword(6), 0xDEADBEEFU);
    EXPECT_EQ(area.Qword(2), 0xDEADBEEF56781234U);
}

TEST(FormattedArea, BytesPastTheEndReadAsZeroOneByOne) {
    const FormattedArea area(kBytes);
    EXPECT_EQ(area.Word(9), 0x00DE);
    EXPECT_EQ(area.Dword(8), 0x0000DEADU);
    EXPECT_EQ(area.Qword(6), 0x00000000DEADBEEFU);
    EXPECT_EQ(area.Byte(10), 0);
    EXPECT_EQ(area.Byte(std::numeric_limits<std::size_t>::max() - 8), 0);
}

TEST(FormattedArea, AnEmptyAreaReadsAsZeros) {
    const FormattedArea area({});
    EXPECT_EQ(area.Type(), 0);
    EXPECT_EQ(area.Length(), 0);
    EXPECT_EQ(area.Handle(), 0);
}

TEST(FormattedArea, BytesGivesACopyPaddedWithZeros) {
    EXPECT_EQ(FormattedArea(kBytes).Bytes<4>(8), (std::array<std::uint8_t, 4>{0xAD, 0xDE, 0, 0}));
}

}  // namespace
}  // namespace SMBIOS::Tests
