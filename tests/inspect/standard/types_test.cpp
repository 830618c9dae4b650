#include "smbios-inspect/standard/types.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>
#include <span>
#include <string_view>

namespace SMBIOS::Inspect::Standard {
namespace {

constexpr int kFirstWithoutFields = 47;

bool IsLowerCamelCase(std::string_view name) {
    const auto isAlphanumeric = [](unsigned char character) { return std::isalnum(character) != 0; };
    return !name.empty() && std::islower(static_cast<unsigned char>(name.front())) != 0 &&
           std::ranges::all_of(name, isAlphanumeric);
}

void ExpectRowsInOrder(std::span<const FieldRow> rows, int type) {
    std::set<std::string_view> names;
    std::size_t previous = 0;
    for (const FieldRow& row : rows) {
        EXPECT_GE(row.offset, previous) << row.name << " of type " << type;
        EXPECT_TRUE(names.insert(row.name).second) << row.name << " of type " << type;
        EXPECT_TRUE(IsLowerCamelCase(row.name)) << row.name << " of type " << type;
        previous = row.offset;
    }
}

TEST(StandardTypes, AreAllThatTheStandardDefinesInOrder) {
    ASSERT_EQ(AllTypes().size(), static_cast<std::size_t>(kFirstWithoutFields));
    for (int type = 0; type < kFirstWithoutFields; ++type) {
        EXPECT_EQ(AllTypes()[static_cast<std::size_t>(type)]->type, type);
        EXPECT_EQ(DescriptionOf(static_cast<std::uint8_t>(type))->type, type);
    }
}

TEST(StandardTypes, OthersHaveNoDescription) {
    for (int type = kFirstWithoutFields; type <= 255; ++type) {
        EXPECT_EQ(DescriptionOf(static_cast<std::uint8_t>(type)), nullptr) << type;
    }
}

TEST(StandardTypes, FieldsStandInTheOrderOfTheirOffsetsUnderNamesOfTheirOwn) {
    for (const TypeDescription* description : AllTypes()) {
        ExpectRowsInOrder(description->rows, description->type);
        for (const GroupTable& group : description->groups) {
            ExpectRowsInOrder(group.rows, description->type);
        }
    }
}

TEST(StandardTypes, NoFieldLiesInTheHeader) {
    for (const TypeDescription* description : AllTypes()) {
        for (const FieldRow& row : description->rows) {
            EXPECT_GE(row.offset, 4U) << row.name << " of type " << int{description->type};
        }
    }
}

TEST(StandardTypes, WhatHasGroupsFindsThem) {
    for (const TypeDescription* description : AllTypes()) {
        EXPECT_EQ(description->groups.empty(), description->visitGroups == nullptr) << int{description->type};
    }
}

}  // namespace
}  // namespace SMBIOS::Inspect::Standard
