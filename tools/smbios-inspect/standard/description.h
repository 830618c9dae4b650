#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "smbios-inspect/standard/structure.h"
#include "smbios-inspect/standard/value.h"
#include "smbios-inspect/standard/words.h"

// How the standard's tables are written down. A description is data; forms.h has the forms.
namespace SMBIOS::Inspect::Standard {

inline constexpr std::size_t kByte = 1;
inline constexpr std::size_t kWord = 2;
inline constexpr std::size_t kDword = 4;
inline constexpr std::size_t kQword = 8;

struct Reading;

/// How the bytes of a field become a value.
struct Form {
    Value (*read)(const Reading&);
    ValueKind kind;
    WordList words = {};
    std::string_view unit = {};  ///< in programs, "bit"
    std::string_view mark = {};  ///< behind the number for people, " bits"
    unsigned lowBit = 0;         ///< of a field that is a part of its bytes
    unsigned bitCount = 64;
    unsigned digits = 0;  ///< behind the point of a number for people
};

/// A row of the standard's table of a type.
struct FieldRow {
    std::size_t offset;
    std::size_t width;  ///< in bytes
    std::string_view name;
    std::string_view label;  ///< # for the number of its object; empty when another row tells people the same
    Form form;
};

/// The number that a field's bytes are; of a field wider than eight bytes the first eight.
[[nodiscard]] inline std::uint64_t NumberAt(const Structure& structure,
                                            std::size_t offset,
                                            std::size_t width) noexcept {
    const Structures::FormattedArea area = structure.Area();
    switch (width) {
        case kByte:
            return area.Byte(offset);
        case kWord:
            return area.Word(offset);
        case kDword:
            return area.Dword(offset);
        default:
            const std::uint64_t number = area.Qword(offset);
            return width < kQword ? number & ((std::uint64_t{1} << (8 * width)) - 1) : number;
    }
}

/// A row read in a structure.
struct Reading {
    const Structure& structure;
    const FieldRow& row;
    std::size_t base;  ///< what the row's offset counts from

    [[nodiscard]] std::size_t Offset() const noexcept { return base + row.offset; }

    /// The field's number: those of the bits that are its own.
    [[nodiscard]] std::uint64_t Raw() const noexcept;
};

/// Objects of which a structure holds several, or one at a place that is not always the same.
struct GroupTable {
    std::string_view group;  ///< empty for rows that belong to the structure itself
    std::span<const FieldRow> rows;
    std::string_view heading = {};  ///< above each object for people, # for its number
};

class RowVisitor;

/// A structure type. `leastLength` is the length of its first version.
struct TypeDescription {
    std::uint8_t type;
    std::size_t leastLength;
    std::span<const FieldRow> rows;
    std::span<const GroupTable> groups = {};
    void (*visitGroups)(RowVisitor&) = nullptr;  ///< finds the groups in the structure
};

}  // namespace SMBIOS::Inspect::Standard
