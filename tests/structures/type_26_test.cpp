#include "structures/type_26.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/support/decode.h"

namespace SMBIOS::Tests {
namespace {

using Structures::Type_26;

StructureBuilder Probe(std::uint8_t length) {
    return {26, length};
}

TEST(Type26, MaximumIsTheWordAt06InMillivolts) {
    EXPECT_EQ(Decode<Type_26>(v2_2_0, Probe(0x16).Word(0x06, 0x0102))->maximumValue, 258.0F);
}

TEST(Type26, MinimumIsTheWordAt08InMillivolts) {
    EXPECT_EQ(Decode<Type_26>(v2_2_0, Probe(0x16).Word(0x08, 0x0304))->minimumValue, 772.0F);
}

TEST(Type26, ResolutionIsTheWordAt0AInTenths) {
    EXPECT_EQ(Decode<Type_26>(v2_2_0, Probe(0x16).Word(0x0A, 0x000A))->resolution, 1.0F);
    EXPECT_EQ(Decode<Type_26>(v2_2_0, Probe(0x16).Word(0x0A, 3000))->resolution, 300.0F);
}

TEST(Type26, ToleranceIsTheWordAt0CInMillivolts) {
    EXPECT_EQ(Decode<Type_26>(v2_2_0, Probe(0x16).Word(0x0C, 0x0506))->tolerance, 1286.0F);
}

TEST(Type26, NominalValueIsTheWordAt14InMillivolts) {
    EXPECT_EQ(Decode<Type_26>(v2_2_0, Probe(0x16).Word(0x14, 0x0708))->nominalValue, 1800.0F);
}

TEST(Type26, ReadingsAreNeverNegative) {
    const auto record = Decode<Type_26>(v2_2_0, Probe(0x16).Word(0x06, 0xFFFF).Word(0x08, 0x8001));
    EXPECT_EQ(record->maximumValue, 65535.0F);
    EXPECT_EQ(record->minimumValue, 32769.0F);
}

TEST(Type26, ReadingsAreProductsOfSinglePrecisionNumbers) {
    // 0.1F is above a tenth and 0.01F below a hundredth, so these products are not the floats 0.9F and 0.05F.
    const auto record = Decode<Type_26>(v2_2_0, Probe(0x16).Word(0x0A, 9).Word(0x0E, 5));
    EXPECT_EQ(record->resolution, 0.90000004F);
    EXPECT_EQ(record->accuracy, 0.049999997F);
}

TEST(Type26, NominalValueOfAStructureOf21BytesHasOnlyItsLowByte) {
    EXPECT_EQ(Decode<Type_26>(v2_2_0, Probe(21).Byte(0x14, 40))->nominalValue, 40.0F);
}

TEST(Type26, EveryLocationHasItsName) {
    const std::pair<int, const char*> rows[] = {
        {3, "Processor"},
        {4, "Disk"},
        {5, "Peripheral Bay"},
        {6, "System Management Module"},
        {7, "Motherboard"},
        {8, "Memory Module"},
        {9, "Processor Module"},
        {10, "Power Unit"},
        {11, "Add-in Card"},
    };
    ExpectNarrowNames(5, rows, [](std::uint8_t code) {
        return Decode<Type_26>(v2_2_0, Probe(0x16).Byte(0x05, code))->location;
    });
}

}  // namespace
}  // namespace SMBIOS::Tests
