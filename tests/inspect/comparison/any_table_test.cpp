#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/saved_table.h"
#include "tests/inspect/captured_tables.h"
#include "tests/inspect/comparison/comparison_support.h"
#include "tests/support/random.h"

// What holds for the differences of any two tables, those of real machines and random ones.
namespace SMBIOS::Tests {
namespace {

class RandomContent : public Random {
public:
    using Random::Random;

    /// Small numbers, which are counts, lengths and numbers of strings, come often.
    std::uint8_t Byte() { return static_cast<std::uint8_t>(Below(2) == 0 ? Below(8) : Below(256)); }
};

constexpr std::uint8_t kBootIntegrityServices = 31;  // its checksum counts its handle

EditableStructure RandomStructure(std::uint16_t handle, RandomContent& random) {
    const std::size_t type = random.Below(50);
    EditableStructure structure{std::vector<std::uint8_t>(4 + random.Below(60))};
    std::ranges::generate(structure.bytes, [&] { return random.Byte(); });
    structure.SetByte(0, type == kBootIntegrityServices ? 200 : static_cast<std::uint8_t>(type));
    structure.SetByte(1, static_cast<std::uint8_t>(structure.bytes.size())).SetWord(2, handle);
    for (std::size_t i = random.Below(4); i != 0; --i) {
        structure.strings.emplace_back(1 + random.Below(3), static_cast<char>(1 + random.Below(255)));
    }
    return structure;
}

/// Bytes that repeat small numbers, and so handles 0x0000 to 0x0007 beside others, which lead nowhere.
EditableTable RandomTable(unsigned seed) {
    RandomContent random(seed);
    EditableTable table(TableBuilder(3, 8, 0).RawTable());
    for (std::uint16_t i = 0; i < 60; ++i) {
        table.Structures().push_back(
            RandomStructure(static_cast<std::uint16_t>(i % 8 | (i / 8) << 8), random));
    }
    return table;
}

/// Removes structures, adds some, and changes bytes and strings of others.
void Damage(EditableTable& table, unsigned seed) {
    RandomContent random(seed);
    for (EditableStructure& each : table.Structures()) {
        if (random.Below(4) == 0 && each.bytes.size() > 4) {
            each.SetByte(4 + random.Below(each.bytes.size() - 4), random.Byte());
        }
        if (random.Below(8) == 0 && !each.strings.empty()) {
            each.strings.back() += "x";
        }
        if (random.Below(16) == 0 && each.bytes.size() < 250) {
            each.Append({random.Byte()});
        }
    }
    table.Remove(table.Structures().at(random.Below(table.Structures().size())).Handle());
    table.Structures().push_back(RandomStructure(0x2000, random));
}

/// The report of the two tables the other way round, its lists sorted: those of one table have its order.
Json Sorted(Json report) {
    for (auto& member : report) {
        if (member.is_array()) {
            std::vector<std::string> elements;
            for (Json& element : member) {
                if (element.contains("fields")) {
                    element["fields"] = Sorted({{"fields", element["fields"]}})["fields"];
                }
                elements.push_back(element.dump());
            }
            std::ranges::sort(elements);
            member = elements;
        }
    }
    return report;
}

void Swap(Json& object, const char* name, const char* other) {
    std::swap(object.at(name), object.at(other));
}

Json Mirrored(Json report) {
    Swap(report, "old", "new");
    Swap(report, "added", "removed");
    for (Json& changed : report.at("changed")) {
        Swap(changed, "oldHandle", "newHandle");
        for (Json& field : changed.at("fields")) {
            Swap(field, "old", "new");
        }
    }
    return report;
}

/// Compared by a Boolean: what GoogleTest prints of two reports is no help.
void ExpectMirror(const RawTable& before, const RawTable& after) {
    const Json report = DiffJson(before, after);
    const Json mirror = DiffJson(after, before);
    EXPECT_TRUE(Sorted(Mirrored(report)) == Sorted(mirror));
}

void ExpectOneCountForEachStructure(const RawTable& before, const RawTable& after) {
    const Json report = DiffJson(before, after);
    const std::size_t paired = report.at("same").get<std::size_t>() + report.at("changed").size();
    EXPECT_EQ(report.at("removed").size() + paired, EditableTable(before).Structures().size());
    EXPECT_EQ(report.at("added").size() + paired, EditableTable(after).Structures().size());
    EXPECT_EQ(AreDifferent(before, after),
              paired != report.at("same") || !report.at("removed").empty() || !report.at("added").empty() ||
                  report.at("old") != report.at("new"));
}

class CapturedDiff : public testing::TestWithParam<const char*> {
protected:
    void SetUp() override {
        if (!HasCapturedTables()) {
            GTEST_SKIP() << "no captured tables in " << SMBIOS_DUMPS_DIR;
        }
        table_ = Platform::LoadSavedTable(CapturedTable(GetParam()));
    }

    RawTable table_;
};

TEST_P(CapturedDiff, IsNoneOfATableAndItself) {
    EXPECT_FALSE(AreDifferent(table_, table_));
}

TEST_P(CapturedDiff, IsNoneWhenFirmwareHasNumberedAndOrderedAllAnew) {
    const EditableTable whole(table_);
    for (unsigned seed = 1; seed <= 5; ++seed) {
        EditableTable moved = whole;
        ShuffleAndRenumber(moved, seed);
        EXPECT_FALSE(AreDifferent(whole.RawTable(), moved.RawTable()))
            << DiffText(whole.RawTable(), moved.RawTable());
    }
}

TEST_P(CapturedDiff, MirrorsThatOfTheTablesTheOtherWayRound) {
    EditableTable damaged(table_);
    Damage(damaged, 1);
    ExpectMirror(table_, damaged.RawTable());
    for (const char* const other : kCapturedTables) {
        ExpectMirror(table_, Platform::LoadSavedTable(CapturedTable(other)));
    }
}

INSTANTIATE_TEST_SUITE_P(Tables, CapturedDiff, testing::ValuesIn(kCapturedTables), [](const auto& tested) {
    return AsTestName(tested.param);
});

constexpr unsigned kRandomTables = 40;

TEST(RandomDiff, IsNoneOfATableAndItself) {
    for (unsigned seed = 0; seed < kRandomTables; ++seed) {
        const RawTable table = RandomTable(seed).RawTable();
        EXPECT_FALSE(AreDifferent(table, table)) << seed;
    }
}

TEST(RandomDiff, IsNoneWhenAllIsNumberedAndOrderedAnew) {
    for (unsigned seed = 0; seed < kRandomTables; ++seed) {
        EditableTable moved = RandomTable(seed);
        ShuffleAndRenumber(moved, seed);
        EXPECT_FALSE(AreDifferent(RandomTable(seed).RawTable(), moved.RawTable()))
            << seed << DiffText(RandomTable(seed).RawTable(), moved.RawTable());
    }
}

TEST(RandomDiff, MirrorsThatOfTheTablesTheOtherWayRound) {
    for (unsigned seed = 0; seed < kRandomTables; ++seed) {
        EditableTable damaged = RandomTable(seed);
        Damage(damaged, seed);
        ExpectMirror(RandomTable(seed).RawTable(), damaged.RawTable());
        ExpectMirror(RandomTable(seed).RawTable(), RandomTable(seed + 1).RawTable());
    }
}

TEST(RandomDiff, CountsEachStructureOnce) {
    for (unsigned seed = 0; seed < kRandomTables; ++seed) {
        EditableTable damaged = RandomTable(seed);
        Damage(damaged, seed);
        ShuffleAndRenumber(damaged, seed);
        ExpectOneCountForEachStructure(RandomTable(seed).RawTable(), damaged.RawTable());
    }
}

TEST(RandomDiff, TellsOfEveryByteThatIsNoHandle) {
    for (unsigned seed = 0; seed < kRandomTables; ++seed) {
        const RawTable table = RandomTable(seed).RawTable();
        EditableTable changed(table);
        EditableStructure& structure = changed.Structures().at(seed);
        structure.bytes.push_back(0x5A);
        structure.SetByte(1, static_cast<std::uint8_t>(structure.bytes.size()));
        EXPECT_TRUE(AreDifferent(table, changed.RawTable())) << seed;
    }
}

TEST(RandomDiff, OfBytesThatAreNoStructuresIsNoneOfThemselves) {
    for (unsigned seed = 0; seed < kRandomTables; ++seed) {
        RandomContent random(seed);
        std::vector<std::uint8_t> bytes(500);
        std::ranges::generate(bytes, [&] { return random.Byte(); });
        const RawTable table = TableBuilder(3, 8, 0).AddBytes(bytes).RawTable();
        EXPECT_FALSE(AreDifferent(table, table)) << seed;
    }
}

}  // namespace
}  // namespace SMBIOS::Tests
