#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace SMBIOS::Inspect::Standard {

/// What sort of value a field has, and so what its plain value is.
enum class ValueKind : std::uint8_t {
    text,        ///< a text
    number,      ///< a number, of the field's unit if it has one
    code,        ///< a number that stands for words
    flags,       ///< a number whose bits stand for the items
    handle,      ///< the handle of another structure
    list,        ///< how many items there are
    handleList,  ///< how many handles there are, which are the items
};

/// What a value is, apart from its words: nothing (not specified, unknown), a number or a text.
struct Plain : std::variant<std::monostate, std::uint64_t, std::int64_t, std::string> {
    using Alternatives = variant;
    using Alternatives::variant;

    Plain() = default;
    Plain(const Plain& other) : Alternatives(CopyOf(other)) {}
    Plain(Plain&&) noexcept = default;
    Plain& operator=(const Plain& other) { return *this = Plain(other); }
    Plain& operator=(Plain&&) noexcept = default;
    ~Plain() = default;

private:
    /// The text is copied first: in libstdc++ 12 a variant of these types that has no memory for its copy
    /// destroys what it does not hold.
    static Alternatives CopyOf(const Alternatives& other) {
        return std::visit([](auto value) { return Alternatives(std::move(value)); }, other);
    }
};

/// An element of a list.
struct Item {
    Plain plain = {};
    std::string text = {};   ///< as people read it
    std::size_t offset = 0;  ///< of a handle: where it stands in the structure

    bool operator==(const Item&) const = default;
};

/// The value of a field.
struct Value {
    Plain plain = {};
    std::string text = {};  ///< as people read it; empty where the items say it all
    bool hasWords = false;  ///< `text` says more than the plain value does
    bool isInLine = false;  ///< people read the items in `text`
    bool isList = false;    ///< there may be items: names of the bits set, or what a structure lists
    std::vector<Item> items = {};

    bool operator==(const Value&) const = default;
};

/// Firmware gives none.
[[nodiscard]] inline Value Nothing(std::string_view text) {
    return {.text = std::string(text), .hasWords = true};
}

/// A text that is its own plain value.
[[nodiscard]] inline Value Text(std::string text) {
    return {.plain = text, .text = text};
}

/// A number, and how people read it.
[[nodiscard]] inline Value Number(std::uint64_t number, std::string text) {
    return {.plain = number, .text = std::move(text)};
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
