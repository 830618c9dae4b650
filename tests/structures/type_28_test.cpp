#include "structures/type_28.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/support/decode.h"
#include "tests/support/narrow_names.h"

namespace SMBIOS::Tests {
namespace {

using Structures::Type_28;

constexpr std::uint16_t kHandle = 0x0028;

StructureBuilder Probe(std::uint8_t length) {
    return {28, length, kHandle};
}

// What is accepted

TEST(Type28, NeedsA220Table) {
    const AcceptanceCase cases[] = {
        {0x16, v2_0_0, kMalformed},
        {0x16, v2_1_0, kMalformed},
        {0x16, v2_2_0, ""},
        {0x16, v2_3_0, ""},
        {0x16, v3_8_0, ""},
    };
    ExpectAcceptance<Type_28>(28, cases);
}

TEST(Type28, AcceptsEveryLength) {
    const AcceptanceCase cases[] = {
        {0x04, v2_2_0, ""},
        {0x14, v2_2_0, ""},
        {0x15, v2_2_0, ""},
        {0x16, v2_2_0, ""},
        {0xFF, v2_2_0, ""},
    };
    ExpectAcceptance<Type_28>(28, cases);
}

TEST(Type28, KeepsTheHandle) {
    EXPECT_EQ(Decode<Type_28>(v2_2_0, Probe(0x16))->handle, kHandle);
}

TEST(Type28, ReportsAnEmptyFormattedAreaAsAnInvalidPointer) {
    EXPECT_EQ(DecodeBytes<Type_28>(v2_2_0, {})->error, kInvalidPointer);
}

TEST(Type28, ReportsThreeBytesAsMalformed) {
    EXPECT_EQ(DecodeBytes<Type_28>(v2_2_0, {28, 0x16, 0x11})->error, kMalformed);
}

TEST(Type28, ARefusedStructureKeepsOnlyErrorRawBytesAndStrings) {
    const auto record =
        Decode<Type_28>(v2_1_0, Probe(0x16).String(0x04, "Core temperature").Byte(0x05, 0x63));
    EXPECT_EQ(record->handle, 0);
    EXPECT_EQ(record->description + record->location + record->status, "");
    EXPECT_FALSE(record->maximumValue);
    EXPECT_FALSE(record->oemDefined);
    EXPECT_EQ(record->rawBytes.size(), 0x16U);
    ASSERT_TRUE(record->strings);
    EXPECT_EQ(*record->strings, std::vector<std::string>{"Core temperature"});
}

TEST(Type28, AStructureOf4BytesReadsAsZeros) {
    const auto record = Decode<Type_28>(v2_2_0, Probe(0x04));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->description + record->location + record->status, "");
    EXPECT_EQ(record->maximumValue, 0.0F);
    EXPECT_EQ(record->minimumValue, 0.0F);
    EXPECT_EQ(record->resolution, 0.0F);
    EXPECT_EQ(record->tolerance, 0.0F);
    EXPECT_EQ(record->accuracy, 0.0F);
    EXPECT_EQ(record->oemDefined, 0U);
    EXPECT_FALSE(record->nominalValue);
}

// Texts and codes

TEST(Type28, DescriptionIsTheStringAt04) {
    EXPECT_EQ(
        Decode<Type_28>(v2_2_0, Probe(0x16).String("other").String(0x04, " Core temperature "))->description,
        "Core temperature");
}

TEST(Type28, DescriptionWithoutItsStringIsEmpty) {
    const auto record = Decode<Type_28>(v2_2_0, Probe(0x16).String("Core temperature").Byte(0x04, 2));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->description, "");
}

TEST(Type28, Byte63IsOkAndProcessor) {
    const auto record = Decode<Type_28>(v2_2_0, Probe(0x16).Byte(0x05, 0x63));
    EXPECT_EQ(record->status, "OK");
    EXPECT_EQ(record->location, "Processor");
}

TEST(Type28, Byte83IsNonCriticalAndProcessor) {
    const auto record = Decode<Type_28>(v2_2_0, Probe(0x16).Byte(0x05, 0x83));
    EXPECT_EQ(record->status, "Non-critical");
    EXPECT_EQ(record->location, "Processor");
}

TEST(Type28, OemDefinedIsTheDwordAt10) {
    EXPECT_EQ(Decode<Type_28>(v2_2_0, Probe(0x16).Dword(0x10, 0x01020304))->oemDefined, 0x01020304U);
}

// Readings

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

TEST(Type28, AccuracyIsTheWordAt0EInHundredthsOfAPercent) {
    EXPECT_EQ(Decode<Type_28>(v2_2_0, Probe(0x16).Word(0x0E, 4000))->accuracy, 40.0F);
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

TEST(Type28, EveryReadingOf8000IsAbsent) {
    const auto record = Decode<Type_28>(v2_2_0,
                                        Probe(0x16)
                                            .Word(0x06, 0x8000)
                                            .Word(0x08, 0x8000)
                                            .Word(0x0A, 0x8000)
                                            .Word(0x0C, 0x8000)
                                            .Word(0x0E, 0x8000)
                                            .Word(0x14, 0x8000));
    EXPECT_EQ(record->error, "");
    EXPECT_FALSE(record->maximumValue);
    EXPECT_FALSE(record->minimumValue);
    EXPECT_FALSE(record->resolution);
    EXPECT_FALSE(record->tolerance);
    EXPECT_FALSE(record->accuracy);
    EXPECT_FALSE(record->nominalValue);
}

TEST(Type28, ReadingsOfZeroArePresent) {
    const auto record = Decode<Type_28>(v2_2_0, Probe(0x16));
    EXPECT_EQ(record->maximumValue, 0.0F);
    EXPECT_EQ(record->nominalValue, 0.0F);
}

TEST(Type28, NominalValueIsAbsentFromAStructureOf20Bytes) {
    EXPECT_FALSE(Decode<Type_28>(v2_2_0, Probe(20))->nominalValue);
}

TEST(Type28, NominalValueOfAStructureOf21BytesHasOnlyItsLowByte) {
    EXPECT_EQ(Decode<Type_28>(v2_2_0, Probe(21).Byte(0x14, 40))->nominalValue, 4.0F);
}

TEST(Type28, NominalValueGoesByTheLengthByteNotByTheBytesThatAreThere) {
    EXPECT_FALSE(Decode<Type_28>(v2_2_0, Probe(20).Word(0x14, 1000))->nominalValue);
}

// Tables

TEST(Type28, EveryStatusHasItsName) {
    const std::pair<int, const char*> rows[] = {
        {3, "OK"},
        {4, "Non-critical"},
        {5, "Critical"},
        {6, "Non-recoverable"},
    };
    ExpectNarrowNames(3, rows, [](std::uint8_t code) {
        return Decode<Type_28>(v2_2_0, Probe(0x16).Byte(0x05, static_cast<std::uint8_t>(code << 5)))->status;
    });
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
