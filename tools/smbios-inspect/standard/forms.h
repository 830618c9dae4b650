#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "smbios-inspect/standard/description.h"

// The forms a field can have. A type names them in its table; what only one type has it reads with `By`.
namespace SMBIOS::Inspect::Standard {

inline constexpr std::string_view kOutOfSpec = "<OUT OF SPEC>";
inline constexpr std::string_view kUnknown = "Unknown";
inline constexpr std::string_view kNotSpecified = "Not Specified";

/// Numbers that stand for words in many fields.
inline constexpr auto kUnknownIfZero = WordsOf({{0x00, "Unknown"}});
inline constexpr auto kUnknownIfByteFull = WordsOf({{0xFF, "Unknown"}});
inline constexpr auto kUnknownIfWordFull = WordsOf({{0xFFFF, "Unknown"}});
inline constexpr auto kNotProvidedIfWordFull = WordsOf({{0xFFFF, "Not Provided"}});

[[nodiscard]] Value ReadString(const Reading& reading);
[[nodiscard]] Value ReadNumber(const Reading& reading);
[[nodiscard]] Value ReadFraction(const Reading& reading);
[[nodiscard]] Value ReadSigned(const Reading& reading);
[[nodiscard]] Value ReadHex(const Reading& reading);
[[nodiscard]] Value ReadHandle(const Reading& reading);
[[nodiscard]] Value ReadCode(const Reading& reading);
[[nodiscard]] Value ReadCodeOrOem(const Reading& reading);
[[nodiscard]] Value ReadFlags(const Reading& reading);
[[nodiscard]] Value ReadFlagsInLine(const Reading& reading);
[[nodiscard]] Value ReadUuid(const Reading& reading);
[[nodiscard]] Value ReadBytes(const Reading& reading);
[[nodiscard]] Value ReadHandleList(const Reading& reading);
[[nodiscard]] Value ReadByteSize(const Reading& reading);
[[nodiscard]] Value ReadRelease(const Reading& reading);
[[nodiscard]] Value ReadBusAddress(const Reading& reading);

/// Whether a value of this form is the number that its bytes are, where it is one.
[[nodiscard]] bool IsNumberAsItStands(const Form& form) noexcept;

// What only one type has: a value of each kind by a reading function.
[[nodiscard]] constexpr Form TextBy(Value (*read)(const Reading&)) {
    return {.read = read, .kind = ValueKind::text};
}
[[nodiscard]] constexpr Form NumberBy(Value (*read)(const Reading&), std::string_view unit = {}) {
    return {.read = read, .kind = ValueKind::number, .unit = unit};
}
[[nodiscard]] constexpr Form CodeBy(Value (*read)(const Reading&)) {
    return {.read = read, .kind = ValueKind::code};
}
[[nodiscard]] constexpr Form FlagsBy(Value (*read)(const Reading&)) {
    return {.read = read, .kind = ValueKind::flags};
}
[[nodiscard]] constexpr Form HandleBy(Value (*read)(const Reading&), WordList words) {
    return {.read = read, .kind = ValueKind::handle, .words = words};
}
[[nodiscard]] constexpr Form ListBy(Value (*read)(const Reading&)) {
    return {.read = read, .kind = ValueKind::list};
}
[[nodiscard]] constexpr Form HandleListBy(Value (*read)(const Reading&)) {
    return {.read = read, .kind = ValueKind::handleList};
}

/// The number of a string.
[[nodiscard]] constexpr Form String() {
    return {.read = ReadString, .kind = ValueKind::text};
}

/// A number, its unit in programs and for people; some numbers stand for words.
[[nodiscard]] constexpr Form Count(WordList words = {}) {
    return {.read = ReadNumber, .kind = ValueKind::number, .words = words};
}
[[nodiscard]] constexpr Form Measure(std::string_view unit, std::string_view mark, WordList words = {}) {
    return {.read = ReadNumber, .kind = ValueKind::number, .words = words, .unit = unit, .mark = mark};
}

/// A word in a fraction of a unit: people read it with so many digits behind the point; 0x8000 is unknown.
[[nodiscard]] constexpr Form Fraction(std::string_view unit, std::string_view mark, unsigned digits) {
    return {.read = ReadFraction, .kind = ValueKind::number, .unit = unit, .mark = mark, .digits = digits};
}

/// The same with a sign.
[[nodiscard]] constexpr Form Signed(std::string_view unit, std::string_view mark, unsigned digits) {
    return {.read = ReadSigned, .kind = ValueKind::number, .unit = unit, .mark = mark, .digits = digits};
}

/// "0x00000000", with the digits its width has.
[[nodiscard]] constexpr Form Hex(WordList words = {}) {
    return {.read = ReadHex, .kind = ValueKind::number, .words = words};
}

/// The handle of another structure, "0x0011".
[[nodiscard]] constexpr Form Handle(WordList words = {}) {
    return {.read = ReadHandle, .kind = ValueKind::handle, .words = words};
}

/// A code in words.
[[nodiscard]] constexpr Form Code(WordList words) {
    return {.read = ReadCode, .kind = ValueKind::code, .words = words};
}

/// The same for a code that is an OEM's from 0x80 on.
[[nodiscard]] constexpr Form CodeOrOem(WordList words) {
    return {.read = ReadCodeOrOem, .kind = ValueKind::code, .words = words};
}

/// A code in some bits of the field.
[[nodiscard]] constexpr Form CodeIn(unsigned lowBit, unsigned bitCount, WordList words) {
    return {
        .read = ReadCode, .kind = ValueKind::code, .words = words, .lowBit = lowBit, .bitCount = bitCount};
}

/// Names of the bits that are set, one below the other or in one line.
[[nodiscard]] constexpr Form Flags(WordList names) {
    return {.read = ReadFlags, .kind = ValueKind::flags, .words = names};
}
[[nodiscard]] constexpr Form FlagsInLine(WordList names) {
    return {.read = ReadFlagsInLine, .kind = ValueKind::flags, .words = names};
}

[[nodiscard]] constexpr Form Uuid() {
    return {.read = ReadUuid, .kind = ValueKind::text};
}

/// "2C 09 25": bytes that have no meaning of their own.
[[nodiscard]] constexpr Form RawBytes() {
    return {.read = ReadBytes, .kind = ValueKind::text};
}

/// A byte or word that counts the handles behind it.
[[nodiscard]] constexpr Form HandleList() {
    return {.read = ReadHandleList, .kind = ValueKind::handleList};
}

/// A number of bytes; none is "None".
[[nodiscard]] constexpr Form ByteSize(WordList words = {}) {
    return {.read = ReadByteSize, .kind = ValueKind::number, .words = words, .unit = "byte"};
}

/// Major and minor release, a byte each: "5.26".
[[nodiscard]] constexpr Form Release() {
    return {.read = ReadRelease, .kind = ValueKind::text};
}

/// Segment group, bus, device and function: "0000:00:02.0".
[[nodiscard]] constexpr Form BusAddress() {
    return {.read = ReadBusAddress, .kind = ValueKind::text};
}

// What the reading functions of the types are made of.

/// The string of this number: its text, "Not Specified" for none, "<BAD INDEX>" when there is no such string.
[[nodiscard]] Value StringNumber(const Structure& structure, std::size_t number);

/// The code's words; "<OUT OF SPEC>" when the standard has none.
[[nodiscard]] std::string_view WordsFor(WordList words, std::uint64_t code);

/// What a structure of this type is called by another one.
[[nodiscard]] std::string_view TypeWords(std::uint8_t type);

/// The names of the bits set, in ascending order.
[[nodiscard]] std::vector<Item> NamesOfBits(WordList names, std::uint64_t bits);

/// The item's texts with a blank between each two.
[[nodiscard]] std::string InOneLine(const std::vector<Item>& items);

/// "16 GiB": in the largest unit that takes no fraction, at least in KiB when there are none.
[[nodiscard]] std::string KibibytesText(std::uint64_t kibibytes);

/// A number of bytes with its text.
[[nodiscard]] Value SizeInBytes(std::uint64_t bytes);
[[nodiscard]] Value SizeInKibibytes(std::uint64_t kibibytes);

/// "0x" and so many upper-case digits.
[[nodiscard]] std::string HexText(std::uint64_t number, std::size_t digits);

/// "2C 09 25".
[[nodiscard]] std::string BytesText(std::span<const std::uint8_t> bytes);

/// Handles from `offset` on, as many as there are of them.
[[nodiscard]] std::vector<Item> HandlesAt(const Structure& structure, std::size_t offset, std::size_t count);

/// "1.234": thousandths with a point, and so many digits behind it.
[[nodiscard]] std::string DecimalText(std::int64_t number, unsigned digits);

/// A segment group, a bus, and a byte of device and function.
[[nodiscard]] std::string BusAddressText(unsigned segment, unsigned bus, unsigned deviceFunction);

}  // namespace SMBIOS::Inspect::Standard
