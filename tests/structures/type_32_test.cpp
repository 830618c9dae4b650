#include "structures/type_32.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/decode.h"

namespace SMBIOS::Tests {
namespace {

using Structures::Type_32;

constexpr std::uint16_t kHandle = 0x0032;

StructureBuilder BootInformation(std::uint8_t length) {
    return {32, length, kHandle};
}

// What is accepted

TEST(Type32, ReportsAnEmptyFormattedAreaAsAnInvalidPointer) {
    EXPECT_EQ(DecodeBytes<Type_32>(v2_1_0, {})->error, kInvalidPointer);
}

TEST(Type32, ReportsThreeBytesAsMalformed) {
    EXPECT_EQ(DecodeBytes<Type_32>(v2_3_0, {32, 0x14, 0x11})->error, kMalformed);
}

TEST(Type32, KeepsTheHandle) {
    EXPECT_EQ(Decode<Type_32>(v2_3_0, BootInformation(0x14))->handle, kHandle);
}

TEST(Type32, NeedsA230Table) {
    const AcceptanceCase cases[] = {
        {0x14, v2_1_0, kMalformed},
        {0x14, v2_2_0, kMalformed},
        {0x14, v2_3_0, ""},
        {0x14, v2_4_0, ""},
        {0x14, v3_8_0, ""},
    };
    ExpectAcceptance<Type_32>(32, cases);
}

TEST(Type32, AcceptsEveryLength) {
    const AcceptanceCase cases[] = {
        {0x04, v2_3_0, ""},
        {0x0B, v2_3_0, ""},
        {0x13, v2_3_0, ""},
        {0x14, v2_3_0, ""},
        {0xFF, v2_3_0, ""},
    };
    ExpectAcceptance<Type_32>(32, cases);
}

TEST(Type32, ARefusedStructureKeepsOnlyErrorRawBytesAndStrings) {
    const auto record = Decode<Type_32>(v2_2_0, BootInformation(0x14).Byte(0x13, 0x08).String("text"));
    EXPECT_EQ(record->handle, 0);
    EXPECT_FALSE(record->bootStatusValue);
    EXPECT_FALSE(record->bootStatusData);
    EXPECT_EQ(record->bootStatus, "");
    EXPECT_EQ(record->rawBytes.size(), 0x14U);
    ASSERT_TRUE(record->strings);
    EXPECT_EQ(*record->strings, std::vector<std::string>{"text"});
}

TEST(Type32, AStructureOf4BytesReadsAsZeros) {
    const auto record = Decode<Type_32>(v2_3_0, BootInformation(0x04));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->bootStatusValue, 0);
    EXPECT_EQ(record->bootStatusData, std::vector<std::uint8_t>(10));
    EXPECT_EQ(record->bootStatus, "No errors detected");
}

// Fields

TEST(Type32, StatusIsTheLastByteOfItsDataNotTheFirst) {
    const auto record = Decode<Type_32>(v2_3_0, BootInformation(0x14).Byte(0x0A, 0x01).Byte(0x13, 0x08));
    EXPECT_EQ(record->bootStatusValue, 0x08);
    EXPECT_EQ(record->bootStatus, "System watchdog timer expired");
}

TEST(Type32, StatusOfAStructureThatEndsAfterTheFirstByteIsZero) {
    const auto record = Decode<Type_32>(v2_3_0, BootInformation(0x0B).Byte(0x0A, 0x05));
    EXPECT_EQ(record->bootStatusValue, 0);
    EXPECT_EQ(record->bootStatus, "No errors detected");
    EXPECT_EQ(record->bootStatusData, (std::vector<std::uint8_t>{5, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(Type32, StatusDataAreTheTenBytesFrom0AOn) {
    const std::vector<std::uint8_t> data = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    const auto record =
        Decode<Type_32>(v2_3_0, BootInformation(0x15).Byte(0x09, 0xAA).Bytes(0x0A, data).Byte(0x14, 0xBB));
    EXPECT_EQ(record->bootStatusData, data);
    EXPECT_EQ(record->bootStatusValue, 10);
}

std::string StatusOf(std::uint8_t code) {
    const auto record = Decode<Type_32>(v2_3_0, BootInformation(0x14).Byte(0x13, code));
    EXPECT_EQ(record->bootStatusValue, code);
    return record->bootStatus;
}

TEST(Type32, Status08IsTheWatchdogAnd64IsUnknownAndC0IsProductSpecific) {
    EXPECT_EQ(StatusOf(0x08), "System watchdog timer expired");
    EXPECT_EQ(StatusOf(0x64), "Unknown");
    EXPECT_EQ(StatusOf(0xC0), "Product-specific");
}

// Tables

TEST(Type32, EveryStandardStatusHasItsName) {
    EXPECT_EQ(StatusOf(0), "No errors detected");
    EXPECT_EQ(StatusOf(1), "No bootable media");
    EXPECT_EQ(StatusOf(2), "\"Normal\" operating system failed to load");
    EXPECT_EQ(StatusOf(3), "Firmware-detected hardware failure");
    EXPECT_EQ(StatusOf(4), "OS-detected hardware failure");
    EXPECT_EQ(StatusOf(5), "User-requested boot");
    EXPECT_EQ(StatusOf(6), "System security violation");
    EXPECT_EQ(StatusOf(7), "Previously requested image");
    EXPECT_EQ(StatusOf(8), "System watchdog timer expired");
}

void ExpectStatusOfCodes(int first, int last, const char* expected) {
    for (int code = first; code <= last; ++code) {
        EXPECT_EQ(StatusOf(static_cast<std::uint8_t>(code)), expected) << "code " << code;
    }
}

TEST(Type32, CodesFrom9To127AreUnknown) {
    ExpectStatusOfCodes(9, 127, "Unknown");
}

TEST(Type32, CodesFrom128To191AreTheVendors) {
    ExpectStatusOfCodes(128, 191, "OEM/vendor-specific");
}

TEST(Type32, CodesFrom192OnAreTheProducts) {
    ExpectStatusOfCodes(192, 255, "Product-specific");
}

}  // namespace
}  // namespace SMBIOS::Tests
