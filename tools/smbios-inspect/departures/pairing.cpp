#include "smbios-inspect/departures/pairing.h"

#include <algorithm>

namespace SMBIOS::Inspect::Departures {

namespace {

StandardField FieldNamedLike(std::uint8_t type, std::string_view name) noexcept {
    StandardField field = FindStandardField(type, name);
    for (const std::string_view addition : {"Name", "Value", "Flags"}) {
        if (field.row == nullptr && name.ends_with(addition)) {
            field = FindStandardField(type, name.substr(0, name.size() - addition.size()));
        }
    }
    return field;
}

}  // namespace

Pair PairOf(std::uint8_t type, const LibraryField& field) noexcept {
    const TypeJoins* joins = JoinsOf(type);
    if (joins == nullptr) {
        return {};
    }
    const std::string_view name = field.name;
    if (const auto join = std::ranges::find(joins->joins, name, &Join::field); join != joins->joins.end()) {
        return {FindStandardField(type, join->standard), join->rule, join->causes};
    }
    if (std::ranges::find(joins->unpaired, name, &Unpaired::field) != joins->unpaired.end()) {
        return {.isUnpaired = true};
    }
    const StandardField standard = FieldNamedLike(type, name);
    const bool isWord =
        field.isText && standard.row != nullptr && standard.row->form.kind == Standard::ValueKind::code;
    return {.standard = standard, .rule = isWord ? WordOfCode() : ByKind()};
}

const std::vector<Pair>& Pairings::Of(std::uint8_t type, std::span<const LibraryField> fields) {
    std::vector<Pair>& pairs = pairs_[type];
    if (pairs.empty()) {
        std::vector<Pair> found;
        for (const LibraryField& field : fields) {
            found.push_back(PairOf(type, field));
        }
        pairs = std::move(found);
    }
    return pairs;
}

}  // namespace SMBIOS::Inspect::Departures
