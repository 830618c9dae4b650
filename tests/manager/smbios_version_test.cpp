#include "manager/smbios_version.h"

#include <gtest/gtest.h>

namespace SMBIOS::Tests {
namespace {

using Manager::FindVersionIndex;

TEST(SmbiosVersion, EveryListedVersionHasItsIndex) {
    struct Row {
        std::uint8_t major, minor, revision;
        int index;
    };
    const Row rows[] = {
        {2, 0, 0, 0},  {2, 1, 0, 1},  {2, 2, 0, 2},  {2, 3, 0, 3},  {2, 4, 0, 8},  {2, 5, 0, 9},
        {2, 6, 0, 10}, {2, 6, 1, 11}, {2, 7, 0, 12}, {2, 7, 1, 13}, {2, 8, 0, 14}, {3, 0, 0, 15},
        {3, 1, 0, 16}, {3, 1, 1, 17}, {3, 2, 0, 18}, {3, 3, 0, 19}, {3, 4, 0, 20}, {3, 5, 0, 21},
        {3, 6, 0, 22}, {3, 7, 0, 23}, {3, 7, 1, 24}, {3, 8, 0, 25},
    };
    EXPECT_EQ(std::size(rows), 22U);
    for (const Row& row : rows) {
        const auto index = FindVersionIndex(row.major, row.minor, row.revision);
        ASSERT_TRUE(index) << int{row.major} << "." << int{row.minor} << "." << int{row.revision};
        EXPECT_EQ(static_cast<int>(*index), row.index);
    }
}

TEST(SmbiosVersion, UnlistedVersionsHaveNoIndex) {
    EXPECT_FALSE(FindVersionIndex(2, 3, 1));
    EXPECT_FALSE(FindVersionIndex(3, 9, 0));
    EXPECT_FALSE(FindVersionIndex(1, 0, 0));
    EXPECT_FALSE(FindVersionIndex(255, 255, 255));
}

}  // namespace
}  // namespace SMBIOS::Tests
