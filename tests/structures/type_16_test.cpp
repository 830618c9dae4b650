#include "structures/type_16.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/decode.h"

namespace SMBIOS::Tests {
namespace {

using Structures::Type_16;

using Manager::SmbiosVersionIndex;

constexpr std::uint16_t kHandle = 0x1000;

StructureBuilder MemoryArray(std::uint8_t length) {
    return {16, length, kHandle};
}

// What is accepted

TEST(Type16, RefusesEveryStructureOfA200Table) {
    const auto record = Decode<Type_16>(v2_0_0, MemoryArray(0x0F));
    EXPECT_EQ(record->error, kMalformed);
    EXPECT_EQ(record->handle, 0);
}

TEST(Type16, AcceptsTheShortestStructureFrom210On) {
    const auto record = Decode<Type_16>(v2_1_0, MemoryArray(0x0F));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->handle, kHandle);
}

TEST(Type16, RefusesALengthBelow15) {
    const AcceptanceCase cases[] = {
        {0x0E, v2_1_0, kMalformed}, {0x0F, v2_1_0, ""}, {0x10, v2_1_0, ""}, {0x0E, v3_8_0, kMalformed}};
    ExpectAcceptance<Type_16>(16, cases);
}

TEST(Type16, ReportsAnEmptyFormattedAreaAsAnInvalidPointer) {
    EXPECT_EQ(DecodeBytes<Type_16>(v2_8_0, {})->error, kInvalidPointer);
}

TEST(Type16, ReportsThreeBytesAsMalformed) {
    EXPECT_EQ(DecodeBytes<Type_16>(v2_8_0, {16, 0x17, 0x00})->error, kMalformed);
}

TEST(Type16, RefusesALengthOf23Before270) {
    const char* const kNewerStructure = "v2.7.0 structure in a v2.6.1 BIOS or older";
    const AcceptanceCase cases[] = {
        {0x16, v2_1_0, ""},
        {0x17, v2_1_0, kNewerStructure},
        {0x16, v2_6_1, ""},
        {0x16, v2_7_0, ""},
        {0x17, v2_6_1, kNewerStructure},
        {0x17, v2_7_0, ""},
        {0x17, v2_7_1, ""},
        {0x17, v2_6_0, kNewerStructure},
        {0x17, v3_8_0, ""},
    };
    ExpectAcceptance<Type_16>(16, cases);
}

TEST(Type16, RefusesALengthAbove23InEveryVersion) {
    const char* const kUnsupported = "Unsupported BIOS structure.";
    const AcceptanceCase cases[] = {
        {0x18, v2_1_0, kUnsupported},
        {0x18, v2_6_1, kUnsupported},
        {0x18, v2_7_0, kUnsupported},
        {0x18, v3_8_0, kUnsupported},
        {0xFF, v2_1_0, kUnsupported},
        {0xFF, v3_8_0, kUnsupported},
    };
    ExpectAcceptance<Type_16>(16, cases);
}

TEST(Type16, A200TableIsMalformedWhateverTheLength) {
    const AcceptanceCase cases[] = {{0x17, v2_0_0, kMalformed}, {0x18, v2_0_0, kMalformed}};
    ExpectAcceptance<Type_16>(16, cases);
}

TEST(Type16, ARefusedStructureKeepsOnlyErrorAndRawBytes) {
    const auto record =
        Decode<Type_16>(v2_8_0, MemoryArray(0x18).Byte(0x04, 3).Dword(0x07, 1).String("text"));
    EXPECT_EQ(record->handle, 0);
    EXPECT_FALSE(record->location);
    EXPECT_FALSE(record->maximumCapacity);
    EXPECT_EQ(record->locationName, "");
    EXPECT_EQ(record->rawBytes.size(), 24U);
    EXPECT_FALSE(record->strings);
}

TEST(Type16, AnAcceptedStructureKeepsItsStrings) {
    const auto record = Decode<Type_16>(v2_8_0, MemoryArray(0x17).String("text"));
    ASSERT_TRUE(record->strings);
    EXPECT_EQ(*record->strings, std::vector<std::string>{"text"});
}

TEST(Type16, AnAcceptedStructureWithoutStringsHasAnEmptyStringSet) {
    const auto record = Decode<Type_16>(v2_8_0, MemoryArray(0x17));
    ASSERT_TRUE(record->strings);
    EXPECT_TRUE(record->strings->empty());
}

// Fields

TEST(Type16, LocationUseAndErrorCorrectionAreTheBytesAt04To06) {
    const auto record =
        Decode<Type_16>(v2_1_0, MemoryArray(0x0F).Byte(0x04, 0xA4).Byte(0x05, 0x07).Byte(0x06, 0x06));
    EXPECT_EQ(record->location, 0xA4);
    EXPECT_EQ(record->use, 0x07);
    EXPECT_EQ(record->memoryErrorCorrection, 0x06);
}

TEST(Type16, CodesOfZeroArePresentWithoutAName) {
    const auto record = Decode<Type_16>(v2_1_0, MemoryArray(0x0F));
    EXPECT_EQ(record->location, 0);
    EXPECT_EQ(record->use, 0);
    EXPECT_EQ(record->memoryErrorCorrection, 0);
    EXPECT_EQ(record->locationName + record->useName + record->memoryErrorCorrectionName, "");
}

TEST(Type16, ErrorInformationHandleIsTheWordAt0B) {
    EXPECT_EQ(Decode<Type_16>(v2_1_0, MemoryArray(0x0F).Word(0x0B, 0x1234))->memoryErrorInformationHandle,
              0x1234);
}

TEST(Type16, ErrorInformationHandlesFFFEAndFFFFAreValues) {
    EXPECT_EQ(Decode<Type_16>(v2_1_0, MemoryArray(0x0F).Word(0x0B, 0xFFFE))->memoryErrorInformationHandle,
              0xFFFE);
    EXPECT_EQ(Decode<Type_16>(v2_1_0, MemoryArray(0x0F).Word(0x0B, 0xFFFF))->memoryErrorInformationHandle,
              0xFFFF);
}

TEST(Type16, NumberOfMemoryDevicesIsTheWordAt0D) {
    EXPECT_EQ(Decode<Type_16>(v2_1_0, MemoryArray(0x0F).Word(0x0D, 0x0102))->numberOfMemoryDevices, 0x0102);
}

TEST(Type16, NumberOfMemoryDevicesZeroIsPresent) {
    EXPECT_EQ(Decode<Type_16>(v2_1_0, MemoryArray(0x0F))->numberOfMemoryDevices, 0);
}

// Maximum capacity

std::optional<std::uint64_t> MaximumCapacityOf(SmbiosVersionIndex version,
                                               std::uint32_t capacity,
                                               std::uint64_t extended) {
    const std::uint8_t length = version < v2_7_0 ? 0x16 : 0x17;
    const StructureBuilder array = MemoryArray(length).Dword(0x07, capacity).Qword(0x0F, extended);
    return Decode<Type_16>(version, array)->maximumCapacity;
}

TEST(Type16, MaximumCapacityIsTheDwordAt07) {
    EXPECT_EQ(MaximumCapacityOf(v2_1_0, 0x01020304, 0), 0x01020304U);
    EXPECT_EQ(MaximumCapacityOf(v3_8_0, 0x01020304, 0), 0x01020304U);
}

TEST(Type16, MaximumCapacityZeroTakesTheExtendedOneFrom270On) {
    EXPECT_EQ(MaximumCapacityOf(v2_7_0, 0, 0x0000000400000000), 17179869184U);
    EXPECT_EQ(MaximumCapacityOf(v2_7_1, 0, 0x0102030405060708), 0x0102030405060708U);
}

TEST(Type16, MaximumCapacityZeroIsAbsentBefore270) {
    EXPECT_EQ(MaximumCapacityOf(v2_6_0, 0, 0x0000000400000000), std::nullopt);
    EXPECT_EQ(MaximumCapacityOf(v2_6_1, 0, 0x0000000400000000), std::nullopt);
}

TEST(Type16, MaximumCapacityZeroWithAnExtendedOneOfZeroIsZero) {
    EXPECT_EQ(MaximumCapacityOf(v2_7_0, 0, 0), 0U);
}

TEST(Type16, MaximumCapacity80000000IsAValueWhateverTheExtendedOneHolds) {
    EXPECT_EQ(MaximumCapacityOf(v2_7_0, 0x80000000, 0x0000000400000000), 2147483648U);
    EXPECT_EQ(MaximumCapacityOf(v2_7_0, 0x80000000, 0), 2147483648U);
    EXPECT_EQ(MaximumCapacityOf(v2_6_1, 0x80000000, 0), 2147483648U);
    EXPECT_EQ(MaximumCapacityOf(v3_8_0, 0x80000000, 0xFFFFFFFFFFFFFFFF), 2147483648U);
}

TEST(Type16, MaximumCapacityOneIsOne) {
    EXPECT_EQ(MaximumCapacityOf(v2_7_0, 1, 0x0000000400000000), 1U);
}

TEST(Type16, MaximumCapacityFFFFFFFFIsAValue) {
    EXPECT_EQ(MaximumCapacityOf(v2_7_0, 0xFFFFFFFF, 5), 4294967295U);
}

TEST(Type16, FieldsPastAShortStructureReadAsZero) {
    const auto record = DecodeBytes<Type_16>(v2_7_0, {16, 0x0F, 0x00, 0x10});
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->location, 0);
    EXPECT_EQ(record->numberOfMemoryDevices, 0);
    EXPECT_EQ(record->memoryErrorInformationHandle, 0);
    EXPECT_EQ(record->maximumCapacity, 0U);
}

// Tables

TEST(Type16, EveryLocationHasItsName) {
    const std::pair<int, const char*> rows[] = {
        {0x03, "System board or motherboard"},
        {0x04, "ISA add-on card"},
        {0x05, "EISA add-on card"},
        {0x06, "PCI add-on card"},
        {0x07, "MCA add-on card"},
        {0x08, "PCMCIA add-on card"},
        {0x09, "Proprietary add-on card"},
        {0x0A, "NuBus"},
        {0xA0, "PC-98/C20 add-on card"},
        {0xA1, "PC-98/C24 add-on card"},
        {0xA2, "PC-98/E add-on card"},
        {0xA3, "PC-98/Local bus add-on card"},
        {0xA4, "CXL add-on card"},
    };
    ExpectNames(rows, [](std::uint8_t code) {
        const auto record = Decode<Type_16>(v2_1_0, MemoryArray(0x0F).Byte(0x04, code));
        EXPECT_EQ(record->location, code);
        return record->locationName;
    });
}

TEST(Type16, EveryUseHasItsName) {
    const std::pair<int, const char*> rows[] = {
        {0x03, "System memory"},
        {0x04, "Video memory"},
        {0x05, "Flash memory"},
        {0x06, "Non-volatile RAM"},
        {0x07, "Cache memory"},
    };
    ExpectNames(rows, [](std::uint8_t code) {
        const auto record = Decode<Type_16>(v2_1_0, MemoryArray(0x0F).Byte(0x05, code));
        EXPECT_EQ(record->use, code);
        return record->useName;
    });
}

TEST(Type16, EveryErrorCorrectionHasItsName) {
    const std::pair<int, const char*> rows[] = {
        {0x03, "None"},
        {0x04, "Parity"},
        {0x05, "Single-bit ECC"},
        {0x06, "Multi-bit ECC"},
        {0x07, "CRC"},
    };
    ExpectNames(rows, [](std::uint8_t code) {
        const auto record = Decode<Type_16>(v2_1_0, MemoryArray(0x0F).Byte(0x06, code));
        EXPECT_EQ(record->memoryErrorCorrection, code);
        return record->memoryErrorCorrectionName;
    });
}

}  // namespace
}  // namespace SMBIOS::Tests
