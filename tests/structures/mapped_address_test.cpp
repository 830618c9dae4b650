#include "structures/mapped_address.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "structures/type_19.h"
#include "structures/type_20.h"
#include "tests/support/decode.h"

// What the two mapped-address structures have in common; their other fields are tested with each of them.
namespace SMBIOS::Tests {
namespace {

struct ArrayLayout {
    using Type = Structures::Type_19;
    static constexpr std::uint8_t kType = 19;
    static constexpr std::uint8_t kShortLength = 0x0F;
    static constexpr std::uint8_t kExtendedLength = 0x1F;
    static constexpr std::size_t kExtendedStart = 0x0F;
    static constexpr std::size_t kExtendedEnd = 0x17;
};

struct DeviceLayout {
    using Type = Structures::Type_20;
    static constexpr std::uint8_t kType = 20;
    static constexpr std::uint8_t kShortLength = 0x13;
    static constexpr std::uint8_t kExtendedLength = 0x23;
    static constexpr std::size_t kExtendedStart = 0x13;
    static constexpr std::size_t kExtendedEnd = 0x1B;
};

constexpr std::uint16_t kHandle = 0x0213;

template <class Layout>
StructureBuilder MappedAddressOf(std::uint8_t length) {
    return {Layout::kType, length, kHandle};
}

/// A structure that has both extended addresses, whatever its length byte says.
template <class Layout>
StructureBuilder ExtendedAddresses(std::uint32_t starting, std::uint32_t ending) {
    return MappedAddressOf<Layout>(Layout::kShortLength)
        .Dword(0x04, starting)
        .Dword(0x08, ending)
        .Qword(Layout::kExtendedStart, 0x0000000100000000)
        .Qword(Layout::kExtendedEnd, 0x0123456789ABCDEF);
}

struct LayoutName {
    template <class Layout>
    static std::string GetName(int) {
        return "Type" + std::to_string(Layout::kType);
    }
};

template <class Layout>
class MappedAddress : public testing::Test {};

using Layouts = testing::Types<ArrayLayout, DeviceLayout>;
TYPED_TEST_SUITE(MappedAddress, Layouts, LayoutName);

// What is accepted

TYPED_TEST(MappedAddress, RefusesEveryStructureOfA200Table) {
    const auto record =
        Decode<typename TypeParam::Type>(v2_0_0, MappedAddressOf<TypeParam>(TypeParam::kShortLength));
    EXPECT_EQ(record->error, kMalformed);
    EXPECT_EQ(record->handle, 0);
}

TYPED_TEST(MappedAddress, AcceptsEveryVersionFrom210On) {
    const auto record =
        Decode<typename TypeParam::Type>(v2_1_0, MappedAddressOf<TypeParam>(TypeParam::kShortLength));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->handle, kHandle);
    EXPECT_EQ(
        Decode<typename TypeParam::Type>(v3_8_0, MappedAddressOf<TypeParam>(TypeParam::kShortLength))->error,
        "");
}

TYPED_TEST(MappedAddress, AcceptsEveryLengthFromTheHeaderOn) {
    const AcceptanceCase cases[] = {
        {0x03, v2_1_0, kMalformed},
        {0x04, v2_1_0, ""},
        {0x05, v2_1_0, ""},
        {0xFF, v2_1_0, ""},
        {0xFF, v3_8_0, ""},
    };
    ExpectAcceptance<typename TypeParam::Type>(TypeParam::kType, cases);
}

TYPED_TEST(MappedAddress, ReportsAnEmptyFormattedAreaAsAnInvalidPointer) {
    EXPECT_EQ(DecodeBytes<typename TypeParam::Type>(v2_8_0, {})->error, kInvalidPointer);
}

TYPED_TEST(MappedAddress, ReportsThreeBytesAsMalformed) {
    EXPECT_EQ(DecodeBytes<typename TypeParam::Type>(v2_8_0, {TypeParam::kType, 0x1F, 0x13})->error,
              kMalformed);
}

TYPED_TEST(MappedAddress, AnAcceptedStructureKeepsItsStrings) {
    const auto record = Decode<typename TypeParam::Type>(
        v2_8_0, MappedAddressOf<TypeParam>(TypeParam::kExtendedLength).String("text"));
    ASSERT_TRUE(record->strings);
    EXPECT_EQ(*record->strings, std::vector<std::string>{"text"});
}

TYPED_TEST(MappedAddress, AnAcceptedStructureWithoutStringsHasAnEmptyStringSet) {
    const auto record =
        Decode<typename TypeParam::Type>(v2_8_0, MappedAddressOf<TypeParam>(TypeParam::kExtendedLength));
    ASSERT_TRUE(record->strings);
    EXPECT_TRUE(record->strings->empty());
}

// Addresses

TYPED_TEST(MappedAddress, AddressesAreTextsOfTheDwordsAt04And08) {
    const auto record = Decode<typename TypeParam::Type>(
        v2_1_0,
        MappedAddressOf<TypeParam>(TypeParam::kShortLength).Dword(0x04, 0x00000400).Dword(0x08, 0x12345678));
    EXPECT_EQ(record->startingAddress, "0x0400");
    EXPECT_EQ(record->endingAddress, "0x12345678");
}

TYPED_TEST(MappedAddress, AddressesOfZeroAreValues) {
    const auto record =
        Decode<typename TypeParam::Type>(v2_1_0, MappedAddressOf<TypeParam>(TypeParam::kShortLength));
    EXPECT_EQ(record->startingAddress, "0x0000");
    EXPECT_EQ(record->endingAddress, "0x0000");
}

TYPED_TEST(MappedAddress, AddressesOtherThanFFFFFFFFIgnoreTheExtendedOnes) {
    const auto record =
        Decode<typename TypeParam::Type>(v3_0_0, ExtendedAddresses<TypeParam>(0x00000400, 0xFFFFFFFE));
    EXPECT_EQ(record->startingAddress, "0x0400");
    EXPECT_EQ(record->endingAddress, "0xFFFFFFFE");
}

TYPED_TEST(MappedAddress, AddressesOfFFFFFFFFTakeTheExtendedOnesFrom270On) {
    for (const auto version : {v2_7_0, v2_7_1, v3_0_0}) {
        const auto record =
            Decode<typename TypeParam::Type>(version, ExtendedAddresses<TypeParam>(0xFFFFFFFF, 0xFFFFFFFF));
        EXPECT_EQ(record->startingAddress, "0x100000000");
        EXPECT_EQ(record->endingAddress, "0x123456789ABCDEF");
    }
}

TYPED_TEST(MappedAddress, AddressesOfFFFFFFFFAreEmptyBefore270) {
    for (const auto version : {v2_6_0, v2_6_1}) {
        const auto record =
            Decode<typename TypeParam::Type>(version, ExtendedAddresses<TypeParam>(0xFFFFFFFF, 0xFFFFFFFF));
        EXPECT_EQ(record->error, "");
        EXPECT_EQ(record->startingAddress, "");
        EXPECT_EQ(record->endingAddress, "");
    }
}

TYPED_TEST(MappedAddress, EachAddressIsExtendedOnItsOwn) {
    const auto record =
        Decode<typename TypeParam::Type>(v3_0_0, ExtendedAddresses<TypeParam>(0x00000400, 0xFFFFFFFF));
    EXPECT_EQ(record->startingAddress, "0x0400");
    EXPECT_EQ(record->endingAddress, "0x123456789ABCDEF");
}

TYPED_TEST(MappedAddress, AShortExtendedAddressHasAtLeastEightDigits) {
    const auto record =
        Decode<typename TypeParam::Type>(v2_7_0,
                                         MappedAddressOf<TypeParam>(TypeParam::kExtendedLength)
                                             .Dword(0x04, 0xFFFFFFFF)
                                             .Qword(TypeParam::kExtendedStart, 0x12));
    EXPECT_EQ(record->startingAddress, "0x00000012");
}

TYPED_TEST(MappedAddress, ExtendedAddressesOfAllOnesAreValues) {
    const auto record =
        Decode<typename TypeParam::Type>(v2_7_0,
                                         MappedAddressOf<TypeParam>(TypeParam::kExtendedLength)
                                             .Dword(0x08, 0xFFFFFFFF)
                                             .Qword(TypeParam::kExtendedEnd, 0xFFFFFFFFFFFFFFFF));
    EXPECT_EQ(record->endingAddress, "0xFFFFFFFFFFFFFFFF");
}

TYPED_TEST(MappedAddress, ExtendedAddressesPastAShortStructureReadAsZero) {
    const auto record = Decode<typename TypeParam::Type>(
        v2_7_0,
        MappedAddressOf<TypeParam>(TypeParam::kShortLength).Dword(0x04, 0xFFFFFFFF).Dword(0x08, 0xFFFFFFFF));
    EXPECT_EQ(record->startingAddress, "0x00000000");
    EXPECT_EQ(record->endingAddress, "0x00000000");
}

}  // namespace
}  // namespace SMBIOS::Tests
