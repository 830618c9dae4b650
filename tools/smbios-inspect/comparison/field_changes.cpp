#include "smbios-inspect/comparison/field_changes.h"

#include <algorithm>
#include <map>
#include <string>
#include <tuple>
#include <utility>

#include "smbios-inspect/comparison/unshown.h"
#include "smbios-inspect/standard/decode.h"

namespace SMBIOS::Inspect::Comparing {

using Standard::Field;
using Standard::Item;
using Standard::Structure;
using Standard::Value;
using Standard::ValueKind;

namespace {

class KeepingVisitor final : public Standard::FieldVisitor {
public:
    void Visit(const Field& field) override {
        fields_.push_back({field.name,
                           field.label,
                           field.kind,
                           field.unit,
                           field.place,
                           field.offset,
                           field.width,
                           field.value});
    }

    [[nodiscard]] std::vector<KeptField> Take() noexcept { return std::move(fields_); }

private:
    std::vector<KeptField> fields_;
};

/// What a list says of a handle, behind its number.
std::string_view BehindHandle(std::string_view text) noexcept {
    return text.substr(std::min(text.find(' '), text.size()));
}

/// No value where one of the two says that there is nothing.
std::optional<bool> IsSameTarget(const Comparison& comparison,
                                 const Standard::Plain& before,
                                 const Standard::Plain& after) noexcept {
    const auto handle = before.Number();
    const auto other = after.Number();
    if (!handle || !other) {
        return std::nullopt;
    }
    return comparison.LeadToTheSame(static_cast<std::uint16_t>(*handle), static_cast<std::uint16_t>(*other));
}

bool IsSame(const Comparison& comparison, const KeptField& before, const KeptField& after) {
    const Value& value = before.value;
    const Value& other = after.value;
    switch (before.kind) {
        case ValueKind::handle:
            return IsSameTarget(comparison, value.plain, other.plain).value_or(value == other);
        case ValueKind::handleList:
            return value.plain == other.plain &&
                   std::ranges::equal(value.items, other.items, [&](const Item& own, const Item& others) {
                       return IsSameTarget(comparison, own.plain, others.plain).value_or(false) &&
                              BehindHandle(own.text) == BehindHandle(others.text);
                   });
        default:
            return value == other;
    }
}

/// Where a field stands, whatever it says.
auto PlaceOf(const KeptField& field) noexcept {
    return std::tuple(field.place.group, field.place.index, field.name);
}

/// Gives the fields of one structure by their places.
class FieldsByPlace {
public:
    explicit FieldsByPlace(const std::vector<KeptField>& fields) {
        for (const KeptField& field : fields) {
            places_.emplace(PlaceOf(field), &field);
        }
    }

    [[nodiscard]] const KeptField* Find(const KeptField& field) const {
        const auto place = places_.find(PlaceOf(field));
        return place == places_.end() ? nullptr : place->second;
    }

private:
    std::map<decltype(PlaceOf(std::declval<KeptField>())), const KeptField*> places_;
};

std::vector<FieldChange> ChangedFields(const Comparison& comparison,
                                       const std::vector<KeptField>& before,
                                       const std::vector<KeptField>& after) {
    const FieldsByPlace beforeByPlace(before);
    const FieldsByPlace afterByPlace(after);
    std::vector<FieldChange> changes;
    for (const KeptField& field : before) {
        const KeptField* const other = afterByPlace.Find(field);
        if (other == nullptr) {
            changes.push_back({field, std::nullopt});
        } else if (!IsSame(comparison, field, *other)) {
            changes.push_back({field, *other});
        }
    }
    for (const KeptField& field : after) {
        if (beforeByPlace.Find(field) == nullptr) {
            changes.push_back({std::nullopt, field});
        }
    }
    return changes;
}

void AppendIfAny(std::vector<FieldChange>& changes, std::optional<FieldChange> change) {
    if (change) {
        changes.push_back(*std::move(change));
    }
}

}  // namespace

std::vector<KeptField> FieldsOf(const Structure& structure) {
    KeepingVisitor visitor;
    Standard::VisitFields(structure, visitor);
    return visitor.Take();
}

std::vector<FieldChange> ChangesOf(const Comparison& comparison, Index before, Index after) {
    if (comparison.IsTheSame(before, after)) {
        return {};
    }
    const DecodedStructure decoded(comparison.Before().table, before);
    const DecodedStructure other(comparison.After().table, after);
    std::vector<FieldChange> changes = ChangedFields(comparison, decoded.fields, other.fields);
    AppendIfAny(changes, UnshownBytes(decoded, other, changes));
    AppendIfAny(changes, UnshownStrings(decoded, other));
    AppendIfAny(changes, ChangedRemark(decoded, other));
    return changes;
}

}  // namespace SMBIOS::Inspect::Comparing
