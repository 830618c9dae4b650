#include "smbios-inspect/standard/field_values.h"

#include <algorithm>
#include <variant>

#include "smbios-inspect/standard/decode.h"
#include "smbios-inspect/standard/forms.h"

namespace SMBIOS::Inspect::Standard {

namespace {

std::string TextOfPlain(const Plain& plain) {
    return std::visit(
        [](const auto& value) -> std::string {
            using Type = std::decay_t<decltype(value)>;
            if constexpr (std::is_same_v<Type, std::monostate>) {
                return {};
            } else if constexpr (std::is_same_v<Type, std::string>) {
                return value;
            } else {
                return std::to_string(value);
            }
        },
        plain);
}

}  // namespace

FieldValues::FieldValues(const Structure& structure) {
    VisitFields(structure, *this);
}

void FieldValues::Visit(const Field& field) {
    if (field.place.group.empty()) {
        values_.push_back({field.name, field.kind, field.value});
    }
}

const FieldValues::NamedValue* FieldValues::Find(std::string_view name) const noexcept {
    const auto found = std::ranges::find(values_, name, &NamedValue::name);
    return found == values_.end() ? nullptr : &*found;
}

std::string FieldValues::TextOf(std::string_view name) const {
    const NamedValue* const field = Find(name);
    if (field == nullptr || std::holds_alternative<std::monostate>(field->value.plain)) {
        return {};
    }
    return field->kind == ValueKind::code ? field->value.text : TextOfPlain(field->value.plain);
}

std::string FieldValues::TellingTextOf(std::string_view name) const {
    std::string text = TextOf(name);
    const bool saysNothing = text == kUnknown || text == "Other" || text == kOutOfSpec;
    return saysNothing ? std::string() : text;
}

std::optional<std::uint64_t> FieldValues::NumberOf(std::string_view name) const {
    const NamedValue* const field = Find(name);
    const auto* const number = field == nullptr ? nullptr : std::get_if<std::uint64_t>(&field->value.plain);
    return number == nullptr ? std::nullopt : std::optional(*number);
}

}  // namespace SMBIOS::Inspect::Standard
