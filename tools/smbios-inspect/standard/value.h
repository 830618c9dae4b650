#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
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

/// A text that stands elsewhere, in a structure or a table of words, and lives as long as they do; or one of
/// its own.
class ValueText {
public:
    ValueText() = default;
    ValueText(std::string own) noexcept : own_(std::move(own)) {}
    ValueText(const char* words) noexcept : elsewhere_(words) {}
    ValueText(std::string_view elsewhere) noexcept : elsewhere_(elsewhere) {}

    operator std::string_view() const noexcept { return own_.empty() ? elsewhere_ : own_; }
    [[nodiscard]] bool empty() const noexcept { return own_.empty() && elsewhere_.empty(); }

    ValueText& operator+=(std::string_view more) {
        own_ = std::string(*this).append(more);
        return *this;
    }

    template <std::convertible_to<std::string_view> Other>
    bool operator==(const Other& other) const noexcept {
        return std::string_view(*this) == std::string_view(other);
    }

private:
    std::string own_;
    std::string_view elsewhere_;
};

/// What a value is, apart from its words: nothing (not specified, unknown), a number or a text.
class Plain {
public:
    Plain() = default;
    Plain(std::uint64_t number) noexcept : kind_(Kind::number), number_(number) {}
    Plain(std::int64_t number) noexcept
        : kind_(Kind::signedNumber), number_(static_cast<std::uint64_t>(number)) {}
    template <std::convertible_to<ValueText> Text>
    Plain(Text&& text) : kind_(Kind::text), text_(std::forward<Text>(text)) {}

    [[nodiscard]] bool IsNothing() const noexcept { return kind_ == Kind::nothing; }

    /// No value when it is something else.
    [[nodiscard]] std::optional<std::uint64_t> Number() const noexcept {
        return kind_ == Kind::number ? std::optional(number_) : std::nullopt;
    }
    [[nodiscard]] std::optional<std::int64_t> SignedNumber() const noexcept {
        return kind_ == Kind::signedNumber ? std::optional(static_cast<std::int64_t>(number_)) : std::nullopt;
    }
    [[nodiscard]] std::optional<std::string_view> Text() const noexcept {
        return kind_ == Kind::text ? std::optional<std::string_view>(text_) : std::nullopt;
    }

    bool operator==(const Plain&) const = default;

private:
    enum class Kind : std::uint8_t { nothing, number, signedNumber, text };

    Kind kind_ = Kind::nothing;
    std::uint64_t number_ = 0;
    ValueText text_;
};

/// An element of a list.
struct Item {
    Plain plain = {};
    ValueText text = {};     ///< as people read it
    std::size_t offset = 0;  ///< of a handle: where it stands in the structure

    bool operator==(const Item&) const = default;
};

/// The value of a field. Valid only while the table of its structure is.
struct Value {
    Plain plain = {};
    ValueText text = {};    ///< as people read it; empty where the items say it all
    bool hasWords = false;  ///< `text` says more than the plain value does
    bool isInLine = false;  ///< people read the items in `text`
    bool isList = false;    ///< there may be items: names of the bits set, or what a structure lists
    std::vector<Item> items = {};

    bool operator==(const Value&) const = default;
};

/// Firmware gives none.
[[nodiscard]] inline Value Nothing(ValueText text) {
    return {.text = std::move(text), .hasWords = true};
}

/// A text that is its own plain value.
[[nodiscard]] inline Value Text(ValueText text) {
    return {.plain = text, .text = std::move(text)};
}

/// A number, and how people read it.
[[nodiscard]] inline Value Number(std::uint64_t number, ValueText text) {
    return {.plain = number, .text = std::move(text)};
}
[[nodiscard]] inline Value SignedNumber(std::int64_t number, ValueText text) {
    return {.plain = number, .text = std::move(text)};
}

/// A code, and what it means.
[[nodiscard]] inline Value Words(std::uint64_t code, ValueText words) {
    return {.plain = code, .text = std::move(words), .hasWords = true};
}

/// A list: a number of its own (a count, or the bits), a text for people in front of the items.
[[nodiscard]] inline Value List(std::uint64_t number, ValueText text, std::vector<Item> items) {
    return {.plain = number, .text = std::move(text), .isList = true, .items = std::move(items)};
}

}  // namespace SMBIOS::Inspect::Standard
