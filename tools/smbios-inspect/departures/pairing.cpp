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

Pair PairBy(const TypeJoins& joins, const LibraryField& field) noexcept {
    const std::string_view name = field.name;
    if (const auto join = std::ranges::find(joins.joins, name, &Join::field); join != joins.joins.end()) {
        return {FindStandardField(joins.type, join->standard), join->rule, join->causes};
    }
    if (std::ranges::find(joins.unpaired, name, &Unpaired::field) != joins.unpaired.end()) {
        return {.isUnpaired = true};
    }
    const StandardField standard = FieldNamedLike(joins.type, name);
    const bool isWord =
        field.isText && standard.row != nullptr && standard.row->form.kind == Standard::ValueKind::code;
    return {.standard = standard, .rule = isWord ? WordOfCode() : ByKind()};
}

}  // namespace

RecordPairs PairsOf(std::uint8_t type, std::span<const LibraryField> fields) {
    RecordPairs found;
    found.pairs.resize(fields.size());
    const TypeJoins* const joins = JoinsOf(type);
    for (std::size_t i = 0; i < fields.size() && joins != nullptr; ++i) {
        Pair& pair = found.pairs[i];
        pair = PairBy(*joins, fields[i]);
        pair.glance = GlanceFor(pair.rule, pair.standard);
        found.hasStrings |= pair.IsKnown() && std::string_view(fields[i].name) == "strings";
    }
    return found;
}

const RecordPairs& Pairings::Of(std::uint8_t type, std::span<const LibraryField> fields) {
    RecordPairs& pairs = pairs_[type];
    if (pairs.pairs.empty()) {
        pairs = PairsOf(type, fields);
    }
    return pairs;
}

}  // namespace SMBIOS::Inspect::Departures
