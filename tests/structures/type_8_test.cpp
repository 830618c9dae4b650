#include "structures/type_8.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/support/decode.h"

namespace SMBIOS::Tests {
namespace {

using Structures::Type_8;

constexpr std::uint16_t kHandle = 0x0011;

StructureBuilder Port(std::uint8_t length) {
    return {8, length, kHandle};
}

// What is accepted

TEST(Type8, AcceptsTheShortestStructureInEveryTable) {
    const auto record = Decode<Type_8>(v2_0_0, Port(0x09));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->handle, kHandle);
}

TEST(Type8, AcceptsLengthsFrom9OnInEveryTable) {
    const AcceptanceCase cases[] = {
        {0x08, v2_0_0, kMalformed},
        {0x09, v2_0_0, ""},
        {0x0A, v2_0_0, ""},
        {0xFF, v2_0_0, ""},
        {0x08, v3_8_0, kMalformed},
        {0x09, v3_8_0, ""},
        {0x0A, v3_8_0, ""},
        {0xFF, v3_8_0, ""},
    };
    ExpectAcceptance<Type_8>(8, cases);
}

TEST(Type8, ReportsAnEmptyFormattedAreaAsAnInvalidPointer) {
    EXPECT_EQ(DecodeBytes<Type_8>(v2_8_0, {})->error, kInvalidPointer);
}

TEST(Type8, ReportsThreeBytesAsMalformed) {
    EXPECT_EQ(DecodeBytes<Type_8>(v2_8_0, {8, 0x09, 0x11})->error, kMalformed);
}

TEST(Type8, ARefusedStructureKeepsOnlyErrorRawBytesAndStrings) {
    const auto record = Decode<Type_8>(v2_8_0, Port(0x08).Byte(0x05, 1).String(0x04, "J1"));
    EXPECT_EQ(record->handle, 0);
    EXPECT_FALSE(record->internalConnectorType);
    EXPECT_FALSE(record->externalConnectorType);
    EXPECT_FALSE(record->portType);
    EXPECT_EQ(record->internalReferenceDesignator, "");
    EXPECT_EQ(record->rawBytes.size(), 8U);
    ASSERT_TRUE(record->strings);
    EXPECT_EQ(*record->strings, std::vector<std::string>{"J1"});
}

TEST(Type8, ARefusedStructureWithoutStringsHasNoStringSet) {
    EXPECT_FALSE(Decode<Type_8>(v2_8_0, Port(0x08))->strings);
}

TEST(Type8, AnAcceptedStructureWithoutStringsHasAnEmptyStringSet) {
    const auto record = Decode<Type_8>(v2_0_0, Port(0x09));
    ASSERT_TRUE(record->strings);
    EXPECT_TRUE(record->strings->empty());
}

// Fields

TEST(Type8, CodesAreTheBytesAt0507And08) {
    const auto record = Decode<Type_8>(v2_0_0, Port(0x09).Byte(0x05, 0x16).Byte(0x07, 0x0B).Byte(0x08, 0x1F));
    EXPECT_EQ(record->internalConnectorType, 0x16);
    EXPECT_EQ(record->externalConnectorType, 0x0B);
    EXPECT_EQ(record->portType, 0x1F);
    EXPECT_EQ(record->internalConnectorTypeName, "On Board IDE");
    EXPECT_EQ(record->externalConnectorTypeName, "RJ-45");
    EXPECT_EQ(record->portTypeName, "Network Port");
}

TEST(Type8, DesignatorsAreTheStringsAt04And06) {
    const auto record = Decode<Type_8>(v2_0_0, Port(0x09).String(0x04, " J1A1 ").String(0x06, "LAN 1"));
    EXPECT_EQ(record->internalReferenceDesignator, "J1A1");
    EXPECT_EQ(record->externalReferenceDesignator, "LAN 1");
}

TEST(Type8, AStringNumberBeyondTheStringSetIsAnEmptyText) {
    const auto record = Decode<Type_8>(v2_0_0, Port(0x09).String(0x04, "J1A1").Byte(0x06, 2));
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->externalReferenceDesignator, "");
}

TEST(Type8, ConnectorCodeFFIsPresentWithoutAName) {
    const auto record = Decode<Type_8>(v2_0_0, Port(0x09).Byte(0x05, 0xFF).Byte(0x07, 0xFF));
    EXPECT_EQ(record->internalConnectorType, 0xFF);
    EXPECT_EQ(record->externalConnectorType, 0xFF);
    EXPECT_EQ(record->internalConnectorTypeName, "");
    EXPECT_EQ(record->externalConnectorTypeName, "");
}

TEST(Type8, AnAreaCutShortAfterItsHeaderReadsAsZero) {
    const auto record = DecodeBytes<Type_8>(v3_8_0, {8, 0x09, 0x11, 0x00});
    EXPECT_EQ(record->error, "");
    EXPECT_EQ(record->internalConnectorType, 0);
    EXPECT_EQ(record->externalConnectorType, 0);
    EXPECT_EQ(record->portType, 0);
    EXPECT_EQ(record->portTypeName, "None");
    EXPECT_EQ(record->internalReferenceDesignator, "");
}

// Tables

TEST(Type8, EveryConnectorTypeHasItsNameOnBothSides) {
    const std::pair<int, const char*> rows[] = {
        {0x00, "None"},
        {0x01, "Centronics"},
        {0x02, "Mini Centronics"},
        {0x03, "Proprietary"},
        {0x04, "DB-25 pin male"},
        {0x05, "DB-25 pin female"},
        {0x06, "DB-15 pin male"},
        {0x07, "DB-15 pin female"},
        {0x08, "DB-9 pin male"},
        {0x09, "DB-9 pin female"},
        {0x0A, "RJ-11"},
        {0x0B, "RJ-45"},
        {0x0C, "50-pin MiniSCSI"},
        {0x0D, "Mini-DIN"},
        {0x0E, "Micro-DIN"},
        {0x0F, "PS/2"},
        {0x10, "Infrared"},
        {0x11, "Vantor-HIL"},
        {0x12, "Access Bus (USB)"},
        {0x13, "SSA SCSI"},
        {0x14, "Circular DIN-8 male"},
        {0x15, "Circular DIN-8 female"},
        {0x16, "On Board IDE"},
        {0x17, "On Board Floppy"},
        {0x18, "9-pin Dual Inline (pin 10 cut)"},
        {0x19, "25-pin Dual Inline (pin 26 cut)"},
        {0x1A, "50-pin Dual Inline"},
        {0x1B, "68-pin Dual Inline"},
        {0x1C, "On Board Sound Input from CD-ROM"},
        {0x1D, "Mini-Centronics Type-14"},
        {0x1E, "Mini-Centronics Type-26"},
        {0x1F, "Mini-jack (headphones)"},
        {0x20, "BNC"},
        {0x21, "1394"},
        {0x22, "SAS/SATA Plug Receptacle"},
        {0x23, "USB Type-C Receptacle"},
        {0xA0, "PC-98"},
        {0xA1, "PC-98Hireso"},
        {0xA2, "PC-H98"},
        {0xA3, "PC-98Note"},
        {0xA4, "PC-98Full"},
    };
    ExpectNames(rows, [](std::uint8_t code) {
        const auto record = Decode<Type_8>(v2_0_0, Port(0x09).Byte(0x05, code));
        EXPECT_EQ(record->internalConnectorType, code);
        return record->internalConnectorTypeName;
    });
    ExpectNames(rows, [](std::uint8_t code) {
        const auto record = Decode<Type_8>(v2_0_0, Port(0x09).Byte(0x07, code));
        EXPECT_EQ(record->externalConnectorType, code);
        return record->externalConnectorTypeName;
    });
}

TEST(Type8, EveryPortTypeHasItsName) {
    const std::pair<int, const char*> rows[] = {
        {0x00, "None"},
        {0x01, "Parallel Port XT/AT Compatible"},
        {0x02, "Parallel Port PS/2"},
        {0x03, "Parallel Port ECP"},
        {0x04, "Parallel Port EPP"},
        {0x05, "Parallel Port ECP/EPP"},
        {0x06, "Serial Port XT/AT Compatible"},
        {0x07, "Serial Port 16450 Compatible"},
        {0x08, "Serial Port 16550 Compatible"},
        {0x09, "Serial Port 16550A Compatible"},
        {0x0A, "SCSI Port"},
        {0x0B, "MIDI Port"},
        {0x0C, "Joy Stick Port"},
        {0x0D, "Keyboard Port"},
        {0x0E, "Mouse Port"},
        {0x0F, "SSA SCSI"},
        {0x10, "USB"},
        {0x11, "FireWire (IEEE P1394)"},
        {0x12, "PCMCIA Type I"},
        {0x13, "PCMCIA Type II"},
        {0x14, "PCMCIA Type III"},
        {0x15, "Card bus"},
        {0x16, "Access Bus Port"},
        {0x17, "SCSI II"},
        {0x18, "SCSI Wide"},
        {0x19, "PC-98"},
        {0x1A, "PC-98-Hireso"},
        {0x1B, "PC-H98"},
        {0x1C, "Video Port"},
        {0x1D, "Audio Port"},
        {0x1E, "Modem Port"},
        {0x1F, "Network Port"},
        {0x20, "SATA"},
        {0x21, "SAS"},
        {0x22, "MFDP (Multi-Function Display Port)"},
        {0x23, "Thunderbolt"},
        {0xA0, "8251 Compatible"},
        {0xA1, "8251 FIFO Compatible"},
    };
    ExpectNames(rows, [](std::uint8_t code) {
        const auto record = Decode<Type_8>(v2_0_0, Port(0x09).Byte(0x08, code));
        EXPECT_EQ(record->portType, code);
        return record->portTypeName;
    });
}

}  // namespace
}  // namespace SMBIOS::Tests
