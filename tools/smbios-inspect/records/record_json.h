#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <type_traits>
#include <vector>

#include "common/dynamic_bitset.h"
#include "smbios-inspect/output/json_writer.h"
#include "smbios-inspect/records/record_fields.h"
#include "structures/type_3.h"

namespace SMBIOS::Inspect {

/// Writes a record as JSON: each field under its name, an absent one as null.
class RecordJson {
public:
    template <Described Record>
    static void Write(JsonWriter& json, const Record& record) {
        static constexpr auto kFields = AllFieldsOf<Record>();
        json.BeginObject();
        ForEachField(kFields, [&](const auto& field) { WriteMember(json, field.name, record.*field.value); });
        json.EndObject();
    }

    template <class Number>
    requires(std::is_arithmetic_v<Number>) static void Write(JsonWriter& json, Number number) {
        json.Value(number);
    }

    static void Write(JsonWriter& json, std::string_view text) { json.Value(text); }

    static void Write(JsonWriter& json, const std::vector<std::uint8_t>& bytes) { json.Hexadecimal(bytes); }

    static void Write(JsonWriter& json, const Common::Dynamic_BitSet& flags);

    template <class Element>
    static void Write(JsonWriter& json, const std::vector<Element>& elements) {
        json.BeginArray();
        for (const Element& element : elements) {
            Write(json, element);
        }
        json.EndArray();
    }

    template <class Value>
    static void Write(JsonWriter& json, const std::optional<Value>& value) {
        value ? Write(json, *value) : json.Null();
    }

    /// A field under a name.
    template <class Value>
    static void WriteMember(JsonWriter& json, std::string_view name, const Value& value) {
        json.Name(name);
        Write(json, value);
    }

    /// The elements within the structure; where there are more of them, the number of all under a name of its
    /// own.
    static void WriteMember(JsonWriter& json,
                            std::string_view name,
                            const std::optional<Structures::Type3::Types::ContainedElements>& elements);
};

}  // namespace SMBIOS::Inspect
