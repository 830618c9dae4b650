#include "smbios-inspect/standard/field_values.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <vector>

#include "tests/inspect/standard/standard_support.h"

namespace SMBIOS::Tests {
namespace {

using Inspect::Standard::FieldValues;

/// The fields of the only structure of a table.
class FieldValuesTest : public testing::Test {
protected:
    FieldValues ValuesOf(const StructureBuilder& structure) {
        table_ = TableOf(structure);
        Inspect::Standard::TableWalk walk(table_);
        return FieldValues(*walk.Next());
    }

private:
    std::vector<std::uint8_t> table_;
};

TEST_F(FieldValuesTest, ATextIsThatOfItsString) {
    EXPECT_EQ(ValuesOf(StructureBuilder(1, 0x1B).String(0x04, "Maker ")).TextOf("manufacturer"), "Maker ");
}

TEST_F(FieldValuesTest, ANumberIsDecimal) {
    const FieldValues values = ValuesOf(StructureBuilder(17, 0x28).Word(0x0C, 2));
    EXPECT_EQ(values.TextOf("size"), "2097152");
    EXPECT_EQ(values.NumberOf("size"), 2097152U);
}

TEST_F(FieldValuesTest, ASignedNumberHasItsSign) {
    EXPECT_EQ(ValuesOf(StructureBuilder(28, 0x16).Word(0x06, 0xFFF6)).TextOf("maximumValue"), "-10");
}

TEST_F(FieldValuesTest, ACodeIsInWords) {
    const FieldValues values = ValuesOf(StructureBuilder(3, 0x15).Byte(0x05, 0x07));
    EXPECT_EQ(values.TextOf("type"), "Tower");
    EXPECT_EQ(values.NumberOf("type"), 7U);
}

TEST_F(FieldValuesTest, ASizeOfNothingIsZero) {
    EXPECT_EQ(ValuesOf(StructureBuilder(17, 0x5C)).TextOf("cacheSize"), "0");
}

TEST_F(FieldValuesTest, WhatIsNotGivenIsEmpty) {
    const FieldValues values = ValuesOf(StructureBuilder(1, 0x1B));
    EXPECT_EQ(values.TextOf("manufacturer"), "");
    EXPECT_EQ(values.TextOf("uuid"), "");
    EXPECT_EQ(values.NumberOf("uuid"), std::nullopt);
}

TEST_F(FieldValuesTest, WhatTheStructureIsTooShortForIsEmpty) {
    const FieldValues values = ValuesOf(StructureBuilder(17, 0x1B));
    EXPECT_EQ(values.TextOf("configuredMemorySpeed"), "");
    EXPECT_EQ(values.NumberOf("configuredMemorySpeed"), std::nullopt);
}

TEST_F(FieldValuesTest, WordsThatSayNothingAreNotTelling) {
    for (const int type : {0x01, 0x02, 0x7F}) {  // other, unknown, none of the standard's
        const FieldValues values =
            ValuesOf(StructureBuilder(3, 0x15).Byte(0x05, static_cast<std::uint8_t>(type)));
        EXPECT_NE(values.TextOf("type"), "");
        EXPECT_EQ(values.TellingTextOf("type"), "");
    }
    EXPECT_EQ(ValuesOf(StructureBuilder(3, 0x15).Byte(0x05, 3)).TellingTextOf("type"), "Desktop");
}

TEST_F(FieldValuesTest, FieldsOfListedObjectsAreNotAmongThem) {
    const FieldValues values = ValuesOf(StructureBuilder(10, 0x06).Byte(0x04, 0x83).String(0x05, "Video"));
    EXPECT_EQ(values.TextOf("description"), "");
}

TEST_F(FieldValuesTest, AFieldBehindAListIsAmongThem) {
    EXPECT_EQ(ValuesOf(StructureBuilder(3, 0x16).String(0x15, "SKU")).TextOf("skuNumber"), "SKU");
}

}  // namespace
}  // namespace SMBIOS::Tests
