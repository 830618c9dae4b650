#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "smbios-inspect/output/json_writer.h"
#include "smbios/value_types.h"

// How the getters of the exported classes become JSON; an absent value is null.
namespace SMBIOS::Inspect {

inline void Write(bool value, JsonWriter& json) {
    json.Value(value);
}

inline void Write(const char* text, JsonWriter& json) {
    json.TextOrNull(text);
}

inline void Write(const Parsers::EBOOL& flag, JsonWriter& json) {
    flag.isSet ? json.Value(flag.value) : json.Null();
}

template <class Number>
requires(std::is_arithmetic_v<Number>) void Write(Number number, JsonWriter& json) {
    number == std::numeric_limits<Number>::max() ? json.Null() : json.Value(number);
}

void Write(const Parsers::MEMORY_TYPE_DETAILS& details, JsonWriter& json);
void Write(const Parsers::PROCESSOR_CHARACTERISTICS& characteristics, JsonWriter& json);

/// One value of a row: its key and how to write it.
template <class Info>
struct RowValue {
    const char* key;
    void (*write)(const Info& info, std::size_t index, JsonWriter& json);
};

/// The value that `Getter` gives for a row.
template <auto Getter, class Info>
void ValueOf(const Info& info, std::size_t index, JsonWriter& json) {
    Write((info.*Getter)(index), json);
}

/// The texts that `Getter` gives for a row, as many as `Size` tells.
template <auto Size, auto Getter, class Info>
void TextsOf(const Info& info, std::size_t index, JsonWriter& json) {
    json.BeginArray();
    for (std::size_t i = 0; i < (info.*Size)(index); ++i) {
        json.TextOrNull((info.*Getter)(index, i));
    }
    json.EndArray();
}

/// The row's raw bytes in lower-case hexadecimal.
template <class Info>
void RawDataOf(const Info& info, std::size_t index, JsonWriter& json) {
    std::size_t size = 0;
    const std::uint8_t* const bytes = info.DumpRawData(index, size);
    bytes == nullptr ? json.Null() : json.Hexadecimal({bytes, size});
}

/// The list of all rows: of each, every value under its key, in the order of `values`.
template <class Info, std::size_t Count>
void WriteRows(const Info& info,
               std::size_t rowCount,
               const RowValue<Info> (&values)[Count],
               JsonWriter& json) {
    json.BeginArray();
    for (std::size_t i = 0; i < rowCount; ++i) {
        json.BeginObject();
        for (const RowValue<Info>& value : values) {
            json.Name(value.key);
            value.write(info, i, json);
        }
        json.EndObject();
    }
    json.EndArray();
}

}  // namespace SMBIOS::Inspect
