#include "smbios-inspect/comparison/change_text.h"

#include <algorithm>
#include <map>
#include <span>
#include <string_view>

#include "smbios-inspect/comparison/title.h"
#include "smbios-inspect/output/text_layout.h"
#include "smbios-inspect/standard/forms.h"

namespace SMBIOS::Inspect::Comparing {

using Standard::Item;
using Standard::Plain;
using Standard::Value;
using Standard::ValueKind;

namespace {

Index TargetOf(const Side& side, const Plain& plain) noexcept {
    const auto handle = plain.Number();
    return !handle ? kNoStructure : side.table.Find(static_cast<std::uint16_t>(*handle));
}

/// "0x0040 (Physical Memory Array)": a handle's text, which may have a type already, and what it leads to.
std::string HandleText(const Side& side, const Plain& plain, std::string text) {
    constexpr std::size_t kLongestName = 60;
    if (!plain.Number()) {
        return text;
    }
    const Index target = TargetOf(side, plain);
    if (target == kNoStructure) {
        return text + " (no structure)";
    }
    const std::string name = NameText(side.table, target, kLongestName);
    if (text.find('(') != std::string::npos) {
        return text + (name.empty() ? "" : " ") + name;
    }
    return text + " (" + Title(side.table.TypeOf(target), name) + ")";
}

/// An item as people read it, and a text that is the same for what is the same in both tables.
struct ItemText {
    std::string key;
    std::string text;
};

/// Handles are the same when their targets are partners, which `partnerOf` gives a common number.
template <class PartnerOf>
std::vector<ItemText> ItemsOf(const Side& side, const std::optional<KeptField>& field, PartnerOf partnerOf) {
    std::vector<ItemText> items;
    for (const Item& item : field ? field->value.items : std::vector<Item>()) {
        const std::string text(item.text);
        if (field->kind == ValueKind::handleList) {
            const Index target = TargetOf(side, item.plain);
            const std::string kind = text.substr(std::min(text.find(' '), text.size()));
            items.push_back({target == kNoStructure ? kind : partnerOf(target) + kind,
                             HandleText(side, item.plain, text)});
        } else {
            items.push_back({text, text});
        }
    }
    return items;
}

/// Appends those of `items` that the others do not have, a sign in front of each.
void AppendMissing(std::vector<std::string>& lines,
                   const char* sign,
                   const std::vector<ItemText>& items,
                   const std::vector<ItemText>& others) {
    std::map<std::string_view, std::size_t> counts;
    for (const ItemText& other : others) {
        ++counts[other.key];
    }
    for (const ItemText& item : items) {
        std::size_t& count = counts[item.key];
        if (count == 0) {
            lines.push_back(sign + item.text);
        } else {
            --count;
        }
    }
}

std::vector<std::string> ItemLines(const Comparison& comparison, const FieldChange& change) {
    const auto items = ItemsOf(comparison.Before(), change.before, [&](Index target) {
        const Index partner = comparison.Pairs().AfterOf(target);
        return partner == kNoStructure ? "gone " + std::to_string(target) : std::to_string(partner);
    });
    const auto others =
        ItemsOf(comparison.After(), change.after, [](Index target) { return std::to_string(target); });
    std::vector<std::string> lines;
    AppendMissing(lines, "- ", items, others);
    AppendMissing(lines, "+ ", others, items);
    return lines;
}

/// What people read of a field in one line: no blanks that firmware pads it with.
std::string LineOf(const Side& side, const std::optional<KeptField>& field) {
    if (!field) {
        return "(absent)";
    }
    const Value& value = field->value;
    std::string line(value.text);
    if (field->kind == ValueKind::handle) {
        line = HandleText(side, value.plain, std::move(line));
    }
    for (std::size_t i = 0; !value.isInLine && i < value.items.size(); ++i) {
        line.append(line.empty() ? "" : ", ") += value.items[i].text;
    }
    line.resize(WithoutTrailingBlanks(line).size());
    return line.empty() ? "(blank)" : line;
}

/// What tells a value from another one that reads the same: its number, or its bytes.
std::string DetailOf(const std::optional<KeptField>& field) {
    const Plain plain = field ? field->value.plain : Plain();
    if (const auto number = plain.Number()) {
        return " (" + std::to_string(*number) + ")";
    }
    if (const auto text = plain.Text()) {
        return " (" +
               Standard::BytesText(
                   std::span(reinterpret_cast<const std::uint8_t*>(text->data()), text->size())) +
               ")";
    }
    return {};
}

std::string ArrowLine(const Comparison& comparison, const FieldChange& change) {
    std::string before = LineOf(comparison.Before(), change.before);
    std::string after = LineOf(comparison.After(), change.after);
    if (Printable(before) == Printable(after)) {
        before += DetailOf(change.before);
        after += DetailOf(change.after);
    }
    return before + " -> " + after;
}

bool IsListOfItems(const std::optional<KeptField>& field) noexcept {
    return field && field->value.isList && !field->value.isInLine;
}

std::vector<std::string> LinesOf(const Comparison& comparison, const FieldChange& change) {
    if (IsListOfItems(change.before) || IsListOfItems(change.after)) {
        if (std::vector<std::string> lines = ItemLines(comparison, change); !lines.empty()) {
            return lines;
        }
    }
    return {ArrowLine(comparison, change)};
}

std::string LabelOf(const KeptField& field) {
    const std::string label =
        field.label.empty() ? std::string(field.name) : Standard::Numbered(field.label, field.place.index);
    const std::string heading = Standard::Numbered(field.place.heading, field.place.index);
    return heading.empty() ? label : heading + ", " + label;
}

}  // namespace

std::vector<ChangeText> TextOf(const Comparison& comparison, const std::vector<FieldChange>& changes) {
    const bool hasLabel = std::ranges::any_of(
        changes, [](const FieldChange& change) { return !change.Either().label.empty(); });
    std::vector<ChangeText> texts;
    for (const FieldChange& change : changes) {
        if (!hasLabel || !change.Either().label.empty()) {
            texts.push_back({LabelOf(change.Either()), LinesOf(comparison, change)});
        }
    }
    return texts;
}

}  // namespace SMBIOS::Inspect::Comparing
