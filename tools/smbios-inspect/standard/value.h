#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace SMBIOS::Inspect::Standard {

/// What a value is, apart from its words: nothing (not specified, unknown), a number or a text.
using Plain = std::variant<std::monostate, std::uint64_t, std::int64_t, std::string>;

/// An element of a list.
struct Item {
    Plain plain = {};
    std::string text = {};  ///< as people read it
};

/// The value of a field.
struct Value {
    Plain plain = {};
    std::string_view unit = {};  ///< of a number
    std::string text = {};       ///< as people read it; empty where the items say it all
    bool hasWords = false;       ///< `text` says more than the plain value with its unit does
    bool isHandle = false;       ///< refers to other structures, as a number or with its items
    bool isList = false;         ///< there may be items: names of the bits set, or what a structure lists
    std::vector<Item> items = {};
};

/// Firmware gives none.
[[nodiscard]] inline Value Nothing(std::string_view text) {
    return {.text = std::string(text), .hasWords = true};
}

/// A text that is its own plain value.
[[nodiscard]] inline Value Text(std::string text) {
    return {.plain = text, .text = text};
}

/// A number, and how people read it with its unit.
[[nodiscard]] inline Value Number(std::uint64_t number, std::string text, std::string_view unit = {}) {
    return {.plain = number, .unit = unit, .text = std::move(text)};
}

[[nodiscard]] inline Value SignedNumber(std::int64_t number, std::string text) {
    return {.plain = number, .text = std::move(text)};
}

/// A code, and what it means.
[[nodiscard]] inline Value Words(std::uint64_t code, std::string words) {
    return {.plain = code, .text = std::move(words), .hasWords = true};
}

/// A list: a number of its own (a count, or the bits), a text for people in front of the items.
[[nodiscard]] inline Value List(std::uint64_t number, std::string text, std::vector<Item> items) {
    return {.plain = number, .text = std::move(text), .isList = true, .items = std::move(items)};
}

}  // namespace SMBIOS::Inspect::Standard
