#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>

#include "common/dynamic_bitset.h"
#include "smbios/value_types.h"
#include "structures/structure_record.h"

// How the getters of the exported classes read one row. `row` is nullptr for an index out of range, which
// reads like a row without the value.
namespace SMBIOS::Parsers {

/// The field's value; the largest of its type, all ones for an integer, when there is none.
template <class Record, class Number>
[[nodiscard]] Number NumberOf(const Record* row, std::optional<Number> Record::*field) noexcept {
    return row == nullptr ? std::numeric_limits<Number>::max()
                          : (row->*field).value_or(std::numeric_limits<Number>::max());
}

/// The field's text, held by the record; nullptr when it is empty.
template <class Record>
[[nodiscard]] const char* TextOf(const Record* row, std::string Record::*field) noexcept {
    return row == nullptr || (row->*field).empty() ? nullptr : (row->*field).c_str();
}

template <class Record>
[[nodiscard]] const char* TextOf(const Record* row, std::optional<std::string> Record::*field) noexcept {
    return row == nullptr || !(row->*field) || (row->*field)->empty() ? nullptr : (row->*field)->c_str();
}

/// The field as a flag; unset when there is none.
template <class Record>
[[nodiscard]] EBOOL FlagOf(const Record* row, std::optional<bool> Record::*field) noexcept {
    EBOOL flag;
    if (row != nullptr && (row->*field)) {
        flag = *(row->*field);
    }
    return flag;
}

/// Name of the field's lowest set bit; nullptr when it has none. Throws std::out_of_range for a bit set that
/// is narrower than its bit count.
template <class Record>
[[nodiscard]] const char* LowestFlagOf(const Record* row,
                                       std::optional<Common::Dynamic_BitSet> Record::*field) {
    return row == nullptr || !(row->*field) ? nullptr : Common::LowestSetBitName(*(row->*field));
}

/// The record's own bytes; nullptr and 0 when it has none.
[[nodiscard]] std::uint8_t* RawDataOf(Structures::StructureRecord* row, std::size_t& size) noexcept;

/// Number of strings in the record's string set; 0 when there is none.
[[nodiscard]] std::size_t StringCountOf(const Structures::StructureRecord* row) noexcept;

/// String `stringIndex`, from 0, of the record's string set; nullptr when there is none.
[[nodiscard]] const char* StringOf(const Structures::StructureRecord* row, std::size_t stringIndex) noexcept;

}  // namespace SMBIOS::Parsers
