#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace SMBIOS::Tests {

/// A structure taken out of a table, to be changed.
struct EditableStructure {
    std::vector<std::uint8_t> bytes;  ///< header included
    std::vector<std::string> strings = {};

    [[nodiscard]] std::uint8_t Type() const { return bytes[0]; }
    [[nodiscard]] std::uint16_t Handle() const { return Word(2); }
    [[nodiscard]] std::uint16_t Word(std::size_t offset) const;

    EditableStructure& SetByte(std::size_t offset, std::uint8_t value);
    EditableStructure& SetWord(std::size_t offset, std::uint16_t value);
    EditableStructure& SetDword(std::size_t offset, std::uint32_t value);

    /// Changes the string whose number stands at `offset`.
    EditableStructure& SetString(std::size_t offset, std::string_view text);

    /// Lets the formatted area end with these bytes.
    EditableStructure& Append(const std::vector<std::uint8_t>& more);
};

/// A raw table taken apart. A structure that is cut short is left out.
class EditableTable {
public:
    explicit EditableTable(const std::vector<std::uint8_t>& rawTable);

    [[nodiscard]] std::vector<EditableStructure>& Structures() { return structures_; }

    /// The first structure of this handle. Throws std::out_of_range.
    [[nodiscard]] EditableStructure& At(std::uint16_t handle);

    /// Removes the structures of this handle.
    void Remove(std::uint16_t handle);

    void SetVersion(std::uint8_t major, std::uint8_t minor);

    [[nodiscard]] std::vector<std::uint8_t> RawTable() const;

private:
    std::vector<std::uint8_t> header_;
    std::vector<EditableStructure> structures_;
};

/// Gives every structure another place and another handle, and all handles of it with it. One table has
/// one outcome. No two structures may have the same handle.
void ShuffleAndRenumber(EditableTable& table, unsigned seed);

}  // namespace SMBIOS::Tests
