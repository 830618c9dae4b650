#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <type_traits>
#include <variant>

namespace SMBIOS::Wmi {

/// Of a value that holds others only its kind is kept: no property that is asked for has one.
enum class Container : std::uint8_t { array, object };

/// The value of one property, as it stands in an answer.
using PropertyValue =
    std::variant<std::nullptr_t, bool, std::uint64_t, std::int64_t, double, std::string, Container>;

/// The properties of one instance by their names.
using Instance = std::map<std::string, PropertyValue, std::less<>>;

/// Instances by the text of their key property.
using Instances = std::map<std::string, Instance, std::less<>>;

/// `value` as a truth value. Throws std::bad_variant_access when it is none.
[[nodiscard]] bool TruthOf(const PropertyValue& value);

/// `value` as a text. Throws std::bad_variant_access when it is none.
[[nodiscard]] const std::string& TextOf(const PropertyValue& value);

/// `value` as a number of 64 bits, in two's complement when it is negative; what a fraction has behind the
/// point is cut off. Throws std::bad_variant_access when it is no number, and std::out_of_range when it does
/// not fit.
[[nodiscard]] std::uint64_t NumberOf(const PropertyValue& value);

/// `value` as the type of a field that takes it. Numbers wrap to the field's width, and those of less than 64
/// bits take a truth value as 0 or 1. Throws like the functions above.
template <class Field>
[[nodiscard]] Field ValueAs(const PropertyValue& value) {
    if constexpr (std::same_as<Field, std::string>) {
        return TextOf(value);
    } else if constexpr (std::same_as<Field, bool>) {
        return TruthOf(value);
    } else {
        static_assert(std::unsigned_integral<Field>);
        const bool* const truth = sizeof(Field) < sizeof(std::uint64_t) ? std::get_if<bool>(&value) : nullptr;
        return static_cast<Field>(truth != nullptr ? *truth : NumberOf(value));
    }
}

}  // namespace SMBIOS::Wmi
