#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <type_traits>
#include <utility>

#include "smbios-inspect/output/json.h"
#include "smbios-inspect/output/units.h"
#include "smbios/value_types.h"

// How the getters of the exported classes become JSON; an absent value is null.
namespace SMBIOS::Inspect {

[[nodiscard]] inline Json ToJson(bool value) {
    return value;
}

[[nodiscard]] inline Json ToJson(const char* text) {
    return text == nullptr ? Json() : Json(text);
}

[[nodiscard]] inline Json ToJson(const Parsers::EBOOL& flag) {
    return flag.isSet ? Json(flag.value) : Json();
}

template <class Number>
requires(std::is_arithmetic_v<Number>) [[nodiscard]] Json ToJson(Number number) {
    return number == std::numeric_limits<Number>::max() ? Json() : Json(number);
}

[[nodiscard]] Json ToJson(const Parsers::MEMORY_TYPE_DETAILS& details);
[[nodiscard]] Json ToJson(const Parsers::PROCESSOR_CHARACTERISTICS& characteristics);

/// One value of a row: its key and how to read it.
template <class Info>
struct RowValue {
    const char* key;
    Json (*read)(const Info& info, std::size_t index);
};

/// The value that `Getter` gives for a row.
template <auto Getter, class Info>
[[nodiscard]] Json ValueOf(const Info& info, std::size_t index) {
    return ToJson((info.*Getter)(index));
}

/// The row's string set.
template <class Info>
[[nodiscard]] Json StringSessionOf(const Info& info, std::size_t index) {
    Json strings = Json::array();
    for (std::size_t i = 0; i < info.GetStringSessionSize(index); ++i) {
        strings.push_back(ToJson(info.DumpStringSession(index, i)));
    }
    return strings;
}

/// The row's raw bytes in lower-case hexadecimal.
template <class Info>
[[nodiscard]] Json RawDataOf(const Info& info, std::size_t index) {
    std::size_t size = 0;
    const std::uint8_t* const bytes = info.DumpRawData(index, size);
    return bytes == nullptr ? Json() : Json(HexadecimalText({bytes, size}));
}

/// Every value of row `index` under its key, in the order of the list.
template <class Info, std::size_t Count>
[[nodiscard]] Json RowToJson(const Info& info, std::size_t index, const RowValue<Info> (&values)[Count]) {
    Json row = Json::object();
    for (const RowValue<Info>& value : values) {
        row[value.key] = value.read(info, index);
    }
    return row;
}

/// An object whose one member `name` is the list of all rows.
template <class Info, std::size_t Count>
[[nodiscard]] Json RowsToJson(const char* name,
                              const Info& info,
                              std::size_t rowCount,
                              const RowValue<Info> (&values)[Count]) {
    Json rows = Json::array();
    for (std::size_t i = 0; i < rowCount; ++i) {
        rows.push_back(RowToJson(info, i, values));
    }
    return {{name, std::move(rows)}};
}

}  // namespace SMBIOS::Inspect
