#include "structures/type_28.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/support/decode.h"

namespace SMBIOS::Tests {
namespace {

using Structures::Type_28;

StructureBuilder Probe(std::uint8_t length) {
    return {28, length};
}

TEST(Type28, MaximumIsTheWordAt06InTenthsOfADegree) {
    EXPECT_EQ(Decode<Type_28>(v2_2_0, Probe(0x16).Word(0x06, 0x0320))->maximumValue, 80.0F);
}

TEST(Type28, MinimumIsTheWordAt08InTenthsOfADegree) {
    EXPECT_EQ(Decode<Type_28>(v2_2_0, Probe(0x16).Word(0x08, 0x1234))->minimumValue, 466.0F);
}

TEST(Type28, ResolutionIsTheWordAt0AInThousandthsOfADegree) {
    EXPECT_EQ(Decode<Type_28>(v2_2_0, Probe(0x16).Word(0x0A, 2500))->resolution, 2.5F);
}

TEST(Type28, ToleranceIsTheWordAt0CInTenthsOfADegree) {
    EXPECT_EQ(Decode<Type_28>(v2_2_0, Probe(0x16).Word(0x0C, 1250))->tolerance, 125.0F);
}

TEST(Type28, NominalValueIsTheWordAt14InTenthsOfADegree) {
    EXPECT_EQ(Decode<Type_28>(v2_2_0, Probe(0x16).Word(0x14, 1000))->nominalValue, 100.0F);
}

TEST(Type28, TemperaturesBelowZeroAreReadAsPositiveNumbers) {
    const auto record = Decode<Type_28>(v2_2_0, Probe(0x16).Word(0x08, 0xFF9C).Word(0x06, 0x8002));
    EXPECT_EQ(record->minimumValue, 6543.6F);
    EXPECT_EQ(record->maximumValue, 3277.0F);
}

TEST(Type28, ReadingsAreProductsOfSinglePrecisionNumbers) {
    // The factors are not exactly a tenth, a thousandth and a hundredth, so these products are not the floats
    // nearest to 0.9, 0.005 and 0.05.
    const auto record = Decode<Type_28>(v2_2_0, Probe(0x16).Word(0x06, 9).Word(0x0A, 5).Word(0x0E, 5));
    EXPECT_EQ(record->maximumValue, 0.90000004F);
    EXPECT_EQ(record->resolution, 0.0050000004F);
    EXPECT_EQ(record->accuracy, 0.049999997F);
}

TEST(Type28, NominalValueOfAStructureOf21BytesHasOnlyItsLowByte) {
    EXPECT_EQ(Decode<Type_28>(v2_2_0, Probe(21).Byte(0x14, 40))->nominalValue, 4.0F);
}

TEST(Type28, EveryLocationHasItsName) {
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
        {12, "Front Panel Board"},
        {13, "Back Panel Board"},
        {14, "Power System Board"},
        {15, "Drive Back Plane"},
    };
    ExpectNarrowNames(5, rows, [](std::uint8_t code) {
        return Decode<Type_28>(v2_2_0, Probe(0x16).Byte(0x05, code))->location;
    });
}

}  // namespace
}  // namespace SMBIOS::Tests
