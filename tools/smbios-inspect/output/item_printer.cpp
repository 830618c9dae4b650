#include "smbios-inspect/output/item_printer.h"

#include <algorithm>
#include <iterator>
#include <ostream>
#include <unordered_map>
#include <utility>

#include "smbios-inspect/output/text_layout.h"

namespace SMBIOS::Inspect {

namespace {

constexpr std::size_t kLabelWidth = 12;
constexpr std::string_view kContinuation = "  ";

/// Items that are equal.
struct Group {
    const ItemParts* item;
    std::size_t count;
};

/// The groups of items in the order in which each turns up first.
std::vector<Group> Grouped(const std::vector<ItemParts>& items) {
    std::vector<Group> groups;
    std::unordered_map<std::string, std::size_t> places;
    for (const ItemParts& item : items) {
        std::string identity;
        for (const std::string& part : item) {
            identity.append(part).push_back('\0');
        }
        const auto [place, isNew] = places.try_emplace(std::move(identity), groups.size());
        if (isNew) {
            groups.push_back({&item, 0});
        }
        ++groups[place->second].count;
    }
    return groups;
}

}  // namespace

void ItemPrinter::Print(std::string_view label, const std::vector<ItemParts>& items) {
    label_ = label;
    for (const Group& group : Grouped(items)) {
        PrintItem(*group.item, group.count);
    }
    if (items.empty()) {
        PrintLine("not reported");
    }
}

void ItemPrinter::PrintRemark(const std::string& text) {
    for (const std::string& line : Lines({text})) {
        PrintLine(line);
    }
}

void ItemPrinter::PrintWarning(const std::string& text) {
    for (const std::string& line : Lines({text})) {
        PrintLine(Emphasised(line, Emphasis::warning, style_));
    }
}

void ItemPrinter::PrintItem(ItemParts parts, std::size_t count) {
    std::erase(parts, "");
    if (parts.empty()) {
        parts = {"nothing is known of it"};
    }
    if (count > 1) {
        parts.front() = std::to_string(count) + " x " + parts.front();
    }
    std::string_view indent = "";
    for (const std::string& line : Lines(parts)) {
        if (HasRoomFurtherLeftOnly(line)) {
            PrintBelowLabel(line);
        } else {
            PrintLine(std::string(indent) + line);
        }
        indent = kContinuation;
    }
}

void ItemPrinter::PrintLine(const std::string& text) {
    const std::string gap(kLabelWidth - label_.size(), ' ');
    output_ << Emphasised(label_, Emphasis::heading, style_) << gap << text << '\n';
    label_ = {};
}

void ItemPrinter::PrintBelowLabel(const std::string& line) {
    if (!label_.empty()) {
        output_ << Emphasised(label_, Emphasis::heading, style_) << '\n';
        label_ = {};
    }
    const std::size_t room = style_.width - DisplayWidth(line);
    output_ << std::string(std::min(room, kLabelWidth), ' ') << line << '\n';
}

/// A word that fits the terminal is not broken for want of room beside the labels.
bool ItemPrinter::HasRoomFurtherLeftOnly(const std::string& line) const {
    const std::size_t width = DisplayWidth(line);
    return style_.width != 0 && width > ValueWidth() && width <= style_.width;
}

/// Breaks between parts where that does, else between words.
std::vector<std::string> ItemPrinter::Lines(const ItemParts& parts) const {
    const std::size_t width = style_.width == 0 ? 0 : ValueWidth();
    std::vector<std::string> lines;
    for (const std::string& part : parts) {
        const std::string text = Printable(part) + (&part == &parts.back() ? "" : ",");
        if (!lines.empty() && (width == 0 || DisplayWidth(lines.back() + " " + text) <= width)) {
            lines.back() += " " + text;
        } else {
            std::ranges::move(WrapWords(text, width), std::back_inserter(lines));
        }
    }
    return lines;
}

std::size_t ItemPrinter::ValueWidth() const {
    constexpr std::size_t kTaken = kLabelWidth + kContinuation.size();
    return style_.width > kTaken ? style_.width - kTaken : 1;
}

}  // namespace SMBIOS::Inspect
