#include <gtest/gtest.h>

#include <cstddef>
#include <new>
#include <ostream>

#include "tests/inspect/comparison/comparison_support.h"
#include "tests/support/counted_allocations.h"
#include "tests/support/counting_buffer.h"
#include "tests/support/failing_allocation.h"
#include "tests/support/worst_tables.h"

// What a comparison costs, whatever stands in the tables.
namespace SMBIOS::Tests {
namespace {

constexpr std::size_t kKibibyte = 1024;

struct Cost {
    std::size_t allocations = 0;
    std::size_t bytes = 0;
    std::size_t written = 0;
};

Cost CostOf(const RawTable& before, const RawTable& after, const Inspect::Request& request) {
    CountingBuffer buffer;
    std::ostream output(&buffer);
    const CountedAllocations counted;
    Inspect::ReportDiff(before, after, request, {}, output);
    return {counted.Count(), counted.Bytes(), buffer.Size()};
}

/// Bytes of a table that differ in every structure of some size.
RawTable Changed(RawTable table) {
    for (std::size_t i = 8 + 20; i < table.size(); i += 23) {
        table[i] = static_cast<std::uint8_t>(table[i] ^ (table[i] > 1 ? 1 : 0));
    }
    return table;
}

class DiffCost : public testing::TestWithParam<WorstTable> {
protected:
    void ExpectGrowthLikeTheTables(RawTable (*other)(RawTable), const Inspect::Request& request) {
        const RawTable small = GetParam().make(64 * kKibibyte);
        const RawTable large = GetParam().make(256 * kKibibyte);
        const Cost least = CostOf(small, other(small), request);
        const Cost most = CostOf(large, other(large), request);
        EXPECT_LE(most.allocations, 5 * least.allocations + 10);
        EXPECT_LE(most.bytes, 5 * least.bytes);
        EXPECT_LE(most.written, 5 * least.written + 10);
    }
};

TEST_P(DiffCost, OfATableAndItselfGrowsWithIt) {
    ExpectGrowthLikeTheTables([](RawTable table) { return table; }, {});
}

TEST_P(DiffCost, OfTablesThatDifferGrowsWithThem) {
    ExpectGrowthLikeTheTables(Changed, {});
    ExpectGrowthLikeTheTables(Changed, {.json = true});
}

INSTANTIATE_TEST_SUITE_P(WorstTables,
                         DiffCost,
                         testing::ValuesIn(WorstTables().begin(), WorstTables().end()),
                         [](const auto& tested) { return tested.param.name; });

/// Structures that refer to one that has a long name.
RawTable FansOfOneProbe(std::size_t fans, std::size_t nameLength, std::uint16_t handle) {
    TableBuilder table(3, 8, 0);
    table.Add(StructureBuilder(28, 0x14, 1).String(0x04, std::string(nameLength, 'a')));
    table.Add(StructureBuilder(28, 0x14, 2).String(0x04, std::string(nameLength, 'b')));
    for (std::size_t i = 0; i < fans; ++i) {
        table.Add(StructureBuilder(27, 6, 3).Word(0x04, handle));
    }
    return table.RawTable();
}

TEST(DiffCostOfHandles, DoesNotRepeatALongName) {
    const RawTable before = FansOfOneProbe(1000, 100 * kKibibyte, 1);
    const RawTable after = FansOfOneProbe(1000, 100 * kKibibyte, 2);
    EXPECT_LE(CostOf(before, after, {}).written, 1000 * kKibibyte);
    EXPECT_LE(CostOf(before, after, {}).bytes, 16 * 1000 * kKibibyte);
}

TEST(DiffCostOfStructures, DecodesNoFieldOfThoseThatAreTheSame) {
    TableBuilder table(3, 8, 0);
    for (std::uint16_t i = 0; i < 1000; ++i) {
        table.Add(StructureBuilder(17, 0x5C, i).Word(0x06, 0xFFFE));
    }
    // 45 fields a device would take more than one allocation each
    EXPECT_LE(CostOf(table.RawTable(), table.RawTable(), {.quiet = true}).allocations, 20 * 1000U);
}

class DiffWithoutMemory : public testing::TestWithParam<bool> {};

TEST_P(DiffWithoutMemory, IsWholeOrThrows) {
    const RawTable before = TableIn(SMBIOS_SAMPLE_TABLE);
    EditableTable changed(before);
    changed.At(0x0050).SetString(0x18, "9911AB03");
    changed.Remove(0x00D0);
    const RawTable after = changed.RawTable();
    const Inspect::Request request{.json = GetParam()};
    const std::size_t whole = CostOf(before, after, request).written;
    bool hasFailed = true;
    for (std::size_t n = 1; hasFailed; ++n) {
        CountingBuffer buffer;
        std::ostream output(&buffer);
        try {
            const FailAllocation failing(n);
            Inspect::ReportDiff(before, after, request, {}, output);
            hasFailed = failing.HasFailed();
        } catch (const std::bad_alloc&) {
            continue;
        }
        ASSERT_FALSE(hasFailed) << n;
        EXPECT_EQ(buffer.Size(), whole);
        EXPECT_GT(n, 100U);
    }
}

INSTANTIATE_TEST_SUITE_P(Writers, DiffWithoutMemory, testing::Bool());

}  // namespace
}  // namespace SMBIOS::Tests
