#include <gtest/gtest.h>

#include "manager/decoded_table.h"
#include "tests/support/counted_allocations.h"
#include "tests/support/decode.h"
#include "tests/support/worst_tables.h"

// What the memory of a table costs, whatever stands in it.
namespace SMBIOS::Tests {
namespace {

constexpr std::size_t kKibibyte = 1024;
constexpr std::size_t kMebibyte = 1024 * kKibibyte;

struct Cost {
    std::size_t allocations;
    std::size_t bytes;
};

Cost CostToDecode(const std::vector<std::uint8_t>& rawTable) {
    const CountedAllocations counted;
    (void)Manager::DecodeTable(rawTable);
    return {counted.Count(), counted.Bytes()};
}

class TableCost : public testing::TestWithParam<WorstTable> {};

TEST_P(TableCost, IsAtMost700BytesOfMemoryAByte) {
    const std::vector<std::uint8_t> rawTable = GetParam().make(64 * kKibibyte);
    EXPECT_LE(CostToDecode(rawTable).bytes, 700 * rawTable.size());
}

TEST_P(TableCost, GrowsWithTheTableAndNoFaster) {
    const Cost small = CostToDecode(GetParam().make(64 * kKibibyte));
    const Cost large = CostToDecode(GetParam().make(256 * kKibibyte));
    EXPECT_LE(10 * large.allocations, 44 * small.allocations);
    EXPECT_LE(10 * large.bytes, 44 * small.bytes);
}

INSTANTIATE_TEST_SUITE_P(WorstTables,
                         TableCost,
                         testing::ValuesIn(WorstTables().begin(), WorstTables().end()),
                         [](const auto& each) { return each.param.name; });

TEST(ChassisCost, OfAThousandChassisWithThousandsOfElementsIsSmall) {
    TableBuilder table(3, 2, 0);
    for (int i = 0; i < 1000; ++i) {
        table.Add(StructureBuilder(3, 0x18).Byte(0x13, 255).Byte(0x14, 85));
    }
    EXPECT_LE(CostToDecode(table.RawTable()).bytes, 32 * kMebibyte);
}

}  // namespace
}  // namespace SMBIOS::Tests
