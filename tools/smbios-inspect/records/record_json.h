#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

#include "common/dynamic_bitset.h"
#include "smbios-inspect/output/json.h"
#include "smbios-inspect/output/units.h"
#include "smbios-inspect/records/record_fields.h"

namespace SMBIOS::Inspect {

/// Writes a record as JSON: each field under its name, an absent one as null.
class RecordJson {
public:
    template <Described Record>
    [[nodiscard]] static Json Of(const Record& record) {
        Json json = Json::object();
        ForEachField(AllFieldsOf<Record>(),
                     [&](const auto& field) { json[field.name] = Of(record.*field.value); });
        return json;
    }

    template <class Number>
    requires(std::is_arithmetic_v<Number>) [[nodiscard]] static Json Of(Number number) { return number; }

    [[nodiscard]] static Json Of(float number) { return static_cast<double>(number); }

    [[nodiscard]] static Json Of(const std::string& text) { return text; }

    [[nodiscard]] static Json Of(const std::vector<std::uint8_t>& bytes) { return HexadecimalText(bytes); }

    [[nodiscard]] static Json Of(const Common::Dynamic_BitSet& flags);

    template <class Element>
    [[nodiscard]] static Json Of(const std::vector<Element>& elements) {
        Json json = Json::array();
        for (const Element& element : elements) {
            json.push_back(Of(element));
        }
        return json;
    }

    template <class Value>
    [[nodiscard]] static Json Of(const std::optional<Value>& value) {
        return value ? Of(*value) : Json();
    }
};

}  // namespace SMBIOS::Inspect
