#include "structures/type_29.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/support/decode.h"
#include "tests/support/narrow_names.h"

namespace SMBIOS::Tests {
namespace {

using Structures::Type_29;

constexpr std::uint16_t kHandle = 0x0029;

StructureBuilder Probe(std::uint8_t length) {
    return {29, length, kHandle};
}

// What is accepted

TEST(Type29, NeedsA220Table) {
    const AcceptanceCase cases[] = {
        {0x16, v2_0_0, kMalformed},
        {0x16, v2_1_0, kMalformed},
        {0x16, v2_2_0, ""},
        {0x16, v2_3_0, ""},
        {0x16, v3_8_0, ""},
    };
    ExpectAcceptance<Type_29>(29, cases);
}

TEST(Type29, AcceptsEveryLength) {
    const AcceptanceCase cases[] = {
        {0x04, v2_2_0, ""},
        {0x14, v2_2_0, ""},
        {0x15, v2_2_0, ""},
        {0x16, v2_2_0, ""},
        {0xFF, v2_2_0, ""},
    };
    ExpectAcceptance<Type_29>(29, cases);
}

TEST(Type29, KeepsTheHandle) {
    EXPECT_EQ(Decode<Type_29>(v2_2_0, Probe(0x16))->handle, kHandle);
}

TEST(Type29, ReportsAnEmptyFormattedAreaAsAnInvalidPointer) {
    EXPECT_EQ(DecodeBytes<Type_29>(v2_2_0, {})->error, kInvalidPointer);
}

TEST(Type29, ReportsThreeBytesAsMalformed) {
    EXPECT_EQ(DecodeBytes<Type_29>(v2_2_0, {29, 0x16, 0x11})->error, kMalformed);
}

TEST(Type29, ARefusedStructureKeepsOnlyErrorRawBytesAndStrings) {
    const auto record = Decode<Type_29>(v2_1_0, Probe(0x16).String(0x04, "Core current").Byte(0x05, 0x63));
    EXPECT_EQ(record->handle, 0);
    EXPECT_EQ(record->description + record->location + record->status, "");
    EXPECT_FALSE(record->maximumValue);
    EXPECT_FALSE(record->oemDefined);
    EXPECT_EQ(record->rawBytes.size(), 0x16U);
    ASSERT_TRUE(record->strings);
    EXPECT_EQ(*record->strings, std::vector<std::string>{"Core current"});
}

TEST(Type29, AStructureOf4BytesReadsAsZeros) {
    const auto record = Decode<Type_29>(v2_2_0, Probe(0x04));
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

TEST(Type29, DescriptionIsTheStringAt04) {
    EXPECT_EQ(
        Decode<Type_29>(v2_2_0, Probe(0x16).String("other").String(0x04, " Core current "))->description,
        "Core current");
}

TEST(Type29, DescriptionWithoutItsStringIsEmpty) {
    const auto record = Decode<Type_29>(v2_2_0, Probe(0x16).String("Core current").Byte(0x04, 2));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->description, "");
}

TEST(Type29, Byte63IsOkAndProcessor) {
    const auto record = Decode<Type_29>(v2_2_0, Probe(0x16).Byte(0x05, 0x63));
    EXPECT_EQ(record->status, "OK");
    EXPECT_EQ(record->location, "Processor");
}

TEST(Type29, Byte83IsNonCriticalAndProcessor) {
    const auto record = Decode<Type_29>(v2_2_0, Probe(0x16).Byte(0x05, 0x83));
    EXPECT_EQ(record->status, "Non-critical");
    EXPECT_EQ(record->location, "Processor");
}

TEST(Type29, OemDefinedIsTheDwordAt10) {
    EXPECT_EQ(Decode<Type_29>(v2_2_0, Probe(0x16).Dword(0x10, 0x01020304))->oemDefined, 0x01020304U);
}

// Readings

TEST(Type29, MaximumIsTheWordAt06InMilliamperes) {
    EXPECT_EQ(Decode<Type_29>(v2_2_0, Probe(0x16).Word(0x06, 0x0102))->maximumValue, 258.0F);
}

TEST(Type29, MinimumIsTheWordAt08InMilliamperes) {
    EXPECT_EQ(Decode<Type_29>(v2_2_0, Probe(0x16).Word(0x08, 0x0304))->minimumValue, 772.0F);
}

TEST(Type29, ResolutionIsTheWordAt0AInTenths) {
    EXPECT_EQ(Decode<Type_29>(v2_2_0, Probe(0x16).Word(0x0A, 0x000A))->resolution, 1.0F);
    EXPECT_EQ(Decode<Type_29>(v2_2_0, Probe(0x16).Word(0x0A, 3000))->resolution, 300.0F);
}

TEST(Type29, ToleranceIsTheWordAt0CInMilliamperes) {
    EXPECT_EQ(Decode<Type_29>(v2_2_0, Probe(0x16).Word(0x0C, 0x0506))->tolerance, 1286.0F);
}

TEST(Type29, AccuracyIsTheWordAt0EInHundredthsOfAPercent) {
    EXPECT_EQ(Decode<Type_29>(v2_2_0, Probe(0x16).Word(0x0E, 4000))->accuracy, 40.0F);
}

TEST(Type29, NominalValueIsTheWordAt14InMilliamperes) {
    EXPECT_EQ(Decode<Type_29>(v2_2_0, Probe(0x16).Word(0x14, 0x0708))->nominalValue, 1800.0F);
}

TEST(Type29, ReadingsAreNeverNegative) {
    const auto record = Decode<Type_29>(v2_2_0, Probe(0x16).Word(0x06, 0xFFFF).Word(0x08, 0x8001));
    EXPECT_EQ(record->maximumValue, 65535.0F);
    EXPECT_EQ(record->minimumValue, 32769.0F);
}

TEST(Type29, ReadingsAreProductsOfSinglePrecisionNumbers) {
    // 0.1F is above a tenth and 0.01F below a hundredth, so these products are not the floats 0.9F and 0.05F.
    const auto record = Decode<Type_29>(v2_2_0, Probe(0x16).Word(0x0A, 9).Word(0x0E, 5));
    EXPECT_EQ(record->resolution, 0.90000004F);
    EXPECT_EQ(record->accuracy, 0.049999997F);
}

TEST(Type29, EveryReadingOf8000IsAbsent) {
    const auto record = Decode<Type_29>(v2_2_0,
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

TEST(Type29, ReadingsOfZeroArePresent) {
    const auto record = Decode<Type_29>(v2_2_0, Probe(0x16));
    EXPECT_EQ(record->maximumValue, 0.0F);
    EXPECT_EQ(record->nominalValue, 0.0F);
}

TEST(Type29, NominalValueIsAbsentFromAStructureOf20Bytes) {
    EXPECT_FALSE(Decode<Type_29>(v2_2_0, Probe(20))->nominalValue);
}

TEST(Type29, NominalValueOfAStructureOf21BytesHasOnlyItsLowByte) {
    EXPECT_EQ(Decode<Type_29>(v2_2_0, Probe(21).Byte(0x14, 40))->nominalValue, 40.0F);
}

TEST(Type29, NominalValueGoesByTheLengthByteNotByTheBytesThatAreThere) {
    EXPECT_FALSE(Decode<Type_29>(v2_2_0, Probe(20).Word(0x14, 1000))->nominalValue);
}

// Tables

TEST(Type29, EveryStatusHasItsName) {
    const std::pair<int, const char*> rows[] = {
        {3, "OK"},
        {4, "Non-critical"},
        {5, "Critical"},
        {6, "Non-recoverable"},
    };
    ExpectNarrowNames(3, rows, [](std::uint8_t code) {
        return Decode<Type_29>(v2_2_0, Probe(0x16).Byte(0x05, static_cast<std::uint8_t>(code << 5)))->status;
    });
}

TEST(Type29, EveryLocationHasItsName) {
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
        return Decode<Type_29>(v2_2_0, Probe(0x16).Byte(0x05, code))->location;
    });
}

}  // namespace
}  // namespace SMBIOS::Tests
