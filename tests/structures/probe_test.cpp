#include "structures/probe.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "structures/type_26.h"
#include "structures/type_28.h"
#include "structures/type_29.h"
#include "tests/support/decode.h"

// What the three probes have in common; their units and places are tested with each of them.
namespace SMBIOS::Tests {
namespace {

using Structures::Type_26;
using Structures::Type_28;
using Structures::Type_29;

template <class Type>
constexpr std::uint8_t kTypeNumber = 0;
template <>
constexpr std::uint8_t kTypeNumber<Type_26> = 26;
template <>
constexpr std::uint8_t kTypeNumber<Type_28> = 28;
template <>
constexpr std::uint8_t kTypeNumber<Type_29> = 29;

constexpr std::uint16_t kHandle = 0x0026;

template <class Type>
StructureBuilder ProbeOf(std::uint8_t length) {
    return {kTypeNumber<Type>, length, kHandle};
}

struct TypeName {
    template <class Type>
    static std::string GetName(int) {
        return "Type" + std::to_string(kTypeNumber<Type>);
    }
};

template <class Type>
class Probe : public testing::Test {};

using ProbeTypes = testing::Types<Type_26, Type_28, Type_29>;
TYPED_TEST_SUITE(Probe, ProbeTypes, TypeName);

// What is accepted

TYPED_TEST(Probe, NeedsA220Table) {
    const AcceptanceCase cases[] = {
        {0x16, v2_0_0, kMalformed},
        {0x16, v2_1_0, kMalformed},
        {0x16, v2_2_0, ""},
        {0x16, v2_3_0, ""},
        {0x16, v3_8_0, ""},
    };
    ExpectAcceptance<TypeParam>(kTypeNumber<TypeParam>, cases);
}

TYPED_TEST(Probe, AcceptsEveryLength) {
    const AcceptanceCase cases[] = {
        {0x04, v2_2_0, ""},
        {0x14, v2_2_0, ""},
        {0x15, v2_2_0, ""},
        {0x16, v2_2_0, ""},
        {0xFF, v2_2_0, ""},
    };
    ExpectAcceptance<TypeParam>(kTypeNumber<TypeParam>, cases);
}

TYPED_TEST(Probe, KeepsTheHandle) {
    EXPECT_EQ(Decode<TypeParam>(v2_2_0, ProbeOf<TypeParam>(0x16))->handle, kHandle);
}

TYPED_TEST(Probe, ReportsAnEmptyFormattedAreaAsAnInvalidPointer) {
    EXPECT_EQ(DecodeBytes<TypeParam>(v2_2_0, {})->error, kInvalidPointer);
}

TYPED_TEST(Probe, ReportsThreeBytesAsMalformed) {
    EXPECT_EQ(DecodeBytes<TypeParam>(v2_2_0, {kTypeNumber<TypeParam>, 0x16, 0x11})->error, kMalformed);
}

TYPED_TEST(Probe, ARefusedStructureKeepsOnlyErrorRawBytesAndStrings) {
    const auto record =
        Decode<TypeParam>(v2_1_0, ProbeOf<TypeParam>(0x16).String(0x04, "Core").Byte(0x05, 0x63));
    EXPECT_EQ(record->handle, 0);
    EXPECT_EQ(record->description + record->location + record->status, "");
    EXPECT_FALSE(record->maximumValue);
    EXPECT_FALSE(record->oemDefined);
    EXPECT_EQ(record->rawBytes.size(), 0x16U);
    ASSERT_TRUE(record->strings);
    EXPECT_EQ(*record->strings, std::vector<std::string>{"Core"});
}

TYPED_TEST(Probe, AStructureOf4BytesReadsAsZeros) {
    const auto record = Decode<TypeParam>(v2_2_0, ProbeOf<TypeParam>(0x04));
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

TYPED_TEST(Probe, DescriptionIsTheStringAt04) {
    EXPECT_EQ(Decode<TypeParam>(v2_2_0, ProbeOf<TypeParam>(0x16).String("other").String(0x04, " Core "))
                  ->description,
              "Core");
}

TYPED_TEST(Probe, DescriptionWithoutItsStringIsEmpty) {
    const auto record = Decode<TypeParam>(v2_2_0, ProbeOf<TypeParam>(0x16).String("Core").Byte(0x04, 2));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->description, "");
}

TYPED_TEST(Probe, Byte63IsOkAndProcessor) {
    const auto record = Decode<TypeParam>(v2_2_0, ProbeOf<TypeParam>(0x16).Byte(0x05, 0x63));
    EXPECT_EQ(record->status, "OK");
    EXPECT_EQ(record->location, "Processor");
}

TYPED_TEST(Probe, Byte83IsNonCriticalAndProcessor) {
    const auto record = Decode<TypeParam>(v2_2_0, ProbeOf<TypeParam>(0x16).Byte(0x05, 0x83));
    EXPECT_EQ(record->status, "Non-critical");
    EXPECT_EQ(record->location, "Processor");
}

TYPED_TEST(Probe, OemDefinedIsTheDwordAt10) {
    EXPECT_EQ(Decode<TypeParam>(v2_2_0, ProbeOf<TypeParam>(0x16).Dword(0x10, 0x01020304))->oemDefined,
              0x01020304U);
}

// Readings

TYPED_TEST(Probe, AccuracyIsTheWordAt0EInHundredthsOfAPercent) {
    EXPECT_EQ(Decode<TypeParam>(v2_2_0, ProbeOf<TypeParam>(0x16).Word(0x0E, 4000))->accuracy, 40.0F);
}

TYPED_TEST(Probe, EveryReadingOf8000IsAbsent) {
    const auto record = Decode<TypeParam>(v2_2_0,
                                          ProbeOf<TypeParam>(0x16)
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

TYPED_TEST(Probe, ReadingsOfZeroArePresent) {
    const auto record = Decode<TypeParam>(v2_2_0, ProbeOf<TypeParam>(0x16));
    EXPECT_EQ(record->maximumValue, 0.0F);
    EXPECT_EQ(record->nominalValue, 0.0F);
}

TYPED_TEST(Probe, NominalValueIsAbsentFromAStructureOf20Bytes) {
    EXPECT_FALSE(Decode<TypeParam>(v2_2_0, ProbeOf<TypeParam>(20))->nominalValue);
}

TYPED_TEST(Probe, NominalValueGoesByTheLengthByteNotByTheBytesThatAreThere) {
    EXPECT_FALSE(Decode<TypeParam>(v2_2_0, ProbeOf<TypeParam>(20).Word(0x14, 1000))->nominalValue);
}

TYPED_TEST(Probe, EveryStatusHasItsName) {
    const std::pair<int, const char*> rows[] = {
        {3, "OK"},
        {4, "Non-critical"},
        {5, "Critical"},
        {6, "Non-recoverable"},
    };
    ExpectNarrowNames(3, rows, [](std::uint8_t code) {
        return Decode<TypeParam>(v2_2_0,
                                 ProbeOf<TypeParam>(0x16).Byte(0x05, static_cast<std::uint8_t>(code << 5)))
            ->status;
    });
}

}  // namespace
}  // namespace SMBIOS::Tests
