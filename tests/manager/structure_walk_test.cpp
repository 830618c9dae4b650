#include "manager/structure_walk.h"

#include <gtest/gtest.h>

#include <random>

namespace SMBIOS::Tests {
namespace {

using Manager::RawStructure;
using Manager::StructureWalk;

using Bytes = std::vector<std::uint8_t>;
using Strings = std::vector<std::string>;

std::vector<RawStructure> Walked(const Bytes& table) {
    std::vector<RawStructure> structures;
    StructureWalk walk(table);
    while (const auto structure = walk.Next()) {
        structures.push_back(RawStructure::Of(*structure));
    }
    return structures;
}

/// The strings of one structure with a bare header, followed by `stringSet`.
Strings StringsOf(const Bytes& stringSet) {
    Bytes table = {1, 4, 0x10, 0x00};
    table.insert(table.end(), stringSet.begin(), stringSet.end());
    const std::vector<RawStructure> structures = Walked(table);
    EXPECT_EQ(structures.size(), 1U);
    return structures.empty() ? Strings{"no structure"} : structures.front().strings;
}

TEST(StructureWalk, AnEmptyTableHasNoStructure) {
    EXPECT_TRUE(Walked({}).empty());
}

TEST(StructureWalk, ASingleByteHoldsNoHeader) {
    EXPECT_TRUE(Walked({17}).empty());
}

TEST(StructureWalk, TheFormattedAreaBeginsAtTheTypeByte) {
    const auto structures = Walked({17, 5, 0x34, 0x12, 0xAB, 0, 0});
    ASSERT_EQ(structures.size(), 1U);
    EXPECT_EQ(structures[0].type, 17);
    EXPECT_EQ(structures[0].formattedBytes, (Bytes{17, 5, 0x34, 0x12, 0xAB}));
}

TEST(StructureWalk, AStringSetOfTwoZerosIsEmpty) {
    EXPECT_EQ(StringsOf({0, 0}), Strings{});
}

TEST(StructureWalk, StringsEndAtEachZero) {
    EXPECT_EQ(StringsOf({0x41, 0, 0x42, 0x43, 0, 0}), (Strings{"A", "BC"}));
}

TEST(StructureWalk, ThreeStringsKeepTheirOrder) {
    EXPECT_EQ(StringsOf({'a', 'b', 'c', 0, 'd', 'e', 'f', 0, 'g', 0, 0}), (Strings{"abc", "def", "g"}));
}

TEST(StructureWalk, ALeadingZeroMakesAnEmptyFirstString) {
    EXPECT_EQ(StringsOf({0, 'a', 'b', 'c', 0, 0}), (Strings{"", "abc"}));
}

TEST(StructureWalk, BytesAreNotConverted) {
    EXPECT_EQ(StringsOf({0xFF, 0x80, 0, 0}), (Strings{"\xFF\x80"}));
}

TEST(StructureWalk, TheDoubleZeroMayBeginWithTheLastStringsEnd) {
    const auto structures = Walked({1, 4, 0, 0, 'x', 0, 0, 2, 4, 0, 0, 'y', 0, 0});
    ASSERT_EQ(structures.size(), 2U);
    EXPECT_EQ(structures[0].strings, Strings{"x"});
    EXPECT_EQ(structures[1].strings, Strings{"y"});
}

TEST(StructureWalk, TheEndOfTableTypeDoesNotEndIt) {
    const auto structures = Walked({127, 4, 0, 0, 0, 0, 17, 4, 1, 0, 0, 0});
    ASSERT_EQ(structures.size(), 2U);
    EXPECT_EQ(structures[0].type, 127);
    EXPECT_EQ(structures[1].type, 17);
}

TEST(StructureWalk, TheInactiveTypeIsNotSkipped) {
    EXPECT_EQ(Walked({126, 4, 0, 0, 0, 0}).size(), 1U);
}

TEST(StructureWalk, ALengthByteBelow4StillMakesAStructure) {
    const auto structures = Walked({17, 3, 0xAA, 0, 0, 18, 4, 0, 0, 0, 0});
    ASSERT_EQ(structures.size(), 2U);
    EXPECT_EQ(structures[0].formattedBytes, (Bytes{17, 3, 0xAA}));
    EXPECT_EQ(structures[1].type, 18);
}

TEST(StructureWalk, AFinalStructureWithoutDoubleZeroHasNoStringsAndTheWalkGoesOnBehindItsFormattedArea) {
    const auto structures = Walked({1, 4, 0, 0x10, 2, 4, 0, 0x11});
    ASSERT_EQ(structures.size(), 2U);
    EXPECT_EQ(structures[0].strings, Strings{});
    EXPECT_EQ(structures[1].type, 2);
}

TEST(StructureWalk, ASingleZeroAfterTheLastFormattedAreaIsNoStringSet) {
    const auto structures = Walked({1, 4, 0, 0x10, 0});
    ASSERT_EQ(structures.size(), 1U);
    EXPECT_EQ(structures[0].strings, Strings{});
}

TEST(StructureWalk, StringsThatRunPastTheTableAreWalkedAsAStructure) {
    const auto structures = Walked({1, 4, 0, 0x10, 'A', 3, 'B'});
    ASSERT_EQ(structures.size(), 2U);
    EXPECT_EQ(structures[1].type, 'A');
    EXPECT_EQ(structures[1].formattedBytes, (Bytes{'A', 3, 'B'}));
}

TEST(StructureWalk, AFormattedAreaPastTheTableEndsIt) {
    const auto structures = Walked({1, 4, 0, 0, 0, 0, 17, 40, 1, 0, 0, 0});
    ASSERT_EQ(structures.size(), 1U);
    EXPECT_EQ(structures[0].type, 1);
}

TEST(StructureWalk, AFormattedAreaUpToTheTablesEndIsAStructure) {
    EXPECT_EQ(Walked({17, 6, 1, 0, 9, 9}).size(), 1U);
}

TEST(StructureWalk, ALengthOfZeroBeforeADoubleZeroGivesAnEmptyFormattedArea) {
    const auto structures = Walked({17, 0, 0, 18, 4, 0, 0, 0, 0});
    ASSERT_EQ(structures.size(), 2U);
    EXPECT_EQ(structures[0].type, 17);
    EXPECT_TRUE(structures[0].formattedBytes.empty());
    EXPECT_EQ(structures[0].strings, Strings{"\x11"});
    EXPECT_EQ(structures[1].type, 18);
}

TEST(StructureWalk, ALengthOfZeroWithoutADoubleZeroEndsItWithoutAStructure) {
    const auto structures = Walked({1, 4, 0, 0, 0, 0, 17, 0, 1, 2});
    ASSERT_EQ(structures.size(), 1U);
    EXPECT_EQ(structures[0].type, 1);
}

TEST(StructureWalk, ALongTableWithoutAnyDoubleZeroIsWalkedInLinearTime) {
    Bytes table;
    for (int i = 0; i < 1000000; ++i) {
        table.insert(table.end(), {1, 4, 0x10, 0x20});
    }
    EXPECT_EQ(Walked(table).size(), 1000000U);
}

TEST(StructureWalk, RandomTablesNeverLeadItOutsideTheTable) {
    std::mt19937 random(20240601);
    for (int round = 0; round < 20000; ++round) {
        Bytes table(random() % 64);
        for (std::uint8_t& byte : table) {
            byte = random() % 3 == 0 ? std::uint8_t{0} : static_cast<std::uint8_t>(random() % 24);
        }
        std::size_t walked = 0;
        for (const RawStructure& structure : Walked(table)) {
            walked += structure.formattedBytes.size();
        }
        EXPECT_LE(walked, table.size());
    }
}

}  // namespace
}  // namespace SMBIOS::Tests
