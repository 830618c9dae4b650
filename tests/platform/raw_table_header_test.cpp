#include "platform/raw_table_header.h"

#include <gtest/gtest.h>

#include <vector>

namespace SMBIOS::Tests {
namespace {

using Platform::RawTableHeader;

using Bytes = std::vector<std::uint8_t>;

TEST(RawTableHeader, ReadsTheVersionFromBytes1To3) {
    const Bytes rawTable = {9, 3, 7, 1, 0xFF, 0xFF, 0xFF, 0xFF};
    const RawTableHeader header = RawTableHeader::Of(rawTable);
    EXPECT_EQ(header.majorVersion, 3);
    EXPECT_EQ(header.minorVersion, 7);
    EXPECT_EQ(header.revision, 1);
}

TEST(RawTableHeader, WritesTheVersionAndTheLengthInLittleEndian) {
    const auto bytes = RawTableHeader{3, 7, 1}.Bytes(0x12345678);
    EXPECT_EQ(Bytes(bytes.begin(), bytes.end()), (Bytes{0, 3, 7, 1, 0x78, 0x56, 0x34, 0x12}));
}

TEST(RawTableHeader, StructuresStandBehindIt) {
    const Bytes rawTable = {0, 3, 7, 1, 0, 0, 0, 0, 42, 43};
    const auto structures = RawTableHeader::StructuresOf(rawTable);
    EXPECT_EQ(Bytes(structures.begin(), structures.end()), (Bytes{42, 43}));
}

TEST(RawTableHeader, NothingStandsBehindATableThatIsNoLonger) {
    EXPECT_TRUE(RawTableHeader::StructuresOf(Bytes(8)).empty());
    EXPECT_TRUE(RawTableHeader::StructuresOf(Bytes(3)).empty());
}

TEST(RawTableHeader, MajorVersions1To9ArePlausible) {
    EXPECT_FALSE((RawTableHeader{0, 0, 0}.HasPlausibleVersion()));
    EXPECT_TRUE((RawTableHeader{1, 0, 0}.HasPlausibleVersion()));
    EXPECT_TRUE((RawTableHeader{9, 255, 255}.HasPlausibleVersion()));
    EXPECT_FALSE((RawTableHeader{10, 0, 0}.HasPlausibleVersion()));
}

}  // namespace
}  // namespace SMBIOS::Tests
