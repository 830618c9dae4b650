#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "common/dynamic_bitset.h"
#include "smbios-inspect/output/json.h"
#include "smbios-inspect/output/units.h"
#include "smbios-inspect/records/record_fields.h"
#include "structures/type_3.h"

namespace SMBIOS::Inspect {

/// Writes a record as JSON: each field under its name, an absent one as null.
class RecordJson {
public:
    template <Described Record>
    [[nodiscard]] static Json Of(const Record& record) {
        Json json = Json::object();
        ForEachField(AllFieldsOf<Record>(),
                     [&](const auto& field) { Put(json, field.name, record.*field.value); });
        return json;
    }

    template <class Number>
    requires(std::is_arithmetic_v<Number>) [[nodiscard]] static Json Of(Number number) { return number; }

    [[nodiscard]] static Json Of(float number) { return static_cast<double>(number); }

    [[nodiscard]] static Json Of(std::string_view text) { return text; }

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

private:
    template <class Value>
    static void Put(Json& json, const char* name, const Value& value) {
        json[name] = Of(value);
    }

    /// The elements within the structure; where there are more of them, the number of all under a name of its
    /// own.
    static void Put(Json& json,
                    const char* name,
                    const std::optional<Structures::Type3::Types::ContainedElements>& elements);
};

}  // namespace SMBIOS::Inspect
