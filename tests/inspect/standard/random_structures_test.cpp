#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>
#include <vector>

#include "smbios-inspect/standard/types.h"
#include "tests/inspect/standard/standard_support.h"
#include "tests/support/random.h"

// Structures that no firmware would write.
namespace SMBIOS::Tests {
namespace {

using Inspect::Standard::FieldRow;

constexpr int kTypes = 256;
constexpr int kLengths = 256;

class RandomContent : public Random {
public:
    using Random::Random;

    /// Small numbers, which are counts and lengths, come often.
    std::uint8_t Byte() {
        const auto bits = Next();
        return static_cast<std::uint8_t>((bits & 0x100U) != 0 ? bits : bits & 0x07U);
    }
};

StructureBuilder RandomStructure(int type, int length, RandomContent& random) {
    StructureBuilder structure(static_cast<std::uint8_t>(type), static_cast<std::uint8_t>(length));
    for (int offset = 4; offset < length; ++offset) {
        structure.Byte(static_cast<std::size_t>(offset), random.Byte());
    }
    for (std::size_t strings = random.Below(4); strings != 0; --strings) {
        structure.String(std::string(1 + random.Below(5), static_cast<char>(1 + random.Below(255))));
    }
    return structure;
}

std::vector<std::uint8_t> RandomBytes(std::size_t size, RandomContent& random) {
    std::vector<std::uint8_t> bytes(size);
    std::ranges::generate(bytes, [&] { return random.Byte(); });
    return TableBuilder(3, 8, 0).AddBytes(bytes).RawTable();
}

class RandomStructuresOfStandard : public testing::TestWithParam<int> {};

TEST_P(RandomStructuresOfStandard, OfEveryLengthAreValidJson) {
    RandomContent random(static_cast<unsigned>(GetParam()));
    for (int length = 4; length < kLengths; ++length) {
        const std::string text = FirmwareJsonText(TableOf(RandomStructure(GetParam(), length, random)));
        ASSERT_TRUE(Json::accept(text)) << text;
        const Json list = Json::parse(text);
        ASSERT_EQ(list.size(), 1U);
        EXPECT_EQ(list.at(0).at("length"), length);
    }
}

TEST_P(RandomStructuresOfStandard, HaveEveryFieldTheyAreLongEnoughFor) {
    const auto* description = Inspect::Standard::DescriptionOf(static_cast<std::uint8_t>(GetParam()));
    RandomContent random(static_cast<unsigned>(GetParam()));
    for (int length = 4; description != nullptr && length < kLengths; ++length) {
        const Json fields =
            FirmwareJson(TableOf(RandomStructure(GetParam(), length, random))).at(0).at("fields");
        for (const FieldRow& row : description->rows) {
            EXPECT_EQ(fields.contains(std::string(row.name)),
                      row.offset + row.width <= static_cast<std::size_t>(length))
                << row.name << " of a structure of " << length << " bytes";
        }
    }
}

TEST_P(RandomStructuresOfStandard, CanAllBePrinted) {
    RandomContent random(static_cast<unsigned>(GetParam()));
    for (int length = 4; length < kLengths; ++length) {
        const std::string text = FirmwareText(TableOf(RandomStructure(GetParam(), length, random)));
        EXPECT_TRUE(text.starts_with("Type " + std::to_string(GetParam())));
        EXPECT_TRUE(text.ends_with('\n'));
    }
}

INSTANTIATE_TEST_SUITE_P(Types, RandomStructuresOfStandard, testing::Range(0, 50));
INSTANTIATE_TEST_SUITE_P(OtherTypes, RandomStructuresOfStandard, testing::Values(126, 127, 128, 255));

TEST(RandomTablesOfStandard, AreShownWhereverTheyEnd) {
    constexpr int kTables = 2000;
    RandomContent random(1);
    for (int i = 0; i < kTables; ++i) {
        const auto table = RandomBytes(random.Below(600), random);
        ASSERT_TRUE(Json::accept(FirmwareJsonText(table)));
        EXPECT_TRUE(FirmwareText(table).empty() == FirmwareJson(table).empty());
    }
}

TEST(RandomTablesOfStandard, AreGoneThroughToTheLastByte) {
    RandomContent random(2);
    TableBuilder table(3, 8, 0);
    for (int type = 0; type < kTypes; ++type) {
        table.Add(RandomStructure(type, 4 + static_cast<int>(random.Below(252)), random));
    }
    EXPECT_EQ(FirmwareJson(table.RawTable()).size(), static_cast<std::size_t>(kTypes));
}

}  // namespace
}  // namespace SMBIOS::Tests
