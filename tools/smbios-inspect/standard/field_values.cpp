#include "smbios-inspect/standard/field_values.h"

#include <algorithm>

#include "smbios-inspect/standard/decode.h"
#include "smbios-inspect/standard/forms.h"

namespace SMBIOS::Inspect::Standard {

namespace {

std::string TextOfPlain(const Plain& plain) {
    if (const auto number = plain.Number()) {
        return std::to_string(*number);
    }
    if (const auto number = plain.SignedNumber()) {
        return std::to_string(*number);
    }
    return std::string(plain.Text().value_or(""));
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
    if (field == nullptr || field->value.plain.IsNothing()) {
        return {};
    }
    return field->kind == ValueKind::code ? std::string(field->value.text) : TextOfPlain(field->value.plain);
}

std::string FieldValues::TellingTextOf(std::string_view name) const {
    std::string text = TextOf(name);
    const bool saysNothing = text == kUnknown || text == "Other" || text == kOutOfSpec;
    return saysNothing ? std::string() : text;
}

std::optional<std::uint64_t> FieldValues::NumberOf(std::string_view name) const {
    const NamedValue* const field = Find(name);
    return field == nullptr ? std::nullopt : field->value.plain.Number();
}

}  // namespace SMBIOS::Inspect::Standard
