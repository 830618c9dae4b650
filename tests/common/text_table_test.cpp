#include "common/text_table.h"

#include <gtest/gtest.h>

namespace SMBIOS::Tests {
namespace {

constexpr auto kTable = Common::ByteTable({
    {0x00, "zero"},
    {0x05, "five"},
    {0xFF, "last"},
});

static_assert(kTable[0x05] == "five", "a table is a compile-time constant");

TEST(TextTable, FindsTheFirstTheMiddleAndTheLastRow) {
    EXPECT_EQ(kTable[0x00], "zero");
    EXPECT_EQ(kTable[0x05], "five");
    EXPECT_EQ(kTable[0xFF], "last");
}

TEST(TextTable, ACodeWithoutARowGivesAnEmptyText) {
    EXPECT_EQ(kTable[0x04], "");
    EXPECT_EQ(kTable[0xFE], "");
}

TEST(TextTable, FindsEachRowOfATableWithoutGapsAndNoneAroundIt) {
    static constexpr auto kRun = Common::ByteTable({{0x03, "three"}, {0x04, "four"}, {0x05, "five"}});
    EXPECT_EQ(kRun[0x02], "");
    EXPECT_EQ(kRun[0x03], "three");
    EXPECT_EQ(kRun[0x04], "four");
    EXPECT_EQ(kRun[0x05], "five");
    EXPECT_EQ(kRun[0x06], "");
}

TEST(TextTable, ACodeInAGapHasNoRowWhereverItWouldStand) {
    static constexpr auto kGap = Common::ByteTable({{0x03, "three"}, {0x05, "five"}, {0x06, "six"}});
    EXPECT_EQ(kGap[0x04], "");
    EXPECT_EQ(kGap[0x05], "five");
    EXPECT_EQ(kGap[0x06], "six");
    EXPECT_EQ(kGap[0x00], "");
}

TEST(TextTable, FindTellsAMissingRowFromAnEmptyText) {
    EXPECT_FALSE(kTable.Find(0x04));
    EXPECT_EQ(kTable.Find(0x05), "five");
}

TEST(TextTable, WordTablesTake16BitCodes) {
    static constexpr auto kWords = Common::WordTable({{0x0001, "low"}, {0x0101, "high"}});
    EXPECT_EQ(kWords[0x0101], "high");
    EXPECT_EQ(kWords[0x0001], "low");
}

}  // namespace
}  // namespace SMBIOS::Tests
