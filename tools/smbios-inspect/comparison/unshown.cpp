#include "smbios-inspect/comparison/unshown.h"

#include <algorithm>
#include <bitset>
#include <cstddef>
#include <set>
#include <string>
#include <utility>

#include "smbios-inspect/output/units.h"
#include "smbios-inspect/standard/decode.h"
#include "smbios-inspect/standard/forms.h"

namespace SMBIOS::Inspect::Comparing {

using Standard::Item;
using Standard::Structure;
using Standard::Value;
using Standard::ValueKind;

namespace {

constexpr std::size_t kHeaderSize = 4;
constexpr std::size_t kLengthByte = 0x01;

/// Of the bytes of a structure, whose number stands in a byte.
using Positions = std::bitset<256>;

void Add(Positions& positions, std::size_t offset, std::size_t width) {
    for (std::size_t i = offset; i < offset + width && i < positions.size(); ++i) {
        positions.set(i);
    }
}

void AddRow(Positions& positions, const std::optional<KeptField>& field) {
    if (field) {
        Add(positions, field->offset, field->width);
    }
}

/// Handles are compared by what they lead to, and numbers of strings by the strings.
void AddHandlesAndStringNumbers(Positions& positions, const DecodedStructure& each) {
    for (const Reference& reference : each.references) {
        Add(positions, reference.offset, Standard::kWord);
    }
    for (const KeptField& field : each.fields) {
        if (field.kind == ValueKind::text && field.width == Standard::kByte) {
            Add(positions, field.offset, field.width);
        }
    }
}

/// The bytes whose difference is told already, or is none.
Positions ToldBytes(const DecodedStructure& before,
                    const DecodedStructure& after,
                    const std::vector<FieldChange>& changes) {
    Positions told;
    Add(told, 0, kHeaderSize);
    told.set(kLengthByte, before.structure.bytes.size() != after.structure.bytes.size());
    AddHandlesAndStringNumbers(told, before);
    AddHandlesAndStringNumbers(told, after);
    for (const FieldChange& change : changes) {
        AddRow(told, change.before);
        AddRow(told, change.after);
    }
    return told;
}

/// The bytes of a structure as they would be if those not told of were the other's.
std::vector<std::uint8_t> WithOthersBytes(std::span<const std::uint8_t> own,
                                          std::span<const std::uint8_t> others,
                                          const Positions& told) {
    std::vector<std::uint8_t> bytes(own.begin(), own.end());
    for (std::size_t i = 0; i < std::min(own.size(), others.size()); ++i) {
        bytes[i] = told[i] ? own[i] : others[i];
    }
    while (bytes.size() > others.size() && !told[bytes.size() - 1]) {
        bytes.pop_back();
    }
    return bytes;
}

bool HaveTheSameValues(const std::vector<KeptField>& fields, const std::vector<KeptField>& others) {
    return std::ranges::equal(fields, others, [](const KeptField& own, const KeptField& other) {
        return own.name == other.name && own.place.index == other.place.index && own.value == other.value;
    });
}

/// Whether bytes not told of differ from the other's without a difference in any field.
bool HasUnshownBytes(const DecodedStructure& each, const DecodedStructure& other, const Positions& told) {
    const std::vector<std::uint8_t> bytes =
        WithOthersBytes(each.structure.bytes, other.structure.bytes, told);
    if (std::ranges::equal(bytes, each.structure.bytes)) {
        return false;
    }
    Structure changed = each.structure;
    changed.bytes = bytes;
    return HaveTheSameValues(FieldsOf(changed), each.fields);
}

/// All bytes for programs; for people those from the first that differs to the last.
KeptField BytesField(std::span<const std::uint8_t> bytes, std::size_t first, std::size_t last) {
    const std::size_t end = std::min(last + 1, bytes.size());
    const auto different = bytes.subspan(std::min(first, end), end - std::min(first, end));
    const std::string text = Standard::HexText(first, 2) + ": " + Standard::BytesText(different);
    return {.name = "bytes",
            .label = "Bytes",
            .kind = ValueKind::text,
            .value = {.plain = HexadecimalText(bytes), .text = different.empty() ? "none" : text}};
}

FieldChange BytesChange(std::span<const std::uint8_t> before,
                        std::span<const std::uint8_t> after,
                        const Positions& told) {
    std::size_t first = std::max(before.size(), after.size());
    std::size_t last = 0;
    for (std::size_t i = 0; i < std::max(before.size(), after.size()); ++i) {
        const bool isInBoth = i < std::min(before.size(), after.size());
        if (!told[i] && !(isInBoth && before[i] == after[i])) {
            first = std::min(first, i);
            last = i;
        }
    }
    return {BytesField(before, first, last), BytesField(after, first, last)};
}

std::vector<std::string_view> StringsNotShown(const DecodedStructure& each) {
    std::set<std::string_view> shown;
    const auto addText = [&](const Standard::Plain& plain) {
        if (const auto text = plain.Text()) {
            shown.insert(*text);
        }
    };
    for (const KeptField& field : each.fields) {
        addText(field.value.plain);
        std::ranges::for_each(field.value.items, addText, &Item::plain);
    }
    std::vector<std::string_view> strings;
    std::ranges::copy_if(each.structure.strings, std::back_inserter(strings), [&](std::string_view text) {
        return !shown.contains(text);
    });
    return strings;
}

KeptField StringsField(const std::vector<std::string_view>& strings) {
    std::vector<Item> items;
    for (const std::string_view text : strings) {
        items.push_back({.plain = text, .text = text});
    }
    const std::size_t count = strings.size();
    return {.name = "strings",
            .label = "Strings",
            .kind = ValueKind::list,
            .value = Standard::List(count, std::to_string(count), std::move(items))};
}

KeptField RemarkField(const std::string& remark) {
    return {.name = "remark",
            .label = "Remark",
            .kind = ValueKind::text,
            .value = remark.empty() ? Standard::Nothing("none") : Standard::Text(remark)};
}

}  // namespace

DecodedStructure::DecodedStructure(const ComparedTable& table, Index index)
    : structure(table.At(index)), references(table.ReferencesOf(index)), fields(FieldsOf(structure)) {}

std::optional<FieldChange> UnshownBytes(const DecodedStructure& before,
                                        const DecodedStructure& after,
                                        const std::vector<FieldChange>& changes) {
    const Positions told = ToldBytes(before, after, changes);
    if (!HasUnshownBytes(before, after, told) && !HasUnshownBytes(after, before, told)) {
        return std::nullopt;
    }
    return BytesChange(before.structure.bytes, after.structure.bytes, told);
}

std::optional<FieldChange> UnshownStrings(const DecodedStructure& before, const DecodedStructure& after) {
    const std::vector<std::string_view> strings = StringsNotShown(before);
    const std::vector<std::string_view> others = StringsNotShown(after);
    if (strings == others) {
        return std::nullopt;
    }
    return FieldChange{StringsField(strings), StringsField(others)};
}

std::optional<FieldChange> ChangedRemark(const DecodedStructure& before, const DecodedStructure& after) {
    const std::string remark = Standard::RemarkOn(before.structure);
    const std::string other = Standard::RemarkOn(after.structure);
    if (remark == other) {
        return std::nullopt;
    }
    return FieldChange{RemarkField(remark), RemarkField(other)};
}

}  // namespace SMBIOS::Inspect::Comparing
