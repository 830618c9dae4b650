#include "smbios-inspect/reports/table_end.h"

#include <gtest/gtest.h>

#include <vector>

#include "samples/table_builder.h"

namespace SMBIOS::Tests {
namespace {

using Inspect::MayBeCutShort;
using Samples::TableBuilder;

TEST(TableEnd, ATableWithAnEndOfTableStructureIsWhole) {
    EXPECT_FALSE(MayBeCutShort(TableBuilder(2, 8, 0).Add({16, 0x0F}).Add({127, 4}).RawTable()));
}

TEST(TableEnd, BytesBehindTheEndOfTheTableDoNotMatter) {
    EXPECT_FALSE(MayBeCutShort(TableBuilder(2, 8, 0).Add({127, 4}).AddBytes({16, 200}).RawTable()));
}

TEST(TableEnd, ATableThatStopsBehindAStructureMayBeCutShort) {
    EXPECT_TRUE(MayBeCutShort(TableBuilder(2, 8, 0).Add({16, 0x0F}).RawTable()));
}

TEST(TableEnd, ATableThatStopsWithinAStructureMayBeCutShort) {
    std::vector<std::uint8_t> table = TableBuilder(2, 8, 0).Add({16, 0x0F}).Add({127, 4}).RawTable();
    table.resize(table.size() - 3);
    EXPECT_TRUE(MayBeCutShort(table));
}

}  // namespace
}  // namespace SMBIOS::Tests
