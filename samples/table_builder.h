#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace SMBIOS::Samples {

/// One structure under construction: a formatted area of zeros to be filled in, and its string set. Offsets
/// count from the type byte; writing past the length grows the area but not the length byte.
class StructureBuilder {
public:
    StructureBuilder(std::uint8_t type, std::uint8_t length, std::uint16_t handle = 0x1234);

    StructureBuilder& Byte(std::size_t offset, std::uint8_t value);
    StructureBuilder& Word(std::size_t offset, std::uint16_t value);
    StructureBuilder& Dword(std::size_t offset, std::uint32_t value);
    StructureBuilder& Qword(std::size_t offset, std::uint64_t value);
    StructureBuilder& Bytes(std::size_t offset, const std::vector<std::uint8_t>& values);

    /// Appends `text` to the string set and writes its number at `offset`.
    StructureBuilder& String(std::size_t offset, std::string_view text);

    /// Appends `text` to the string set.
    StructureBuilder& String(std::string_view text);

    [[nodiscard]] const std::vector<std::uint8_t>& FormattedBytes() const noexcept { return formattedBytes_; }
    [[nodiscard]] const std::vector<std::string>& Strings() const noexcept { return strings_; }

private:
    StructureBuilder& LittleEndian(std::size_t offset, std::uint64_t value, std::size_t width);

    std::vector<std::uint8_t> formattedBytes_;
    std::vector<std::string> strings_;
};

/// A raw table under construction: the 8-byte header, then the structures in the order they are added.
class TableBuilder {
public:
    TableBuilder(std::uint8_t major, std::uint8_t minor, std::uint8_t revision);

    /// Appends the structure with its string set and the closing double zero.
    TableBuilder& Add(const StructureBuilder& structure);

    /// Appends bytes as they are.
    TableBuilder& AddBytes(const std::vector<std::uint8_t>& bytes);

    /// Header and structures; the header's length field tells the size of the structures.
    [[nodiscard]] std::vector<std::uint8_t> RawTable() const;

private:
    std::uint8_t major_;
    std::uint8_t minor_;
    std::uint8_t revision_;
    std::vector<std::uint8_t> structures_;
};

}  // namespace SMBIOS::Samples
